// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly::SafeFile {

namespace {

Failure failureAt(const QString &path, int error)
{
    return {
        QCoreApplication::translate("SafeFile", "%1 could not be written: %2.").arg(path, qt_error_string(error))
    };
}

/// A name beside `path` that nothing else uses; hidden, so that a file manager does not flash it. It does not grow with
/// the name of `path`, which may be as long as the file system allows.
QString temporaryBeside(const QString &path)
{
    const QString token = QString::number(QRandomGenerator::system()->generate64(), 36);
    return QFileInfo(path).dir().filePath(QStringLiteral(".tessaly-") + token);
}

/// Returns 0, or the error number of the step that failed.
int flushFolder(const QString &path)
{
    const int folder = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return errno == EACCES ? 0 : errno; // a folder may be written and yet not be read; it cannot be flushed then
    // Some file systems cannot flush a folder and say EINVAL; the rename is then as safe as they make it.
    const int error = ::fsync(folder) != 0 && errno != EINVAL ? errno : 0;
    ::close(folder);
    return error;
}

int writeAll(int file, const QByteArray &bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t step = ::write(file, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (step > 0)
            written += step;
        else if (step == 0 || errno != EINTR)
            return step == 0 ? EIO : errno;
    }
    return 0;
}

/// A new file has the permissions that the user's mask leaves, or those of the file that it is to replace.
int writeFlushed(const QString &path, const QByteArray &bytes, std::optional<mode_t> replacedMode)
{
    const mode_t mode = replacedMode.value_or(0666);
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file < 0)
        return errno;
    int error = writeAll(file, bytes);
    if (error == 0 && replacedMode && ::fchmod(file, mode) != 0 && errno != EPERM && errno != ENOTSUP)
        error = errno;
    if (error == 0 && ::fsync(file) != 0)
        error = errno;
    if (::close(file) != 0 && error == 0)
        error = errno;
    return error;
}

/// A device or a pipe takes the bytes as they come: it must not be replaced by a file.
int writeInto(const QString &path, const QByteArray &bytes)
{
    const int device = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
    if (device < 0)
        return errno;
    const int error = writeAll(device, bytes);
    return ::close(device) != 0 && error == 0 ? errno : error;
}

/// The file that writing to `path` replaces: the end of a chain of links, also where nothing stands there yet.
QString linkTarget(const QString &path)
{
    QString target = path;
    for (int links = 0; links < 40 && QFileInfo(target).isSymLink(); ++links)
        target = QFileInfo(target).symLinkTarget();
    return target;
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
        if (const int error = writeFlushed(path, bytes, std::nullopt))
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

int replace(const QString &target, const QByteArray &bytes, std::optional<mode_t> mode)
{
    const QString temporary = temporaryBeside(target);
    int error = writeFlushed(temporary, bytes, mode);
    if (error == 0)
        error = renameOver(temporary, target);
    if (error != 0) {
        QFile::remove(temporary);
        return error;
    }
    return flushFolder(QFileInfo(target).path());
}

} // namespace

Outcome write(const QString &path, const QByteArray &bytes)
{
    const QString target = linkTarget(path);
    struct stat existing = {};
    // By the path as it is given: a link such as /dev/stdout may lead to a pipe that has no name of its own.
    const bool exists = ::stat(QFile::encodeName(path).constData(), &existing) == 0;
    int error = 0;
    if (!exists && QFileInfo(target).isSymLink())
        error = ELOOP;
    else if (exists && S_ISDIR(existing.st_mode))
        error = EISDIR;
    else if (exists && ::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) != 0)
        error = errno; // a file that the user protects stays, although its folder would allow to replace it
    else if (exists && !S_ISREG(existing.st_mode))
        error = writeInto(path, bytes);
    else
        error = replace(target, bytes, exists ? std::optional<mode_t>(existing.st_mode & 0777) : std::nullopt);
    if (error != 0)
        return failureAt(path, error);
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
