// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/StampGlyphs.h"

#include "core/Rendering/Strokes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessaly::StampGlyphs {

namespace {

/// The square in the middle of the box that carries the glyph's proportions.
class Square {
public:
    explicit Square(const QRectF &box) : m_centre(box.center()), m_half(std::min(box.width(), box.height()) / 2) { }

    /// The point at x and y from the middle, in halves of the side.
    QPointF at(double x, double y) const { return m_centre + QPointF(x, y) * m_half; }
    double length(double halves) const { return halves * m_half; }

private:
    QPointF m_centre;
    double m_half;
};

} // namespace

QPainterPath check(const QRectF &box, double strokeWidth, Room room)
{
    // The strokes' middle lines; the long arm is twice the short one, at a right angle turned a little further.
    const Square square(box);
    const double size = room == Room::OnDisc ? 0.5 : 0.78;
    const QList<QPointF> corners { square.at(-0.94 * size, 0.06 * size), square.at(-0.28 * size, 0.70 * size),
        square.at(0.94 * size, -0.70 * size) };
    return Strokes::outline(corners, { strokeWidth });
}

QPainterPath cross(const QRectF &box, double strokeWidth, Room room)
{
    const Square square(box);
    const double arm = room == Room::OnDisc ? 0.37 : 0.68;
    QPainterPath shape = Strokes::outline(QList { square.at(-arm, -arm), square.at(arm, arm) }, { strokeWidth });
    Strokes::unite(shape, Strokes::outline(QList { square.at(arm, -arm), square.at(-arm, arm) }, { strokeWidth }));
    return shape;
}

QPainterPath dot(const QRectF &box, Room room)
{
    const Square square(box);
    const double radius = square.length(room == Room::OnDisc ? 0.4 : 0.7);
    QPainterPath shape;
    shape.addEllipse(box.center(), radius, radius);
    return shape;
}

QPainterPath starPath(const QRectF &box, Room room)
{
    constexpr int points = 5;
    constexpr double innerShare = 0.45; // a little fuller than a pentagram, whose arms thin out when small
    // The centre of the five tips lies above the middle of their height: the star hangs between the two.
    const Square square(box);
    const double radius = room == Room::OnDisc ? 0.62 : 0.96;
    const double lowered = radius * 0.06;
    QList<QPointF> corners;
    for (int corner = 0; corner < 2 * points; ++corner) {
        const double angle = corner * std::numbers::pi / points - std::numbers::pi / 2;
        const double reach = corner % 2 == 0 ? radius : radius * innerShare;
        corners += square.at(reach * std::cos(angle), reach * std::sin(angle) + lowered);
    }
    return Strokes::polygon(corners);
}

} // namespace tessaly::StampGlyphs
