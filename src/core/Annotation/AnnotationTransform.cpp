// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationTransform.h"

#include "core/Annotation/AnnotationGeometry.h"

#include <cmath>

namespace tessaly {

static QTransform mapOf(Orientation orientation, QSizeF before, QSizeF after)
{
    QTransform turn;
    switch (orientation.quarterTurns) {
    case 1:
        turn = QTransform(0, 1, -1, 0, before.height(), 0);
        break;
    case 2:
        turn = QTransform(-1, 0, 0, -1, before.width(), before.height());
        break;
    case 3:
        turn = QTransform(0, -1, 1, 0, 0, before.width());
        break;
    default:
        break;
    }
    return orientation.mirrored ? turn * QTransform(-1, 0, 0, 1, after.width(), 0) : turn;
}

AnnotationTransform::AnnotationTransform(const ImageEdit &edit, const RasterImage &before, const RasterImage &after)
{
    if (const auto orientation = edit.orientation()) {
        m_orientation = *orientation;
        m_map = mapOf(m_orientation, before.pointSize, after.pointSize);
    } else if (edit.kind == ImageEdit::Kind::Crop) {
        const QPoint origin = croppedPixels(before, edit.cropRect).topLeft();
        m_map = QTransform::fromTranslate(-origin.x() * before.pointSize.width() / before.pixels.width(),
            -origin.y() * before.pointSize.height() / before.pixels.height());
    } else if (edit.kind == ImageEdit::Kind::Resize) {
        m_scale = { after.pointSize.width() / before.pointSize.width(),
            after.pointSize.height() / before.pointSize.height() };
        m_map = QTransform::fromScale(m_scale.x(), m_scale.y());
    }
}

/// A text's box goes where its content goes, while the text stays upright.
void AnnotationTransform::moveText(Annotation &text) const
{
    const QPointF extent = text.p2 - text.p1;
    if (m_orientation.isUpright()) {
        text.p1 = mapped(text.p1);
        text.fontSize *= std::sqrt(m_scale.x() * m_scale.y());
        text.p2 = text.p1 + QPointF(extent.x() * m_scale.x(), extent.y() * m_scale.y());
        return;
    }
    const QRectF box = text.boundingRect();
    text.p1 = mapped(box.center()) - (box.center() - box.topLeft());
    text.p2 = text.p1 + extent;
}

/// Keeps a curve on its content: its handle is stored in the arrow's own frame, which mirroring reverses and an uneven
/// resize shears. Both points of the arrow are still those from before.
void AnnotationTransform::bend(Annotation &arrow) const
{
    if (m_orientation.mirrored)
        arrow.curveHandle.setY(-arrow.curveHandle.y());
    if (m_scale.x() == m_scale.y())
        return;
    const QPointF handle = AnnotationGeometry::handlePoint(arrow.p1, arrow.p2, arrow.curveHandle);
    arrow.curveHandle
        = AnnotationGeometry::handleAt(mapped(arrow.p1), mapped(arrow.p2), mapped(handle)).value_or(arrow.curveHandle);
}

void AnnotationTransform::turnTail(Annotation &stamp) const
{
    if (!stamp.tailAngle)
        return;
    const QTransform turn(m_map.m11(), m_map.m12(), m_map.m21(), m_map.m22(), 0, 0);
    const QPointF tail = turn.map(QPointF(std::cos(*stamp.tailAngle), std::sin(*stamp.tailAngle)));
    if (!m_orientation.isUpright() || scales())
        stamp.tailAngle = std::atan2(tail.y(), tail.x());
    if (scales())
        stamp.tailLength *= std::hypot(tail.x(), tail.y());
}

Annotation AnnotationTransform::moved(Annotation mark) const
{
    if (mark.kind == AnnotationKind::Text) {
        moveText(mark);
        return mark;
    }
    bend(mark);
    turnTail(mark);
    const QRectF box = mark.rect();
    mark.p1 = mapped(mark.p1);
    mark.p2 = mapped(mark.p2);
    for (QPointF &point : mark.points)
        point = mapped(point);
    // An upright picture in a box that lies on its side would be distorted.
    if (mark.kind == AnnotationKind::ImageOverlay && m_orientation.swapsSides()) {
        const QPointF centre = mapped(box.center()), corner(box.width() / 2, box.height() / 2);
        mark.p1 = centre - corner;
        mark.p2 = centre + corner;
    }
    return mark;
}

QList<Annotation> AnnotationTransform::moved(QList<Annotation> marks) const
{
    for (Annotation &mark : marks)
        mark = moved(std::move(mark));
    return marks;
}

} // namespace tessaly
