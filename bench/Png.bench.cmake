# SPDX-License-Identifier: GPL-3.0-or-later
tessaly_bench(Png USES core/Export LIBS png)
