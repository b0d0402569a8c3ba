// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Imaging/ImageEdit.h"

#include <QTransform>

namespace tessaly {

/// Moves marks along with an edit of the picture that they lie on, so that each stays on the same content.
///
/// Text, stamps, stickers and pasted pictures stay upright. Where the picture shrinks or grows, text does too; the
/// width of strokes is a matter of style and stays.
class AnnotationTransform {
public:
    /// For the edit that made `after` out of `before`.
    AnnotationTransform(const ImageEdit &edit, const RasterImage &before, const RasterImage &after);

    QPointF mapped(QPointF point) const { return m_map.map(point); }
    Annotation moved(Annotation mark) const;
    QList<Annotation> moved(QList<Annotation> marks) const;

private:
    bool scales() const { return m_scale != QPointF(1, 1); }
    void moveText(Annotation &text) const;
    void bend(Annotation &arrow) const;
    void turnTail(Annotation &stamp) const;

    QTransform m_map;
    QPointF m_scale { 1, 1 }; ///< of a resize, along each axis
    Orientation m_orientation;
};

} // namespace tessaly
