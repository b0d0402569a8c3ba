// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/ThumbnailPicture.h"

#include "core/Imaging/Resampling.h"

#include <QPainter>

namespace tessaly {

ThumbnailFit ThumbnailFit::of(const RasterImage &image, QSize frame, double pixelsPerPoint)
{
    constexpr double leastShortSide = 40; // points
    const QSizeF whole = image.pointSize;
    const double shortSide = std::min(whole.width(), whole.height());
    const double fitting = std::min(frame.width() / whole.width(), frame.height() / whole.height());
    const double scale = std::min(1.0, std::max(fitting, leastShortSide / shortSide));
    const QSizeF seen = whole.boundedTo(QSizeF(frame) / scale); // of the picture, in its points
    const double pixelsX = image.pixelSize().width() / whole.width();
    const double pixelsY = image.pixelSize().height() / whole.height();
    const auto wholePixels
        = [](double width, double height) { return QSize(std::max(1, qRound(width)), std::max(1, qRound(height))); };
    const QSize source = wholePixels(seen.width() * pixelsX, seen.height() * pixelsY);
    const double toDevice = scale * pixelsPerPoint;
    return { QRect(QPoint(), source.boundedTo(image.pixelSize())),
        wholePixels(seen.width() * toDevice, seen.height() * toDevice) };
}

QImage thumbnailPicture(const RasterImage &image, QSize frame, double pixelsPerPoint, const QColor &background)
{
    QImage picture((QSizeF(frame) * pixelsPerPoint).toSize(), QImage::Format_RGB32);
    picture.fill(background);
    const ThumbnailFit fit = ThumbnailFit::of(image, frame, pixelsPerPoint);
    const bool all = fit.pixelSource == image.pixels.rect();
    const QImage scaled = resampled(all ? image.pixels : image.pixels.copy(fit.pixelSource), fit.pixelTarget);
    QPainter(&picture).drawImage(
        (picture.width() - scaled.width()) / 2, (picture.height() - scaled.height()) / 2, scaled);
    return picture;
}

} // namespace tessaly
