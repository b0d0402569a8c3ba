// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/CropGeometry.h"

#include <QtMath>

#include <algorithm>

namespace tessaly::CropGeometry {

QRectF movedInside(QRectF rect, const QRectF &bounds)
{
    rect.moveLeft(std::max(bounds.left(), std::min(rect.left(), bounds.right() - rect.width())));
    rect.moveTop(std::max(bounds.top(), std::min(rect.top(), bounds.bottom() - rect.height())));
    return rect;
}

QRectF withRatio(const QRectF &rect, double ratio, const QRectF &bounds)
{
    const double area = rect.width() * rect.height();
    QSizeF size(std::sqrt(area * ratio), std::sqrt(area / ratio));
    if (size.width() > bounds.width() || size.height() > bounds.height())
        size.scale(bounds.size(), Qt::KeepAspectRatio);
    QRectF result({}, size);
    result.moveCenter(rect.center());
    return movedInside(result, bounds);
}

QRectF onPixels(const QRectF &rect, double pixelScale, QSize pixels)
{
    const auto rounded = [](double length, int most) { return std::clamp(qRound(length), 1, std::max(most, 1)); };
    const QSize size(
        rounded(rect.width() * pixelScale, pixels.width()), rounded(rect.height() * pixelScale, pixels.height()));
    const QPoint corner(qRound(rect.left() * pixelScale), qRound(rect.top() * pixelScale));
    const QRectF inside = movedInside(QRectF(corner, size), QRectF({}, pixels));
    return { inside.topLeft() / pixelScale, inside.size() / pixelScale };
}

} // namespace tessaly::CropGeometry
