// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/FrameComposition.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/ContinuousCorners.h"
#include "core/Imaging/PixelMemory.h"
#include "core/Rendering/FrameBackground.h"
#include "core/Rendering/FrameShadow.h"
#include "core/Rendering/PictureCaches.h"
#include "core/Rendering/PixelBlend.h"
#include "core/Rendering/WatermarkPainter.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

/// Empty where there is nothing to draw, or more than a picture may hold.
QSize pixelsOf(QSizeF points, double scale)
{
    const double width = std::round(points.width() * scale), height = std::round(points.height() * scale);
    if (!(width >= 1 && height >= 1 && width * height <= double(maxPicturePixels)))
        return {};
    return { static_cast<int>(width), static_cast<int>(height) };
}

/// Calls `paint(view, rows)` for every band: an object of its own over the same pixels, and the rows to paint.
template <class Paint>
void inBands(QImage &image, int threads, Paint paint)
{
    constexpr int rowsInBand = 128;
    uchar *bits = image.bits();
    const int bands = (image.height() + rowsInBand - 1) / rowsInBand;
    Parallel::inBands(image.height(), bands, threads, [&](int first, int end) {
        QImage view(bits, image.width(), image.height(), image.bytesPerLine(), image.format());
        paint(view, QRect(0, first, image.width(), end - first));
    });
}

QImage framed(
    const FrameComposition &composition, const FrameStyle &frame, const QImage &content, double scale, int threads)
{
    const FrameLayout &layout = composition.layout;
    using Checkerboard = FrameBackground::Checkerboard;
    const FrameBackground background(
        frame, layout.canvasSize, composition.forEditor ? std::optional(Checkerboard()) : std::nullopt);
    const FrameLayout::Shadow shadow = FrameLayout::shadowMetrics(frame, layout);
    const QPoint origin = (layout.imageOrigin * scale).toPoint();
    const double cornerRadius = frame.cornerRadius * scale;
    const QPainterPath shape = continuousCornerPath(QRectF(content.rect()), cornerRadius);
    const FrameShadow soft(content, shape, cornerRadius, shadow.radius * scale);
    const QPoint shadowOrigin = origin + QPoint(0, static_cast<int>(std::lround(shadow.yOffset * scale)));

    const QSize size = pixelsOf(layout.canvasSize, scale);
    QImage canvas = PixelMemory::allocate(
        size, background.isOpaque() ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (canvas.isNull())
        return {};
    const CoverageMask rounded(shape.translated(origin), canvas.rect());
    inBands(canvas, threads, [&](QImage &view, const QRect &rows) {
        background.paint(view, rows, scale);
        soft.blend(view, rows, shadowOrigin, shadow.opacity);
        PixelBlend::fill(view, rows, rounded, content, origin, PixelBlend::Mode::Over);
    });
    return canvas;
}

} // namespace

QImage FrameComposition::rendered(double scale, int threads) const
{
    const QSize size = pixelsOf(layout.canvasSize, scale), contentSize = pixelsOf(layout.imageSize, scale);
    if (size.isEmpty() || contentSize.isEmpty() || image.isEmpty())
        return {};
    QImage picture = content.drawnOver(image, contentSize, scale, threads);
    if (frame && !picture.isNull())
        picture = framed(*this, frame->drawable(), picture, scale, threads);
    if (!watermark || picture.isNull())
        return picture;
    PreparedMark mark = prepareWatermark(watermark->drawable(), layout.canvasSize, scale);
    if (mark.steps.empty())
        return picture;
    const PixelGrid grid = PixelGrid::scaledBy(scale);
    qint64 budget = maxPicturePixels;
    mark.fitPictures(grid, picture.rect(), budget);
    mark.fitShapes(grid, picture.rect());
    inBands(picture, threads, [&](QImage &view, const QRect &rows) { paint(mark, { view, rows, grid }); });
    return picture;
}

} // namespace tessaly
