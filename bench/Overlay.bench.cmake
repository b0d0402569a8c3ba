# SPDX-License-Identifier: GPL-3.0-or-later
tessaly_bench(Overlay USES ui/Overlay platform/x11 LIBS PkgConfig::XCB Qt6::Widgets)
target_sources(bench_Overlay PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/VirtualScreen.cpp support/ShownPicture.cpp)
