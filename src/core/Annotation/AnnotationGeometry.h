// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>

#include <optional>

/// The arithmetic of lines and curved arrows, in image points.
namespace tessaly::AnnotationGeometry {

/// How finely curves are sampled for drawing, boxes and hits.
inline constexpr int curveSegments = 48;

/// From a point to the nearest point of the segment from–to; a segment of no length is its start.
double distance(QPointF point, QPointF from, QPointF to);

/// Where the handle of a curve from p1 to p2 lies on the canvas.
QPointF handlePoint(QPointF p1, QPointF p2, QPointF curveHandle);

/// The control point that makes the quadratic curve pass through its handle half-way.
QPointF controlPoint(QPointF p1, QPointF p2, QPointF curveHandle);

/// The handle, in the arrow's own frame, that lies at `point`; empty for an arrow without length.
std::optional<QPointF> handleAt(QPointF p1, QPointF p2, QPointF point);

/// `segments` + 1 points of the quadratic curve.
QList<QPointF> quadraticSamples(QPointF p1, QPointF control, QPointF p2, int segments);

/// The polyline without its first `start` and last `end` points of length; unchanged if they leave nothing.
QList<QPointF> trimmed(const QList<QPointF> &polyline, double start, double end);

QRectF boundingBox(const QList<QPointF> &points);

} // namespace tessaly::AnnotationGeometry
