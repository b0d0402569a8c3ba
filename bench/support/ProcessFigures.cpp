// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/ProcessFigures.h"

#include <QDir>
#include <QFile>

namespace tessaly::bench::ProcessFigures {

static QList<QByteArray> linesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>();
}

static QString folderOf(qint64 process) { return QStringLiteral("/proc/%1/").arg(process); }

Memory memory(qint64 process)
{
    Memory memory;
    bool isSegment = false;
    for (const QByteArray &line : linesOf(folderOf(process) + QStringLiteral("smaps"))) {
        const QByteArray first = line.left(line.indexOf(' '));
        if (!first.endsWith(':')) // the head of a mapping: its addresses
            isSegment = line.contains("/SYSV") || line.contains("/memfd:");
        else if (first == "Pss:")
            (isSegment ? memory.segments : memory.other) += line.simplified().split(' ')[1].toDouble() / 1024;
        else if (first == "Anonymous:")
            memory.own += line.simplified().split(' ')[1].toDouble() / 1024;
    }
    return memory;
}

int openFiles(qint64 process)
{
    return static_cast<int>(QDir(folderOf(process) + QStringLiteral("fd"))
                                .entryList(QDir::NoDotAndDotDot | QDir::System | QDir::AllEntries)
                                .size());
}

/// Of /proc/…/stat, from the process's state on.
static QList<QByteArray> status(qint64 process)
{
    const QByteArray line = linesOf(folderOf(process) + QStringLiteral("stat")).value(0);
    return line.mid(line.lastIndexOf(')') + 2).split(' ');
}

QList<qint64> children(qint64 process)
{
    QList<qint64> children;
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        constexpr int parent = 1;
        if (const qint64 id = name.toLongLong(); id > 0 && status(id).value(parent).toLongLong() == process)
            children += id;
    }
    return children;
}

qint64 processorTime(qint64 process)
{
    constexpr int inProgram = 11, inSystem = 12;
    qint64 ticks = 0;
    for (const qint64 each : children(process) + QList<qint64> { process }) {
        const QList<QByteArray> fields = status(each);
        ticks += fields.value(inProgram).toLongLong() + fields.value(inSystem).toLongLong();
    }
    return ticks;
}

QHash<QString, qint64> wakeUps(qint64 process)
{
    QHash<QString, qint64> counts;
    const QDir tasks(folderOf(process) + QStringLiteral("task"));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QByteArray &line : linesOf(tasks.filePath(task + QStringLiteral("/status")))) {
            if (line.startsWith("voluntary_ctxt_switches:"))
                counts[task] = line.simplified().split(' ')[1].toLongLong();
        }
    }
    return counts;
}

qint64 wakeUpsSince(const QHash<QString, qint64> &before, qint64 process)
{
    qint64 count = 0;
    const QHash<QString, qint64> after = wakeUps(process);
    for (auto thread = after.cbegin(); thread != after.cend(); ++thread)
        count += thread.value() - before.value(thread.key());
    return count;
}

} // namespace tessaly::bench::ProcessFigures
