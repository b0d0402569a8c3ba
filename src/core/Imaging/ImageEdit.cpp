// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ImageEdit.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"
#include "core/Imaging/Resampling.h"
#include "core/Imaging/Sharpening.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tessaly {

namespace {

/// The most pixels that a picture may be enlarged to: as many as a file may have that is opened.
constexpr qint64 maxPixels = qint64(512) * 1024 * 1024 / 4;

QSizeF pointsPerPixel(const RasterImage &image)
{
    return { image.pointSize.width() / image.pixels.width(), image.pointSize.height() / image.pixels.height() };
}

/// The whole pixel nearest to a place, within 0 … length; a place that is no number is 0.
int pixelEdge(double points, double pointsPerPixel, int length)
{
    const double place = points / pointsPerPixel;
    return std::isnan(place) ? 0 : static_cast<int>(std::lround(std::clamp(place, 0.0, double(length))));
}

std::optional<RasterImage> withPixels(QImage pixels, const RasterImage &before)
{
    if (pixels.isNull())
        return std::nullopt;
    const QSizeF scale = pointsPerPixel(before);
    const QSizeF points(pixels.width() * scale.width(), pixels.height() * scale.height());
    return RasterImage { std::move(pixels), points };
}

std::optional<RasterImage> cropped(const RasterImage &image, const QRectF &points)
{
    const QRect area = croppedPixels(image, points);
    if (area.isEmpty())
        return std::nullopt;
    if (area == image.pixels.rect())
        return image;
    QImage target = PixelMemory::allocate(area.size(), image.pixels.format());
    if (target.isNull())
        return std::nullopt;
    for (int y = 0; y < area.height(); ++y) {
        const uchar *from = image.pixels.constScanLine(area.y() + y) + area.x() * sizeof(QRgb);
        std::memcpy(target.scanLine(y), from, size_t(area.width()) * sizeof(QRgb));
    }
    return withPixels(std::move(target), image);
}

std::optional<RasterImage> resized(const RasterImage &image, QSize size, int threads, const Cancellation &cancellation)
{
    if (size.isEmpty() || qint64(size.width()) * size.height() > maxPixels)
        return std::nullopt;
    if (size == image.pixels.size())
        return image;
    return withPixels(resampled(image.pixels, size, threads, cancellation), image);
}

} // namespace

QRect croppedPixels(const RasterImage &image, const QRectF &points)
{
    if (image.isEmpty())
        return {};
    const QSizeF scale = pointsPerPixel(image);
    const QRectF box = points.normalized();
    const QSize size = image.pixels.size();
    const QPoint from(
        pixelEdge(box.left(), scale.width(), size.width()), pixelEdge(box.top(), scale.height(), size.height()));
    const QPoint to(
        pixelEdge(box.right(), scale.width(), size.width()), pixelEdge(box.bottom(), scale.height(), size.height()));
    return { from, QSize(to.x() - from.x(), to.y() - from.y()) };
}

std::optional<Orientation> ImageEdit::orientation() const
{
    switch (kind) {
    case Kind::RotateClockwise:
        return Orientation { 1, false };
    case Kind::RotateCounterclockwise:
        return Orientation { 3, false };
    case Kind::FlipHorizontal:
        return Orientation { 0, true };
    case Kind::FlipVertical:
        return Orientation { 2, true };
    case Kind::Crop:
    case Kind::Resize:
    case Kind::Sharpen:
        break;
    }
    return std::nullopt;
}

std::optional<RasterImage> applied(
    const RasterImage &image, const ImageEdit &edit, int threads, const Cancellation &cancellation)
{
    if (image.isEmpty())
        return std::nullopt;
    const int workers = threads > 0 ? threads : Parallel::defaultThreadCount();
    if (const auto orientation = edit.orientation())
        return oriented(image, *orientation, workers, cancellation);
    if (edit.kind == ImageEdit::Kind::Crop)
        return cropped(image, edit.cropRect);
    if (edit.kind == ImageEdit::Kind::Resize)
        return resized(image, edit.pixelSize, workers, cancellation);
    QImage pixels = sharpened(image.pixels, edit.amount, workers, cancellation);
    return pixels.isNull() ? std::nullopt : std::optional(RasterImage { std::move(pixels), image.pointSize });
}

} // namespace tessaly
