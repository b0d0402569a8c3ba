# SPDX-License-Identifier: GPL-3.0-or-later
tessaly_bench(UndoMemory USES core/Annotation)
