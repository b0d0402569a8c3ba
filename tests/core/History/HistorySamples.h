// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/ImageEncoder.h"
#include "core/History/HistoryStore.h"
#include "tests/support/TestFiles.h"

#include <random>

/// Entries and packages for tests of the history's folder.
namespace tessaly::test {

inline QUuid sampleId(int number)
{
    return QUuid::fromString(QStringLiteral("6f1c2d3e-0000-4000-8000-%1").arg(number, 12, 10, QChar(u'0')));
}

/// Entries with higher numbers are newer.
inline HistoryEntry sampleEntry(int number, const QString &title = QStringLiteral("Screenshot"))
{
    const QDateTime created = QDateTime(QDate(2026, 1, 1), QTime(8, 0), Qt::UTC).addSecs(number * 60);
    return { .id = sampleId(number),
        .title = title,
        .created = created,
        .modified = created,
        .pixelWidth = 64,
        .pixelHeight = 48 };
}

/// Noise that each number has its own of, and that survives a PNG file.
inline QImage samplePixels(int number)
{
    std::minstd_rand random(static_cast<unsigned>(number) + 1);
    QImage image(64, 48, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, 0xff000000 | static_cast<QRgb>(random() & 0xffffff));
    }
    return image;
}

inline TessalyDocument::Package samplePackage(int number)
{
    AnnotationDocument document;
    document.canvasSize = { 64, 48 };
    document.pixelSize = QSizeF(64, 48);
    const RasterImage image = RasterImage::fromPixels(samplePixels(number));
    return *TessalyDocument::package(
        document, *encodeImage(image, ExportFormat::Png, {}), TessalyDocument::thumbnailPng(image));
}

inline QList<QUuid> idsOf(const QList<HistoryEntry> &entries)
{
    QList<QUuid> ids;
    for (const HistoryEntry &entry : entries)
        ids += entry.id;
    return ids;
}

} // namespace tessaly::test
