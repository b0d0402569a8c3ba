// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/TessalyDocument.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Base/Parallel.h"
#include "core/Document/PackageFolder.h"
#include "core/Export/FlattenService.h"
#include "core/Export/ImageEncoder.h"
#include "core/Rendering/PictureScaling.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

#include <cmath>
#include <limits>

namespace tessaly::TessalyDocument {

namespace {

/// A PNG is hardly ever longer than its pixels at 4 bytes each.
qint64 maxPngBytes(const ImageReadOptions &options) { return options.maxPixels * 4 + (1 << 20); }

Failure damaged(const QString &detail) { return { .kind = FailureKind::Damaged, .detail = detail }; }

AnnotationDocument documentOf(const AnnotationStore &store)
{
    AnnotationDocument document;
    document.canvasSize = store.image().pointSize;
    document.annotations = store.annotations();
    document.nextStampNumber = store.nextStampNumber();
    document.pixelSize = QSizeF(store.image().pixelSize());
    document.generator = generator();
    document.frame = store.frame();
    document.watermark = store.watermark();
    return document;
}

/// The version alone, so that a document of a format that cannot be read is known to be newer. It is 1 where none can
/// be made out.
int probedVersion(const QByteArray &json)
{
    const double version = QJsonDocument::fromJson(json).object().value(u"version").toDouble(1);
    const bool whole = std::trunc(version) == version && std::abs(version) <= std::numeric_limits<int>::max();
    return whole ? static_cast<int>(version) : 1;
}

/// Whether a canvas can belong to a picture of these pixels; an absurd one would be drawn at an absurd size.
bool isUsable(QSizeF canvas, QSize pixels)
{
    const auto plausible = [](double pixelLength, double length) {
        return length > 0 && pixelLength / length >= 0.01 && pixelLength / length <= 100;
    };
    return plausible(pixels.width(), canvas.width()) && plausible(pixels.height(), canvas.height());
}

Result<AnnotationDocument, Failure> decodedDocument(const QByteArray &json)
{
    auto document = AnnotationDocument::decoded(json);
    if (document)
        return std::move(*document);
    const int version = probedVersion(json);
    if (version > AnnotationDocument::currentVersion)
        return Failure { .kind = FailureKind::NewerVersion, .version = version };
    return damaged(document.failure().message);
}

} // namespace

QString Failure::description() const
{
    if (kind == FailureKind::NewerVersion)
        return QCoreApplication::translate(
            "TessalyDocument", "This document was created with a newer version of Tessaly. Update Tessaly to open it.");
    return QCoreApplication::translate("TessalyDocument", "The document is damaged or incomplete.");
}

Source source(const AnnotationStore &store) { return { documentOf(store), FlattenService::composition(store) }; }

Result<Package, Failure> package(const AnnotationStore &store) { return package(source(store)); }

Result<Package, Failure> package(const Source &source)
{
    auto imagePng = encodeImage(source.finished.image, ExportFormat::Png, {});
    if (!imagePng)
        return damaged(imagePng.failure().message);
    const auto finished = FlattenService::flatten(source.finished);
    auto thumbnail = finished ? thumbnailPng(*finished) : std::nullopt;
    auto made = package(source.document, std::move(*imagePng), std::move(thumbnail));
    if (!made)
        return damaged(made.failure().message);
    return std::move(*made);
}

Result<Package> package(const AnnotationDocument &document, QByteArray imagePng, std::optional<QByteArray> thumbnailPng)
{
    auto json = document.encoded();
    if (!json)
        return json.failure();
    return Package { std::move(*json), std::move(imagePng), std::move(thumbnailPng) };
}

QList<SafeFile::Entry> entries(const Package &package)
{
    QList<SafeFile::Entry> files {
        { QLatin1StringView(PackageFolder::documentName), package.documentJson },
        { QLatin1StringView(PackageFolder::imageName), package.imagePng },
    };
    if (package.thumbnailPng)
        files.append({ QLatin1StringView(PackageFolder::thumbnailName), *package.thumbnailPng });
    return files;
}

Outcome write(const Package &package, const QString &path)
{
    if (QFileInfo(path).isDir() && !PackageFolder::isReplaceable(path))
        return tessaly::Failure { QCoreApplication::translate(
            "TessalyDocument", "%1 could not be written: a folder stands there that is not a Tessaly document.")
                                      .arg(path) };
    return SafeFile::writeFolder(path, entries(package));
}

bool isDocument(const QString &path)
{
    return QFileInfo(QDir::cleanPath(path)).suffix() == u"tessaly" || PackageFolder::holdsPackage(path);
}

Result<Contents, Failure> contents(const QString &path, const ImageReadOptions &options)
{
    const PackageFolder::Reader folder(path);
    const auto json = folder.entry(PackageFolder::documentName, AnnotationDocument::maxJsonBytes);
    if (!json)
        return damaged(json.failure().message);
    const auto png = folder.entry(PackageFolder::imageName, maxPngBytes(options));
    if (!png)
        return damaged(png.failure().message);
    auto document = decodedDocument(*json);
    if (!document)
        return document.failure();
    ImageReadOptions pixels = options;
    pixels.pixelsPerPoint = 1;
    auto image = readImage(*png, QLatin1StringView(PackageFolder::imageName), pixels);
    if (!image)
        return damaged(image.failure().message);
    if (isUsable(document->canvasSize, image->pixelSize()))
        image->pointSize = document->canvasSize;
    return Contents { std::move(*document), std::move(*image) };
}

QString generator()
{
    const auto orUnknown = [](const char *text) { return *text ? QString::fromLatin1(text) : QStringLiteral("?"); };
    return QStringLiteral("Tessaly %1 (%2)").arg(orUnknown(TESSALY_VERSION), orUnknown(TESSALY_BUILD_NUMBER));
}

std::optional<QByteArray> thumbnailPng(const RasterImage &image, int threads)
{
    constexpr double longestSide = 1024;
    if (image.pixels.isNull())
        return std::nullopt;
    const QSize size = image.pixelSize();
    const double scale = std::min(longestSide / std::max(size.width(), size.height()), 1.0);
    const auto scaled = [scale](int length) { return std::max(static_cast<int>(std::lround(length * scale)), 1); };
    QImage small(scaled(size.width()), scaled(size.height()), image.pixels.format());
    if (small.isNull())
        return std::nullopt;
    // Not by QImage, which takes threads of its own.
    PictureScaling(image.pixels, small.size())
        .paint(small.rect(), small, {}, threads > 0 ? threads : Parallel::defaultThreadCount());
    auto png = encodeImage(RasterImage::fromPixels(small), ExportFormat::Png, { .threads = threads });
    return png ? std::optional(std::move(*png)) : std::nullopt;
}

} // namespace tessaly::TessalyDocument
