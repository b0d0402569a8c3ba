// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/ByteStream.h"

#include "app/CommandLine/Text.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly::ByteStream {

namespace {

constexpr qint64 chunkBytes = 1 << 20;

Failure unreadable(const QString &name, int error)
{
    return { Text::tr("%1 cannot be read: %2.").arg(name, reason(error)) };
}

Failure tooLong(const QString &name, qint64 limit)
{
    return { Text::tr("%1 is longer than %2 MiB, the most that is read.")
                 .arg(name, QString::number(limit / (1024.0 * 1024), 'g', 4)) };
}

/// Room for the whole of a regular file at once; other streams grow by the chunk.
qint64 expectedSize(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) ? status.st_size : 0;
}

} // namespace

Result<QByteArray> readAll(int descriptor, const QString &name, qint64 limit)
{
    const qint64 expected = expectedSize(descriptor);
    if (expected > limit)
        return tooLong(name, limit);
    QByteArray bytes;
    qint64 used = 0;
    while (used <= limit) {
        bytes.resize(std::max(used + chunkBytes, used == 0 ? expected + 1 : used + used / 2));
        const ssize_t step = ::read(descriptor, bytes.data() + used, static_cast<size_t>(bytes.size() - used));
        if (step == 0) {
            bytes.resize(used);
            return bytes;
        }
        if (step < 0 && errno != EINTR)
            return unreadable(name, errno);
        used += std::max<qint64>(step, 0);
    }
    return tooLong(name, limit);
}

Result<QByteArray> readAllOf(const QString &path, qint64 limit)
{
    if (path == u"-")
        return readAll(STDIN_FILENO, displayName(path), limit);
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return unreadable(path, errno);
    auto bytes = readAll(descriptor, path, limit);
    ::close(descriptor);
    return bytes;
}

int writeAll(int descriptor, const QByteArray &bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const auto rest = static_cast<size_t>(bytes.size() - written);
        const ssize_t step = ::write(descriptor, bytes.constData() + written, rest);
        if (step < 0 && errno != EINTR)
            return errno;
        written += std::max<ssize_t>(step, 0);
    }
    return 0;
}

QString reason(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

QString displayName(const QString &path) { return path == u"-" ? Text::tr("standard input") : path; }

} // namespace tessaly::ByteStream
