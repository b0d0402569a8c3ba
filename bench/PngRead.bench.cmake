# SPDX-License-Identifier: GPL-3.0-or-later
tessaly_bench(PngRead USES core/Imaging core/Export LIBS png)
target_sources(bench_PngRead PRIVATE support/Libpng.cpp)
