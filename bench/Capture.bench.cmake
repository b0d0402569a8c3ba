# The whole program from cold against another one: only the X server and the pictures are shared.
find_package(PNG REQUIRED)
tessaly_bench(Capture USES platform/x11 core/History LIBS PNG::PNG PkgConfig::XCB)
target_sources(bench_Capture PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/VirtualScreen.cpp support/Libpng.cpp
    support/GeneratedHistory.cpp)
target_compile_definitions(bench_Capture PRIVATE TESSALY_PROGRAM="$<TARGET_FILE:tessaly>")
add_dependencies(bench_Capture tessaly)
