# SPDX-License-Identifier: GPL-3.0-or-later
# The program without a window as another program on the bus and the X server sees it.
pkg_check_modules(XCB_RES REQUIRED IMPORTED_TARGET xcb-res)
tessaly_bench(Resident USES core/Base platform/x11 LIBS PkgConfig::XCB PkgConfig::XCB_RES Qt6::DBus)
target_sources(bench_Resident PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/VirtualScreen.cpp support/FreeMemory.cpp
    support/ProcessFigures.cpp)
target_compile_definitions(bench_Resident PRIVATE TESSALY_DESKTOP="$<TARGET_FILE:tessaly-desktop>")
add_dependencies(bench_Resident tessaly-desktop)
