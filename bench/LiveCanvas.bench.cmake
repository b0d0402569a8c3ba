tessaly_bench(LiveCanvas USES core/Rendering core/Base)
target_sources(bench_LiveCanvas PRIVATE support/MixedMarks.cpp)
