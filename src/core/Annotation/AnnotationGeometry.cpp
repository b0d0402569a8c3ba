// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationGeometry.h"

#include <algorithm>
#include <cmath>

namespace tessaly::AnnotationGeometry {

namespace {

/// A squared length below which a segment counts as a point.
constexpr double degenerateSquare = 0.0001;

double length(QPointF vector) { return std::hypot(vector.x(), vector.y()); }
QPointF normal(QPointF vector) { return { -vector.y(), vector.x() }; }

/// The lengths along a polyline: at each of its points, how far the first point lies behind.
std::vector<double> lengthsAlong(const QList<QPointF> &polyline)
{
    std::vector<double> lengths { 0.0 };
    for (qsizetype index = 1; index < polyline.size(); ++index)
        lengths.push_back(lengths.back() + length(polyline[index] - polyline[index - 1]));
    return lengths;
}

QPointF pointAt(const QList<QPointF> &polyline, const std::vector<double> &lengths, double along)
{
    const auto end = std::lower_bound(lengths.begin() + 1, lengths.end() - 1, along);
    const auto index = static_cast<qsizetype>(end - lengths.begin());
    const double start = *(end - 1);
    const double part = std::clamp((along - start) / std::max(*end - start, 0.0001), 0.0, 1.0);
    return polyline[index - 1] + (polyline[index] - polyline[index - 1]) * part;
}

} // namespace

double distance(QPointF point, QPointF from, QPointF to)
{
    const QPointF along = to - from;
    const double square = QPointF::dotProduct(along, along);
    if (square < degenerateSquare)
        return length(point - from);
    const double part = std::clamp(QPointF::dotProduct(point - from, along) / square, 0.0, 1.0);
    return length(point - (from + along * part));
}

QPointF handlePoint(QPointF p1, QPointF p2, QPointF curveHandle)
{
    const QPointF along = p2 - p1;
    return p1 + along * curveHandle.x() + normal(along) * curveHandle.y();
}

QPointF controlPoint(QPointF p1, QPointF p2, QPointF curveHandle)
{
    return 2 * handlePoint(p1, p2, curveHandle) - (p1 + p2) / 2;
}

std::optional<QPointF> handleAt(QPointF p1, QPointF p2, QPointF point)
{
    const QPointF along = p2 - p1;
    const double square = QPointF::dotProduct(along, along);
    if (!(square > degenerateSquare))
        return std::nullopt;
    const QPointF offset = point - p1;
    return QPointF(QPointF::dotProduct(offset, along) / square, QPointF::dotProduct(offset, normal(along)) / square);
}

QList<QPointF> quadraticSamples(QPointF p1, QPointF control, QPointF p2, int segments)
{
    const int count = std::max(segments, 1);
    QList<QPointF> samples;
    samples.reserve(count + 1);
    for (int index = 0; index <= count; ++index) {
        const double t = static_cast<double>(index) / count;
        samples += p1 * ((1 - t) * (1 - t)) + control * (2 * t * (1 - t)) + p2 * (t * t);
    }
    return samples;
}

QList<QPointF> trimmed(const QList<QPointF> &polyline, double start, double end)
{
    if (polyline.size() < 2)
        return polyline;
    const std::vector<double> lengths = lengthsAlong(polyline);
    const double total = lengths.back();
    if (!(start + end < total))
        return polyline;
    QList<QPointF> kept { pointAt(polyline, lengths, start) };
    for (qsizetype index = 0; index < polyline.size(); ++index) {
        const double along = lengths[static_cast<std::size_t>(index)];
        if (along > start && along < total - end)
            kept += polyline[index];
    }
    kept += pointAt(polyline, lengths, total - end);
    return kept;
}

QRectF boundingBox(const QList<QPointF> &points)
{
    if (points.isEmpty())
        return {};
    QPointF least = points.first(), most = least;
    for (const QPointF point : points) {
        least = { std::min(least.x(), point.x()), std::min(least.y(), point.y()) };
        most = { std::max(most.x(), point.x()), std::max(most.y(), point.y()) };
    }
    return { least, most };
}

} // namespace tessaly::AnnotationGeometry
