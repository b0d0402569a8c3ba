# Frames of the real widget on an X server, while one mark after the other is dragged.
tessaly_bench(CanvasDrag USES ui/Editor/Canvas LIBS Qt6::Widgets)
target_sources(bench_CanvasDrag PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/VirtualScreen.cpp support/MixedMarks.cpp)
