// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/QuickAccessStack.h"

#include "core/Preferences/Settings.h"

namespace tessaly {

QuickAccessStack::Corner QuickAccessStack::chosenCorner(const Settings &settings)
{
    return settings.value(SettingKeys::quickAccessCorner) == u"bottomLeft" ? Corner::BottomLeft : Corner::BottomRight;
}

QList<QRect> QuickAccessStack::places(const QList<QSize> &sizes, const QRect &area, Corner corner)
{
    const QRect room = area.adjusted(distanceFromEdges, distanceFromEdges, -distanceFromEdges, -distanceFromEdges);
    QList<QRect> places;
    int below = room.bottom() + 1;
    int inward = 0; // of the present column
    int columnWidth = 0;
    for (const QSize &size : sizes) {
        if (columnWidth > 0 && below - size.height() < room.top()) {
            inward += columnWidth + spacing;
            columnWidth = 0;
            below = room.bottom() + 1;
        }
        if (!places.isEmpty() && inward + size.width() > room.width())
            break;
        const int left = corner == Corner::BottomLeft ? room.left() + inward : room.right() + 1 - inward - size.width();
        places += QRect(QPoint(left, below - size.height()), size);
        below -= size.height() + spacing;
        columnWidth = std::max(columnWidth, size.width());
    }
    return places;
}

QPoint QuickAccessStack::outside(const QRect &place, Corner corner)
{
    return place.topLeft() + QPoint(corner == Corner::BottomLeft ? -slide : slide, 0);
}

} // namespace tessaly
