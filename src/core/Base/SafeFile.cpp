// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly::SafeFile {

namespace {

Failure failureAt(const QString &path, int error)
{
    const QString reason = QString::fromLocal8Bit(std::strerror(error));
    return { QCoreApplication::translate("SafeFile", "%1 could not be written: %2.").arg(path, reason) };
}

/// A name beside `path` that nothing else uses; hidden, so that a file manager does not flash it.
QString temporaryBeside(const QString &path)
{
    const QFileInfo target(path);
    const QString token = QString::number(QRandomGenerator::system()->generate64(), 36);
    return target.dir().filePath(QStringLiteral(".%1.%2").arg(target.fileName().left(200), token));
}

/// Returns 0, or the error number of the step that failed.
int flushFolder(const QString &path)
{
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return errno;
    // Some file systems cannot flush a folder and say EINVAL; the rename is then as safe as they make it.
    const int error = ::fsync(folder) != 0 && errno != EINVAL ? errno : 0;
    ::close(folder);
    return error;
}

int writeFlushed(const QString &path, const QByteArray &bytes, mode_t mode)
{
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file < 0)
        return errno;
    int error = 0;
    for (qsizetype written = 0; written < bytes.size() && error == 0;) {
        const ssize_t step = ::write(file, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (step >= 0)
            written += step;
        else if (errno != EINTR)
            error = errno;
    }
    if (error == 0 && ::fsync(file) != 0)
        error = errno;
    if (::close(file) != 0 && error == 0)
        error = errno;
    return error;
}

/// The permissions a new file gets: those of the one it replaces, or what the user's mask leaves.
mode_t modeFor(const QString &path)
{
    struct stat existing = {};
    if (::stat(QFile::encodeName(path).constData(), &existing) == 0)
        return existing.st_mode & 07777;
    return 0666;
}

int renameOver(const QString &from, const QString &to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0 ? 0 : errno;
}

int writeEntries(const QString &folder, const QList<Entry> &entries)
{
    if (::mkdir(QFile::encodeName(folder).constData(), 0777) != 0)
        return errno;
    for (const auto &[name, bytes] : entries) {
        const QString path = QDir(folder).filePath(name);
        const QString parent = QFileInfo(path).path();
        if (!QDir().mkpath(parent))
            return errno != 0 ? errno : EIO;
        if (const int error = writeFlushed(path, bytes, 0666))
            return error;
        if (const int error = flushFolder(parent))
            return error;
    }
    return flushFolder(folder);
}

/// Swaps two paths in one step, so that no moment is without a folder at either.
int exchange(const QString &one, const QString &other)
{
    const QByteArray first = QFile::encodeName(one);
    const QByteArray second = QFile::encodeName(other);
    return ::renameat2(AT_FDCWD, first.constData(), AT_FDCWD, second.constData(), RENAME_EXCHANGE) == 0 ? 0 : errno;
}

/// For file systems without an exchange: the old folder steps aside, and back if the new one cannot follow.
int replaceAside(const QString &fresh, const QString &path)
{
    const QString aside = temporaryBeside(path);
    if (const int error = renameOver(path, aside))
        return error;
    if (const int error = renameOver(fresh, path)) {
        renameOver(aside, path);
        return error;
    }
    QDir(aside).removeRecursively();
    return 0;
}

} // namespace

Outcome write(const QString &path, const QByteArray &bytes)
{
    const QFileInfo info(path);
    const QString target = info.isSymLink() && info.exists() ? info.canonicalFilePath() : path;
    const QString temporary = temporaryBeside(target);
    int error = QFileInfo(target).isDir() ? EISDIR : writeFlushed(temporary, bytes, modeFor(target));
    if (error == 0)
        error = renameOver(temporary, target);
    if (error != 0) {
        QFile::remove(temporary);
        return failureAt(path, error);
    }
    if (const int flushError = flushFolder(QFileInfo(target).path()))
        return failureAt(path, flushError);
    return Done {};
}

Outcome writeFolder(const QString &path, const QList<Entry> &entries)
{
    const QString target = QDir::cleanPath(path);
    const QFileInfo existing(target);
    if ((existing.exists() && !existing.isDir()) || existing.isSymLink())
        return failureAt(path, ENOTDIR);
    const QString fresh = temporaryBeside(target);
    int error = writeEntries(fresh, entries);
    if (error == 0 && !existing.exists()) {
        error = renameOver(fresh, target);
    } else if (error == 0) {
        error = exchange(fresh, target);
        if (error == EINVAL || error == ENOSYS)
            error = replaceAside(fresh, target);
    }
    // After an exchange this is the old folder, after a failure the unfinished one.
    QDir(fresh).removeRecursively();
    if (error == 0)
        error = flushFolder(QFileInfo(target).path());
    if (error != 0)
        return failureAt(path, error);
    return Done {};
}

} // namespace tessaly::SafeFile
