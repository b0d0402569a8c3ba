// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// What the kernel counts of a running process.
namespace tessaly::bench::ProcessFigures {

/// In MiB: proportional memory of shared memory segments, and all other; and what belongs to the process alone, which
/// does not depend on the programs beside it that use the same libraries.
struct Memory {
    double segments = 0;
    double other = 0;
    double own = 0;
};
Memory memory(qint64 process);

int openFiles(qint64 process);

/// How often its threads that live now have gone to sleep by themselves, and so were woken.
qint64 wakeUps(qint64 process);

} // namespace tessaly::bench::ProcessFigures
