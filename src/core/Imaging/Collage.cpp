// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/Collage.h"

#include "core/Imaging/PixelMemory.h"
#include "core/Imaging/Resampling.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace tessaly::Collage {

namespace {

bool isUsable(const RasterImage &image)
{
    const QSizeF size = image.pointSize;
    return !image.isEmpty() && std::isfinite(size.width()) && std::isfinite(size.height());
}

double across(QSizeF size, CollageLayout layout)
{
    return layout == CollageLayout::SideBySide ? size.height() : size.width();
}

double along(QSizeF size, CollageLayout layout) { return across(size.transposed(), layout); }

/// The pixel line that an edge falls on. What is half a pixel but for the error of the sums is still half a pixel.
double pixelEdge(double points, double scale) { return std::floor(points * scale + 0.5 + 1e-6); }

/// Where everything is drawn, in pixels.
struct Plan {
    double scale = 1; ///< pixels per point
    QSize size;
    std::vector<QRect> places; ///< of the pictures, in their order; at least one pixel wide and high
};

QRect placed(CollageLayout layout, int start, int length, int breadth)
{
    return layout == CollageLayout::SideBySide ? QRect(start, 0, length, breadth) : QRect(0, start, breadth, length);
}

/// The plan at this scale; empty when it has too many pixels.
std::optional<Plan> planned(
    const QList<QSizeF> &sizes, CollageLayout layout, double gap, double scale, qint64 maxPixels)
{
    constexpr double maxSide = 1 << 28; // so that all places are whole numbers
    double shared = 0;
    for (const QSizeF size : sizes)
        shared = std::max(shared, across(size, layout));
    shared = std::min(shared, maxSharedLength);
    const double breadth = std::max(pixelEdge(shared, scale), 1.0);
    if (!(breadth <= maxSide))
        return std::nullopt;
    const double maxLength = std::min(double(maxPixels) / breadth, maxSide);
    Plan plan { scale, {}, {} };
    double position = 0, end = 0;
    for (const QSizeF size : sizes) {
        const double start = pixelEdge(position, scale);
        position += along(size, layout) * (shared / across(size, layout));
        end = std::max(pixelEdge(position, scale), start + 1);
        position += gap;
        if (!(end <= maxLength)) // so also for what is not a number
            return std::nullopt;
        plan.places.push_back(placed(layout, int(start), int(end - start), int(breadth)));
    }
    plan.size = placed(layout, 0, int(end), int(breadth)).size();
    return plan;
}

/// At the finest of the pictures' scales at which the collage has no more than the allowed pixels: so as few of the
/// pictures as can be lose any.
std::optional<Plan> planned(const QList<RasterImage> &images, CollageLayout layout, double gap, qint64 maxPixels)
{
    QList<QSizeF> sizes;
    std::vector<double> scales { 1 };
    for (const RasterImage &image : images) {
        sizes += image.pointSize;
        scales.push_back(image.pixelScale());
    }
    std::ranges::sort(scales, std::greater());
    for (const double scale : scales) {
        if (auto plan = planned(sizes, layout, gap, scale, maxPixels))
            return plan;
    }
    return std::nullopt;
}

/// A premultiplied pixel over another.
QRgb over(QRgb source, QRgb target)
{
    const int rest = 255 - qAlpha(source);
    const auto mixed = [rest](int from, int below) { return from + (below * rest + 127) / 255; };
    return qRgba(mixed(qRed(source), qRed(target)), mixed(qGreen(source), qGreen(target)),
        mixed(qBlue(source), qBlue(target)), mixed(qAlpha(source), qAlpha(target)));
}

/// Qt's painter ends at pixel 32767, which a row of many pictures goes beyond.
void draw(const QImage &picture, QPoint at, QImage &canvas)
{
    const bool opaque = picture.format() == QImage::Format_RGB32;
    const auto width = size_t(picture.width());
    for (int y = 0; y < picture.height(); ++y) {
        const auto *source = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        auto *target = reinterpret_cast<QRgb *>(canvas.scanLine(at.y() + y)) + at.x();
        if (opaque)
            std::memcpy(target, source, width * sizeof(QRgb));
        else
            std::transform(source, source + width, target, target, over);
    }
}

} // namespace

std::optional<RasterImage> combine(const QList<RasterImage> &images, CollageLayout layout, double gap,
    const QColor &background, qint64 maxPixels, const Cancellation &cancellation, int threads)
{
    QList<RasterImage> usable;
    std::ranges::copy_if(images, std::back_inserter(usable), isUsable);
    const double distance = std::isfinite(gap) ? std::max(gap, 0.0) : 0;
    const auto plan = usable.isEmpty() ? std::nullopt : planned(usable, layout, distance, maxPixels);
    if (!plan)
        return std::nullopt;
    const bool opaque = background.alpha() == 255;
    QImage canvas
        = PixelMemory::allocate(plan->size, opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (canvas.isNull())
        return std::nullopt;
    canvas.fill(background);
    for (qsizetype index = 0; index < usable.size(); ++index) {
        const QRect place = plan->places[size_t(index)];
        const QImage scaled = resampled(usable[index].pixels, place.size(), threads, cancellation);
        if (scaled.isNull())
            return std::nullopt;
        draw(scaled, place.topLeft(), canvas);
    }
    return RasterImage { std::move(canvas), QSizeF(plan->size) / plan->scale };
}

} // namespace tessaly::Collage
