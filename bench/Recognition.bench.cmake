# SPDX-License-Identifier: GPL-3.0-or-later
tessaly_bench(Recognition USES platform/recognition/Engine LIBS PkgConfig::TESSERACT)
target_sources(bench_Recognition PRIVATE support/CharacterErrors.cpp support/InterfaceText.cpp)
