// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryFolder.h"

#include "core/History/HistoryLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly::HistoryFolder {

namespace {

Failure notDeleted(const QString &path, int error)
{
    return { QCoreApplication::translate("History", "%1 could not be deleted: %2.").arg(path, qt_error_string(error)) };
}

/// The kind of an entry, DT_DIR and so on; file systems that do not tell it in their listing are asked.
int kindOf(int folder, const dirent &entry)
{
    struct stat status = {};
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type;
    if (::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return DT_UNKNOWN;
    return IFTODT(status.st_mode);
}

QUuid idBefore(std::string_view name, std::string_view suffix)
{
    if (!name.ends_with(suffix))
        return {};
    name.remove_suffix(suffix.size());
    return idOf(QLatin1StringView(name.data(), qsizetype(name.size())));
}

QUuid idAfter(std::string_view name, std::string_view prefix)
{
    name.remove_prefix(prefix.size());
    return idOf(QLatin1StringView(name.data(), qsizetype(name.size())));
}

void addHidden(Listing &listing, std::string_view name)
{
    const auto text = QString::fromLocal8Bit(name.data(), qsizetype(name.size()));
    if (name.starts_with(changedPrefix) && !idAfter(name, changedPrefix).isNull())
        listing.changed += idAfter(name, changedPrefix);
    else if (name.starts_with(unfinishedPrefix))
        listing.unfinished += text;
    else if (name.starts_with(removedPrefix))
        listing.removed += text;
    else if (name.starts_with(oldIndexPrefix))
        listing.oldIndexes += text;
}

void add(Listing &listing, std::string_view name, int kind)
{
    if (name.starts_with('.'))
        return addHidden(listing, name);
    if (const QUuid id = idBefore(name, packageSuffix); kind == DT_DIR && !id.isNull())
        listing.packages += id;
    else if (const QUuid waiting = idBefore(name, recognizingSuffix); kind == DT_REG && !waiting.isNull())
        listing.recognizing += waiting;
}

bool isFolder(const QByteArray &path)
{
    struct stat status = {};
    return ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

Listing list(const QString &folder)
{
    Listing listing;
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(::opendir(QFile::encodeName(folder).constData()), ::closedir);
    if (!stream) {
        listing.error = errno;
        return listing;
    }
    // Names alone, without a way to what they name, would look like an empty history.
    const int descriptor = ::dirfd(stream.get());
    if (::faccessat(descriptor, ".", X_OK, AT_EACCESS) != 0) {
        listing.error = errno;
        return listing;
    }
    const auto next = [&stream] {
        errno = 0; // what was done with the entry before may have left an error number
        return ::readdir(stream.get());
    };
    while (const dirent *entry = next())
        add(listing, entry->d_name, kindOf(descriptor, *entry));
    listing.error = errno;
    return listing;
}

QString nameOf(const QUuid &id) { return id.toString(QUuid::WithoutBraces); }

QUuid idOf(QLatin1StringView name)
{
    static constexpr qsizetype length = 36;
    const QUuid id = name.size() == length ? QUuid::fromString(name) : QUuid();
    const bool isLower = std::ranges::none_of(name, [](char letter) { return letter >= 'A' && letter <= 'Z'; });
    return isLower ? id : QUuid();
}

Outcome removeTree(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    if (!isFolder(name))
        return removeFile(path);
    if (!QDir(path).removeRecursively())
        return notDeleted(path, errno == 0 ? EIO : errno);
    return Done {};
}

Outcome takeAway(const QString &folder, const QStringList &names)
{
    Outcome outcome = Done {};
    QStringList taken;
    for (const QString &name : names) {
        const QString path = QDir(folder).filePath(name), away = QDir(folder).filePath(freshName(removedPrefix));
        if (std::rename(QFile::encodeName(path).constData(), QFile::encodeName(away).constData()) == 0)
            taken += away;
        else if (errno != ENOENT && outcome)
            outcome = notDeleted(path, errno);
    }
    if (taken.isEmpty())
        return outcome;
    if (auto flushed = flush(folder); !flushed) // once for all of them: it waits for the disk
        return flushed;
    for (const QString &path : std::as_const(taken))
        HistoryLog::reportLeftOver(removeTree(path));
    return outcome;
}

Outcome rename(const QString &from, const QString &to)
{
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return notWritten(to, errno);
    return Done {};
}

Outcome touch(const QString &path)
{
    const int file
        = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (file < 0 && errno == EISDIR)
        return Done {}; // the name alone says it
    if (file < 0)
        return notWritten(path, errno);
    ::close(file);
    return Done {};
}

Outcome removeFile(const QString &path)
{
    if (::unlink(QFile::encodeName(path).constData()) != 0 && errno != ENOENT)
        return notDeleted(path, errno);
    return Done {};
}

QString freshName(const char *prefix)
{
    return QLatin1StringView(prefix) + QString::number(QRandomGenerator::system()->generate64(), 36);
}

Failure notRead(const QString &path, int error)
{
    return { QCoreApplication::translate("History", "%1 could not be read: %2.").arg(path, qt_error_string(error)) };
}

} // namespace tessaly::HistoryFolder
