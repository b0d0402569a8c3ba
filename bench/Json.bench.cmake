# SPDX-License-Identifier: GPL-3.0-or-later
tessaly_bench(Json USES core/Annotation)
