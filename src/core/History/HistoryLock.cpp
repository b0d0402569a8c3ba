// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryLock.h"

#include "core/History/HistoryFolder.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {

static constexpr char lockName[] = "/.lock";

/// Returns 0, or the error number.
static int locked(int file, int operation)
{
    while (::flock(file, operation) != 0) {
        if (errno != EINTR)
            return errno;
    }
    return 0;
}

HistoryLock::HistoryLock(QString folder) : m_path(std::move(folder) + QLatin1StringView(lockName)) { }

int HistoryLock::open() const
{
    const QByteArray name = QFile::encodeName(m_path);
    constexpr int flags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const int file = ::open(name.constData(), O_RDWR | O_CREAT | flags, 0600);
    // In a folder that may only be read the lock can still keep others out.
    return file < 0 && (errno == EACCES || errno == EROFS) ? ::open(name.constData(), O_RDONLY | flags) : file;
}

bool HistoryLock::tryTake()
{
    release();
    m_file = open();
    if (m_file < 0)
        return false;
    // What is no lock held by another is a file system without locks.
    if (locked(m_file, LOCK_EX | LOCK_NB) == EWOULDBLOCK || !isHeld()) {
        release();
        return false;
    }
    return true;
}

Outcome HistoryLock::share()
{
    release();
    m_file = open();
    if (m_file < 0)
        return HistoryFolder::notWritten(m_path, errno);
    locked(m_file, LOCK_SH);
    return Done {};
}

void HistoryLock::release()
{
    if (m_file >= 0)
        ::close(m_file);
    m_file = -1;
}

bool HistoryLock::isHeld() const
{
    struct stat held = {}, there = {};
    return m_file >= 0 && ::fstat(m_file, &held) == 0 && ::lstat(QFile::encodeName(m_path).constData(), &there) == 0
        && held.st_ino == there.st_ino && held.st_dev == there.st_dev;
}

} // namespace tessaly
