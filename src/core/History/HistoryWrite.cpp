// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryWrite.h"

#include "core/Document/PackageFolder.h"
#include "core/Export/FlattenService.h"
#include "core/Export/ImageEncoder.h"
#include "core/History/HistoryText.h"
#include "core/Imaging/PixelMemory.h"

#include <QCryptographicHash>

namespace tessaly {

namespace {

/// One core of the machine is left to what the user does meanwhile.
constexpr int threads = 1;

QByteArray hashOf(const QByteArray &bytes) { return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256); }

/// The PNG of the entry's package when it is the one that was written there; else empty.
QByteArray readBack(const QString &package, const QByteArray &hash)
{
    constexpr qint64 maxBytes = qint64(1) << 30;
    const auto png = PackageFolder::Reader(package).entry(PackageFolder::imageName, maxBytes);
    return png && hashOf(*png) == hash ? *png : QByteArray();
}

std::optional<QByteArray> thumbnail(const TessalyDocument::Source &source)
{
    const FrameComposition &finished = source.finished;
    const bool isPlain = finished.content.annotations.isEmpty() && !finished.frame && !finished.watermark;
    const auto picture = isPlain ? std::optional(finished.image) : FlattenService::flatten(finished, threads);
    return picture ? TessalyDocument::thumbnailPng(*picture, threads) : std::nullopt;
}

} // namespace

TessalyDocument::Source HistoryWrite::sourceOf(const RasterImage &image)
{
    TessalyDocument::Source source;
    source.document.canvasSize = image.pointSize;
    source.document.pixelSize = QSizeF(image.pixelSize());
    source.document.generator = TessalyDocument::generator();
    source.finished.image = image;
    return source;
}

Result<QByteArray> HistoryWrite::imagePng(const HistoryStore &files) const
{
    const RasterImage &image = source.finished.image;
    if (stored->is(image) && !stored->pngHash.isEmpty()) {
        QByteArray png = readBack(files.packagePath(id), stored->pngHash);
        if (!png.isEmpty())
            return png;
    }
    return encodeImage(image, ExportFormat::Png, { .threads = threads });
}

/// The entry as it will be.
HistoryEntry HistoryWrite::entryAfter(const QList<HistoryEntry> &entries) const
{
    HistoryEntry entry { .id = id, .created = created };
    const auto known = std::ranges::find(entries, id, &HistoryEntry::id);
    if (known != entries.end())
        entry = *known;
    const QSize pixelSize = source.finished.image.pixelSize();
    entry.title = title;
    entry.modified = moment;
    entry.pixelWidth = pixelSize.width();
    entry.pixelHeight = pixelSize.height();
    return entry;
}

Outcome HistoryWrite::perform(HistoryKeeper &keeper) const
{
    Outcome put = putInto(keeper);
    PixelMemory::giveBack();
    return put;
}

Outcome HistoryWrite::putInto(HistoryKeeper &keeper) const
{
    auto png = imagePng(keeper.files());
    if (!png)
        return png.failure();
    const QByteArray hash = hashOf(*png);
    const auto package = TessalyDocument::package(source.document, std::move(*png), thumbnail(source));
    if (!package)
        return package.failure();
    const RasterImage &image = source.finished.image;
    HistoryEntry entry = entryAfter(keeper.entries());
    auto read = HistoryText::pictureOf(entry.recognizedText);
    // The marker comes first, so that a picture that lies on the disk is read, whenever the program ends. What was read
    // in the picture before stays until then; without a marker a missing text says the same.
    const bool isKeeper = keeper.role() == HistoryKeeper::Role::Keeper;
    if (!stored->is(image) && willBeRead && isKeeper && !keeper.files().markRecognizing(id))
        read.reset();
    entry.recognizedText
        = HistoryText::joined(read, HistoryText::ofMarks(source.document.annotations, source.document.watermark));
    Outcome put = keeper.put(*package, entry);
    if (put)
        *stored = { image.pixels.cacheKey(), image.pointSize, hash };
    return put;
}

bool WaitingWrite::put(HistoryWrite write)
{
    const std::lock_guard lock(m_mutex);
    return !std::exchange(m_write, std::move(write)).has_value();
}

std::optional<HistoryWrite> WaitingWrite::take()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_write, std::nullopt);
}

} // namespace tessaly
