// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QString>

namespace tessaly {

/// One monitor of the desktop.
///
/// Places on the desktop are in layout units: device pixels on X11, points on Wayland, where monitors of different
/// scale share no pixel grid. Everything that is to be exact is in the device pixels of one monitor, origin at its top
/// left.
struct Display {
    QString name; ///< as the desktop calls it ("eDP-1"); no two have the same
    QRect layoutRect; ///< its place on the desktop, in layout units
    QSize pixelSize;
    double scale = 1; ///< device pixels per point
    bool primary = false;

    /// A number for the name, the same after a restart: 32-bit FNV-1a of its UTF-8.
    quint32 id() const;
    QSizeF pointSize() const { return QSizeF(pixelSize) / scale; }
    /// The part of a rectangle of the desktop that lies on this monitor, in its device pixels; empty for none.
    QRect pixelsOf(const QRectF &layout) const;
    /// A point of this monitor, in its device pixels, as a place on the desktop.
    QPointF layoutPoint(QPointF pixel) const;
    QRect pixelRect() const { return QRect(QPoint(), pixelSize); }

    bool operator==(const Display &) const = default;
};

} // namespace tessaly
