// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryIndexFile.h"

#include "core/History/HistoryFolder.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {

/// A thousand captures full of text make 10 MB.
static constexpr qint64 maxIndexBytes = 256 << 20;

HistoryIndexFile::HistoryIndexFile(const QString &folder) :
    m_folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    // A pipe in the place of the file must not hold the program, and a link must not lead out of the folder.
    const int file = ::openat(m_folder, HistoryFolder::indexName, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file >= 0)
        read(file);
    else if (errno != ENOENT)
        m_state = State::Unusable;
}

HistoryIndexFile::~HistoryIndexFile()
{
    if (m_folder >= 0)
        ::close(m_folder);
}

void HistoryIndexFile::read(int file)
{
    m_state = State::Unusable;
    QFile content;
    struct stat status = {};
    const bool isOpen = content.open(file, QIODevice::ReadOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
    if (::fstat(file, &status) != 0 || !isOpen || !S_ISREG(status.st_mode) || status.st_size > maxIndexBytes)
        return;
    QByteArray json(status.st_size, Qt::Uninitialized);
    if (content.read(json.data(), json.size()) != json.size())
        return;
    auto index = HistoryIndex::decoded(json);
    if (!index)
        return;
    m_state = State::Usable;
    m_written = status.st_ctim;
    m_entries.reserve(index->entries.size());
    for (HistoryEntry &entry : index->entries)
        m_entries.insert(entry.id, std::move(entry));
    m_hasDoubles = m_entries.size() != index->entries.size();
}

std::optional<HistoryEntry> HistoryIndexFile::take(const QUuid &id)
{
    const auto found = m_entries.find(id);
    if (found == m_entries.end())
        return std::nullopt;
    std::optional entry = std::move(*found);
    m_entries.erase(found);
    return entry;
}

bool HistoryIndexFile::isNewerThanEntryOf(const QUuid &id) const
{
    const QByteArray name
        = (HistoryFolder::nameOf(id) + QLatin1StringView(HistoryFolder::packageSuffix) + u'/').toLatin1()
        + HistoryFolder::entryName;
    struct stat status = {};
    if (::fstatat(m_folder, name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    const timespec &changed = status.st_ctim;
    return std::pair(changed.tv_sec, changed.tv_nsec) < std::pair(m_written.tv_sec, m_written.tv_nsec);
}

} // namespace tessaly
