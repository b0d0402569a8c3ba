// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRect>
#include <QSizeF>

#include <optional>

/// Sizes and places of pinned screenshots. Points unless a name says pixels; a zoom of 1 is the picture's point size.
namespace tessaly::PinGeometry {

/// The width of the line round a pin, in device pixels: a point, but never less than a pixel.
int edgePixels(double pixelsPerPoint);

/// A picture of that many points in the pixels of a screen.
QSize shownPixels(QSizeF points, double pixelsPerPoint);

/// The window around a picture of that many pixels. On a screen with a broken scale it may be a pixel too large.
QSize windowSize(QSize pixels, double pixelsPerPoint);

/// The zoom within its limits: the longer side has 48 points at least, the picture fits on the screen and is at most
/// 16 times its size; but its own size is always allowed.
double clampedZoom(double zoom, QSizeF pointSize, QSize screen);

/// The zoom of a new pin: its own size, or what takes three fifths of the area.
double initialZoom(QSizeF pointSize, QSize area);

/// A window of that size about the middle of `near`, or of the area without it, and inside the area.
QRect initialPlace(QSize size, const std::optional<QRect> &near, const QRect &area);

/// `place`, or the next one inside the area whose top left corner is not taken: 24 points each down to the right, or,
/// where there is no room, up to the left.
QRect cascaded(const QRect &place, const QList<QPoint> &taken, const QRect &area);

/// `place` in a new size, with that point of the picture (local to the window) staying where it is.
QRect resizedAbout(const QRect &place, QSize size, QPointF fixed);

/// `place` moved until a strip of it lies inside `bounds`, so that it can be got hold of.
QRect withinReach(QRect place, const QRect &bounds);

} // namespace tessaly::PinGeometry
