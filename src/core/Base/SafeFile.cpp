// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSet>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly::SafeFile {

namespace {

/// A name beside `path` that nothing else uses; hidden, so that a file manager does not flash it. It does not grow with
/// the name of `path`, which may be as long as the file system allows.
QString temporaryBeside(const QString &path)
{
    const QString token = QString::number(QRandomGenerator::system()->generate64(), 36);
    return QFileInfo(path).dir().filePath(QLatin1StringView(unfinishedPrefix) + token);
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

mode_t fileMode(Access access) { return access == Access::OwnerOnly ? 0600 : 0666; }
mode_t folderMode(Access access) { return access == Access::OwnerOnly ? 0700 : 0777; }

/// A new file has the permissions of `access`, or those of the file that it is to replace.
int writeFlushed(const QString &path, const QByteArray &bytes, std::optional<mode_t> replacedMode, Access access)
{
    const mode_t mode = replacedMode.value_or(fileMode(access));
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

/// Fails with EEXIST when something stands at `to`.
int renameToFree(const QString &from, const QString &to)
{
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // A file system that cannot do both in one step: an empty file keeps the name until it is renamed over.
    const int place = ::open(target.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (place < 0)
        return errno;
    ::close(place);
    const int error = renameOver(from, to);
    if (error != 0)
        ::unlink(target.constData());
    return error;
}

/// Makes the folder of an entry, `parent` in `folder`, if it is not there yet.
int makeParent(const QString &folder, const QString &parent, Access access)
{
    QString path = folder;
    const QStringList names = parent.split(u'/');
    for (const QString &name : names) {
        path = QDir(path).filePath(name);
        if (::mkdir(QFile::encodeName(path).constData(), folderMode(access)) != 0 && errno != EEXIST)
            return errno;
    }
    return 0;
}

int writeEntries(const QString &folder, const QList<Entry> &entries, Access access)
{
    if (::mkdir(QFile::encodeName(folder).constData(), folderMode(access)) != 0)
        return errno;
    QSet<QString> parents;
    for (const auto &[name, bytes] : entries) {
        const QString path = QDir(folder).filePath(name);
        const QString parent = QFileInfo(path).path();
        if (const int error = makeParent(folder, QFileInfo(name).path(), access))
            return error;
        if (const int error = writeFlushed(path, bytes, std::nullopt, access))
            return error;
        parents.insert(parent);
    }
    parents.insert(folder);
    for (const QString &parent : std::as_const(parents)) {
        if (const int error = flushFolder(parent))
            return error;
    }
    return 0;
}

/// Swaps two paths in one step, so that no moment is without a folder at either.
int exchange(const QString &one, const QString &other)
{
    const QByteArray first = QFile::encodeName(one);
    const QByteArray second = QFile::encodeName(other);
    return ::renameat2(AT_FDCWD, first.constData(), AT_FDCWD, second.constData(), RENAME_EXCHANGE) == 0 ? 0 : errno;
}

/// For file systems without an exchange: the old folder steps aside, and back if the new one cannot follow. The old one
/// then bears the name that the new one had. A kill between the two renames leaves both whole, and none at `path`.
int replaceAside(const QString &fresh, const QString &path)
{
    const QString aside = temporaryBeside(path);
    if (const int error = renameOver(path, aside))
        return error;
    if (const int error = renameOver(fresh, path)) {
        renameOver(aside, path);
        return error;
    }
    return renameOver(aside, fresh);
}

int replaceFile(const QString &target, const QByteArray &bytes, std::optional<mode_t> mode, Access access)
{
    const QString temporary = temporaryBeside(target);
    int error = writeFlushed(temporary, bytes, mode, access);
    if (error == 0)
        error = renameOver(temporary, target);
    if (error != 0) {
        QFile::remove(temporary);
        return error;
    }
    return flushFolder(QFileInfo(target).path());
}

} // namespace

Outcome write(const QString &path, const QByteArray &bytes, Access access)
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
        error = replaceFile(
            target, bytes, exists ? std::optional<mode_t>(existing.st_mode & 0777) : std::nullopt, access);
    if (error != 0)
        return notWritten(path, error);
    return Done {};
}

Outcome replace(const QString &path, const QByteArray &bytes, Access access)
{
    if (const int error = replaceFile(path, bytes, std::nullopt, access))
        return notWritten(path, error);
    return Done {};
}

Result<Created> create(const QString &path, const QByteArray &bytes, Access access)
{
    const QString temporary = temporaryBeside(path);
    int error = writeFlushed(temporary, bytes, std::nullopt, access);
    if (error == 0)
        error = renameToFree(temporary, path);
    if (error != 0)
        QFile::remove(temporary);
    else
        error = flushFolder(QFileInfo(path).path());
    if (error == EEXIST)
        return Created::NameTaken;
    if (error != 0)
        return notWritten(path, error);
    return Created::Yes;
}

Outcome makeFolder(const QString &path, Access access)
{
    const QString folder = QDir::cleanPath(QDir(path).absolutePath());
    if (QFileInfo(folder).isDir())
        return Done {};
    const QString parent = QFileInfo(folder).path();
    if (parent != folder) {
        if (auto made = makeFolder(parent); !made)
            return made;
    }
    if (::mkdir(QFile::encodeName(folder).constData(), folderMode(access)) != 0) {
        const int error = errno; // another process may have been faster
        if (!QFileInfo(folder).isDir())
            return notWritten(path, error == EEXIST ? ENOTDIR : error);
    }
    return flush(parent);
}

Outcome writeFolder(const QString &path, const QList<Entry> &entries, Access access)
{
    const QString target = QDir::cleanPath(path);
    const QFileInfo existing(target);
    if ((existing.exists() && !existing.isDir()) || existing.isSymLink())
        return notWritten(path, ENOTDIR);
    const QString fresh = temporaryBeside(target);
    int error = writeEntries(fresh, entries, access);
    if (error == 0 && !existing.exists()) {
        error = renameOver(fresh, target);
    } else if (error == 0) {
        error = exchange(fresh, target);
        if (error == EINVAL || error == ENOSYS)
            error = replaceAside(fresh, target);
    }
    if (error == 0)
        error = flushFolder(QFileInfo(target).path());
    // After an exchange this is the old folder, after a failure the unfinished one.
    QDir(fresh).removeRecursively();
    if (error != 0)
        return notWritten(path, error);
    return Done {};
}

Outcome flush(const QString &folder)
{
    if (const int error = flushFolder(folder))
        return notWritten(folder, error);
    return Done {};
}

Failure notWritten(const QString &path, int error)
{
    return {
        QCoreApplication::translate("SafeFile", "%1 could not be written: %2.").arg(path, qt_error_string(error))
    };
}

} // namespace tessaly::SafeFile
