// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationGeometry.h"

#include "core/Annotation/Annotation.h"

namespace tessaly {

QRectF Annotation::rect() const { return QRectF(p1, p2).normalized(); }
std::optional<QPointF> Annotation::tailTip() const { return {}; }
std::optional<QRectF> Annotation::stampLabelRect() const { return {}; }
QRectF Annotation::boundingRect() const { return rect(); }
QList<QPointF> Annotation::curveSamples(int) const { return { p1, p2 }; }
bool Annotation::contains(QPointF) const { return false; }

} // namespace tessaly
