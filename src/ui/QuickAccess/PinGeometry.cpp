// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/PinGeometry.h"

#include "core/Imaging/CropGeometry.h"

#include <cmath>

namespace tessaly {

int PinGeometry::edgePixels(double pixelsPerPoint) { return std::max(1, qRound(pixelsPerPoint)); }

QSize PinGeometry::shownPixels(QSizeF points, double pixelsPerPoint)
{
    return (points * pixelsPerPoint).toSize().expandedTo({ 1, 1 });
}

QSize PinGeometry::windowSize(QSize pixels, double pixelsPerPoint)
{
    const int edges = 2 * edgePixels(pixelsPerPoint);
    const auto points = [&](int side) { return static_cast<int>(std::ceil((side + edges) / pixelsPerPoint)); };
    return { points(pixels.width()), points(pixels.height()) };
}

double PinGeometry::clampedZoom(double zoom, QSizeF pointSize, QSize screen)
{
    constexpr double leastSide = 48;
    constexpr double mostZoom = 16;
    const double least = std::min(1.0, leastSide / std::max(pointSize.width(), pointSize.height()));
    const double fitting = std::min(screen.width() / pointSize.width(), screen.height() / pointSize.height());
    return std::clamp(zoom, least, std::max(1.0, std::min(fitting, mostZoom)));
}

double PinGeometry::initialZoom(QSizeF pointSize, QSize area)
{
    constexpr double share = 0.6;
    const double fitting = share * std::min(area.width() / pointSize.width(), area.height() / pointSize.height());
    return clampedZoom(std::min(1.0, fitting), pointSize, area);
}

QRect PinGeometry::initialPlace(QSize size, const std::optional<QRect> &near, const QRect &area)
{
    QRect place(QPoint(), size);
    place.moveCenter(near ? near->center() : area.center());
    return CropGeometry::movedInside(place, area).toRect();
}

QRect PinGeometry::cascaded(const QRect &place, const QList<QPoint> &taken, const QRect &area)
{
    for (const int step : { 24, -24 }) {
        for (QRect next = place; area.contains(next); next.translate(step, step)) {
            if (!taken.contains(next.topLeft()))
                return next;
        }
    }
    return place;
}

QRect PinGeometry::resizedAbout(const QRect &place, QSize size, QPointF fixed)
{
    const QPointF corner(fixed.x() * (1 - double(size.width()) / place.width()),
        fixed.y() * (1 - double(size.height()) / place.height()));
    return { place.topLeft() + corner.toPoint(), size };
}

QRect PinGeometry::withinReach(QRect place, const QRect &bounds)
{
    constexpr int strip = 32;
    const QSize hidden = (place.size() - QSize(strip, strip)).expandedTo({ 0, 0 });
    const QRect reach = bounds.adjusted(-hidden.width(), -hidden.height(), hidden.width(), hidden.height());
    return CropGeometry::movedInside(place, reach).toRect();
}

} // namespace tessaly
