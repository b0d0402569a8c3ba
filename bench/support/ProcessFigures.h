// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>

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

/// Running programs that it has started.
QList<qint64> children(qint64 process);

/// Of it and its children, in the kernel's ticks, a hundredth of a second each; less when a child has ended.
qint64 processorTime(qint64 process);

/// How often each of its threads has gone to sleep by itself, and so was woken.
QHash<QString, qint64> wakeUps(qint64 process);

/// Of the threads that live now, of which some may have begun since.
qint64 wakeUpsSince(const QHash<QString, qint64> &before, qint64 process);

} // namespace tessaly::bench::ProcessFigures
