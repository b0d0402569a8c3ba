# SPDX-License-Identifier: GPL-3.0-or-later
# Both programs as they are started from a shell, beside each other on one X server.
tessaly_bench(ColdStart USES core/Export platform/x11 LIBS PkgConfig::XCB)
target_sources(bench_ColdStart PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/VirtualScreen.cpp support/FreeMemory.cpp)
target_compile_definitions(bench_ColdStart PRIVATE TESSALY_PROGRAM="$<TARGET_FILE:tessaly>")
add_dependencies(bench_ColdStart tessaly tessaly-desktop)
