# SPDX-License-Identifier: GPL-3.0-or-later
tessaly_bench(HistoryRecord USES core/History)
target_sources(bench_HistoryRecord PRIVATE support/GeneratedHistory.cpp)
