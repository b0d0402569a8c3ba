tessaly_bench(Flatten USES core/Rendering core/Base)
target_sources(bench_Flatten PRIVATE support/MixedMarks.cpp)
