// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>
#include <QRectF>

namespace tessaly {

/// A closed rectangle path whose corners bend continuously: each is a superellipse arc, which has no sudden change of
/// curvature where it meets the straight side. `radius` is that of the circle it reads as; it is limited so that the
/// corners fit the shorter side, and a radius of 0 or less gives the plain rectangle.
QPainterPath continuousCornerPath(const QRectF &rect, double radius);

} // namespace tessaly
