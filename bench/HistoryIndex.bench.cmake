# SPDX-License-Identifier: GPL-3.0-or-later
tessaly_bench(HistoryIndex USES core/History)
target_sources(bench_HistoryIndex PRIVATE support/GeneratedHistory.cpp)
