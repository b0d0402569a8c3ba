// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ImageEffects.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/GaussianBlur.h"
#include "core/Imaging/Pixelation.h"
#include "core/Imaging/RectangleShadow.h"

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>

namespace tessaly::ImageEffects {

namespace {

constexpr double smallestStrength = 0.05;

/// Beyond it one cell, or one blur, has long taken in every picture.
constexpr double largestStrength = 1e6;

/// What is not a number hides as usual.
double usableStrength(double strength)
{
    return std::isnan(strength) ? 1 : std::clamp(strength, smallestStrength, largestStrength);
}

/// Starting a thread costs about as much as 50 000 pixels.
int threadsFor(QSize size)
{
    constexpr qint64 fewPixels = 100'000;
    return qint64(size.width()) * size.height() < fewPixels ? 1 : Parallel::defaultThreadCount();
}

/// The same pixels in one of the two formats that the effects know.
QImage inKnownFormat(const QImage &image)
{
    if (image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32_Premultiplied)
        return image;
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

/// A picture with transparency laid over the middle of the noise's greys, opaque: drawn over what it hides, a
/// translucent one would let it through.
QImage onGrey(QImage image)
{
    if (!image.hasAlphaChannel())
        return image;
    for (int y = 0; y < image.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int grey = (255 - qAlpha(row[x]) + 1) / 2;
            const auto over = [grey](int component) { return std::min(component + grey, 255); };
            row[x] = qRgb(over(qRed(row[x])), over(qGreen(row[x])), over(qBlue(row[x])));
        }
    }
    image.reinterpretAsFormat(QImage::Format_RGB32);
    return image;
}

} // namespace

NoiseSeed NoiseSeed::random() { return { QRandomGenerator::system()->generate64() }; }

double pixelCellSide(QSize pixelRegion, double strength, double pixelsPerPoint)
{
    constexpr double fewestCells = 2.5, mostPointsOfSide = 14, usualCells = 12, smallestSide = 6;
    const double factor = usableStrength(strength);
    const double scale = pixelsPerPoint > 0 ? std::min(pixelsPerPoint, largestStrength) : 1;
    const double smallerSide = std::max(std::min(pixelRegion.width(), pixelRegion.height()), 0);
    const double floorSide = std::min(smallerSide / fewestCells, scale * mostPointsOfSide) * std::max(factor, 1.0);
    return std::max({ floorSide, smallerSide / usualCells * factor, smallestSide });
}

QImage pixelated(const QImage &region, double strength, double pixelsPerPoint, NoiseSeed seed)
{
    if (region.isNull())
        return {};
    const double side = pixelCellSide(region.size(), strength, pixelsPerPoint);
    return Pixelation::pixelated(inKnownFormat(region), side, seed, threadsFor(region.size()));
}

QImage obscuringBlur(const QImage &region, double strength)
{
    constexpr double radiusPerSide = 0.125, smallestRadius = 6;
    if (region.isNull())
        return {};
    // The longer side: a line of text is flat, and by its height the blur would leave it readable.
    const double side = std::max(region.width(), region.height());
    const double radius = std::max(usableStrength(strength) * side * radiusPerSide, smallestRadius);
    return onGrey(GaussianBlur::blurred(inKnownFormat(region), radius, GaussianBlur::Outside::Edge,
        GaussianBlur::Precision::Hiding, threadsFor(region.size())));
}

QImage gaussianBlur(const QImage &image, double pixelRadius)
{
    return GaussianBlur::blurred(inKnownFormat(image), pixelRadius, GaussianBlur::Outside::Edge,
        GaussianBlur::Precision::Picture, threadsFor(image.size()));
}

QImage rectangleShadow(QSize pixelSize, const QRectF &pixelRect, double pixelRadius)
{
    return RectangleShadow::coverage(pixelSize, pixelRect, pixelRadius);
}

QImage shapedShadow(const QImage &coverage, double pixelRadius)
{
    const bool known = coverage.format() == QImage::Format_Grayscale8 || coverage.format() == QImage::Format_Alpha8;
    return GaussianBlur::blurred(known ? coverage : coverage.convertToFormat(QImage::Format_Alpha8), pixelRadius,
        GaussianBlur::Outside::Nothing, GaussianBlur::Precision::Picture, threadsFor(coverage.size()));
}

} // namespace tessaly::ImageEffects
