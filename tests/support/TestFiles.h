// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>

#include <functional>

#include <sys/wait.h>
#include <unistd.h>

namespace tessaly::test {

/// Empty when it cannot be read.
inline QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// In place, as an editor of texts writes: it does not replace the file.
inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Also the hidden ones.
inline QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

/// Runs the work in a process of its own, so that it may be limited; its result is the exit status.
inline int inChild(const std::function<int()> &work)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace tessaly::test
