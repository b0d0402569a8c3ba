// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/ScaledPicture.h"

#include "core/Rendering/PixelGrid.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

bool PixelBudget::take(QSize size)
{
    const qint64 wanted = qint64(size.width()) * size.height();
    if (wanted > pixels)
        return false;
    pixels -= wanted;
    return true;
}

/// Cuts off whole pixels of the picture that lie outside `paintable`.
static void cutTo(const QRectF &paintable, PictureStep &step, PixelBudget &budget)
{
    if (paintable.contains(step.target))
        return;
    const double across = step.picture.width() / step.target.width();
    const double down = step.picture.height() / step.target.height();
    const QRectF seen = step.target.intersected(paintable).translated(-step.target.topLeft());
    const QRect pixels
        = outwardRect({ seen.x() * across, seen.y() * down, seen.width() * across, seen.height() * down })
              .intersected(step.picture.rect());
    if (!budget.take(pixels.size()))
        return;
    step.target = { step.target.x() + pixels.x() / across, step.target.y() + pixels.y() / down, pixels.width() / across,
        pixels.height() / down };
    step.picture = step.picture.copy(pixels);
}

PictureStep pictureFor(
    const QImage &picture, const QRectF &target, double pixelsPerPoint, const QRectF &paintable, PixelBudget &budget)
{
    PictureStep step { picture, target };
    cutTo(paintable, step, budget);
    const auto shownPixels = [&](double points) { return std::max(int(std::ceil(points * pixelsPerPoint)), 1); };
    const QSize shown(shownPixels(step.target.width()), shownPixels(step.target.height()));
    constexpr double painterManages = 1.25; // a bilinear painter loses nothing worth seeing up to here
    const bool tooFine = step.picture.width() > shown.width() * painterManages
        || step.picture.height() > shown.height() * painterManages;
    if (tooFine && !step.picture.isNull() && budget.take(shown)) {
        step.picture = step.picture.scaled(std::min(shown.width(), step.picture.width()),
            std::min(shown.height(), step.picture.height()), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return step;
}

} // namespace tessaly
