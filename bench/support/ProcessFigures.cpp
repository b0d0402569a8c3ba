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

qint64 wakeUps(qint64 process)
{
    qint64 count = 0;
    const QDir tasks(folderOf(process) + QStringLiteral("task"));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QByteArray &line : linesOf(tasks.filePath(task + QStringLiteral("/status")))) {
            if (line.startsWith("voluntary_ctxt_switches:"))
                count += line.simplified().split(' ')[1].toLongLong();
        }
    }
    return count;
}

} // namespace tessaly::bench::ProcessFigures
