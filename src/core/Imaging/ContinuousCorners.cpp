// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ContinuousCorners.h"

namespace tessaly {

QPainterPath continuousCornerPath(const QRectF &rect, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

} // namespace tessaly
