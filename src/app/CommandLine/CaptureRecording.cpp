// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CaptureRecording.h"

#include "app/CommandLine/HistoryAccess.h"
#include "app/CommandLine/InterruptionGuard.h"
#include "app/CommandLine/Text.h"
#include "core/Base/Clock.h"
#include "core/Export/ImageEncoder.h"
#include "core/History/HistoryFolder.h"
#include "core/History/HistoryKeeper.h"
#include "core/History/HistoryMailbox.h"
#include "core/History/HistoryPruning.h"
#include "core/History/HistoryWrite.h"

#include <QDir>
#include <QFileInfo>

namespace tessaly {

namespace {

Result<TessalyDocument::Package> package(
    const RasterImage &picture, QByteArray png, std::optional<QByteArray> thumbnailPng)
{
    return TessalyDocument::package(HistoryWrite::sourceOf(picture).document, std::move(png), std::move(thumbnailPng));
}

/// Without text: whoever next searches the history, or keeps it, reads that.
HistoryEntry newEntry(const RasterImage &picture)
{
    const QDateTime now = SystemClock().now();
    return { .id = QUuid::createUuid(),
        .title = Text::tr("Screenshot"),
        .created = now,
        .modified = now,
        .pixelWidth = picture.pixelSize().width(),
        .pixelHeight = picture.pixelSize().height() };
}

Failure notKept(const Failure &why)
{
    return { Text::tr("The capture could not be kept in the history: %1").arg(why.message) };
}

/// Reading and writing an index of this length takes as long as all else that is left to do.
constexpr qint64 maxIndexBytes = 256 * 1024;
/// So many captures may wait to be taken into a long index.
constexpr int maxWaiting = 24;

bool costsTooMuchNow(const HistoryStore &files)
{
    const HistoryMailbox mailbox(files.directory);
    const QFileInfo index(QDir(files.directory).filePath(QLatin1StringView(HistoryFolder::indexName)));
    return index.size() > maxIndexBytes && QDir(mailbox.path()).entryList(QDir::Dirs).size() < maxWaiting;
}

Outcome leave(const TessalyDocument::Package &package, const HistoryEntry &entry, const HistoryStore &files)
{
    const Outcome made = files.makeFolder();
    const Outcome posted = made ? HistoryMailbox(files.directory).postPut(package, entry) : made;
    return posted ? posted : notKept(posted.failure());
}

/// Where no Tessaly runs that would do so, what has expired goes.
Outcome put(
    const TessalyDocument::Package &package, const HistoryEntry &entry, int retentionDays, const HistoryStore &files)
{
    HistoryKeeper keeper(files);
    if (Outcome put = keeper.put(package, entry); !put)
        return notKept(put.failure());
    if (keeper.role() == HistoryKeeper::Role::Guest)
        return Done {};
    const auto expired = HistoryPruning::expired(keeper.entries(), retentionDays, entry.created, {});
    if (const Outcome removed = keeper.remove(expired); !removed)
        return Failure {
            Text::tr("Expired captures could not be deleted from the history: %1").arg(removed.failure().message)
        };
    return Done {};
}

} // namespace

CaptureRecording::CaptureRecording(RasterImage picture, std::optional<QByteArray> png) :
    m_picture(std::move(picture)),
    m_isLeft(costsTooMuchNow(HistoryAccess::files()))
{
    auto makeParts = [picture = m_picture, png = std::move(png), withThumbnail = !m_isLeft]() mutable {
        Parts parts { png ? Result(std::move(*png)) : encodeImage(picture, ExportFormat::Png, {}), {} };
        if (withThumbnail)
            parts.thumbnailPng = TessalyDocument::thumbnailPng(picture);
        return parts;
    };
    m_parts = std::async(std::launch::async, std::move(makeParts));
}

Outcome CaptureRecording::finish(int retentionDays)
{
    Parts parts = m_parts.get();
    if (!parts.png)
        return notKept(parts.png.failure());
    const auto made = package(m_picture, std::move(*parts.png), std::move(parts.thumbnailPng));
    if (!made)
        return notKept(made.failure());
    const InterruptionGuard guard;
    const HistoryStore files = HistoryAccess::files();
    const HistoryEntry entry = newEntry(m_picture);
    return m_isLeft ? leave(*made, entry, files) : put(*made, entry, retentionDays, files);
}

} // namespace tessaly
