// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Screen/Display.h"

namespace tessaly {

quint32 Display::id() const
{
    quint32 hash = 2166136261u;
    for (const char byte : name.toUtf8())
        hash = (hash ^ static_cast<uchar>(byte)) * 16777619u;
    return hash;
}

QRect Display::pixelsOf(const QRectF &layout) const
{
    if (layoutRect.isEmpty())
        return {};
    const double across = double(pixelSize.width()) / layoutRect.width();
    const double down = double(pixelSize.height()) / layoutRect.height();
    const QPointF topLeft = layout.topLeft() - layoutRect.topLeft();
    const QPointF bottomRight = layout.bottomRight() - layoutRect.topLeft();
    return QRect(QPoint(qRound(topLeft.x() * across), qRound(topLeft.y() * down)),
               QPoint(qRound(bottomRight.x() * across) - 1, qRound(bottomRight.y() * down) - 1))
        & pixelRect();
}

QPointF Display::layoutPoint(QPointF pixel) const
{
    return QPointF(layoutRect.x() + pixel.x() * layoutRect.width() / pixelSize.width(),
        layoutRect.y() + pixel.y() * layoutRect.height() / pixelSize.height());
}

} // namespace tessaly
