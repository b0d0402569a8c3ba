// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/WindowPlacement.h"

namespace tessaly::WindowPlacement {

QPoint position(QSize size, const QRect &available, std::optional<QPoint> previous)
{
    constexpr QPoint step(28, 28);
    QRect place(QPoint(), size);
    if (!previous) {
        place.moveCenter(available.center());
        return place.topLeft();
    }
    place.moveTopLeft(*previous + step);
    return available.contains(place) ? place.topLeft() : available.topLeft();
}

} // namespace tessaly::WindowPlacement
