# SPDX-License-Identifier: GPL-3.0-or-later
# The start window on an X server, over a generated history.
tessaly_bench(HistoryList USES ui/Start core/Text LIBS Qt6::Widgets)
target_sources(bench_HistoryList PRIVATE ${CMAKE_SOURCE_DIR}/tests/support/VirtualScreen.cpp support/GeneratedHistory.cpp)
