# SPDX-License-Identifier: GPL-3.0-or-later
tessaly_bench(Png USES core/Export LIBS png)
target_sources(bench_Png PRIVATE support/Libpng.cpp)
