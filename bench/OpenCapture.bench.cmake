# SPDX-License-Identifier: GPL-3.0-or-later
tessaly_bench(OpenCapture USES ui/Editor)
target_sources(bench_OpenCapture PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/VirtualScreen.cpp)
