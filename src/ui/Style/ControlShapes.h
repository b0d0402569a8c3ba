// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionTab;

namespace tessaly {

/// The shapes that all controls are made of, in logical pixels. Each leaves the painter as it was.
namespace ControlShapes {

constexpr qreal radius = 6;

/// A rounded box with its edge inside `rect`. Transparent colours draw nothing.
void box(QPainter &painter, const QRectF &rect, const QColor &fill, const QColor &edge, qreal corner = radius,
    qreal edgeWidth = 1);
/// The ring around what has the keyboard's focus.
void focusRing(QPainter &painter, const QRectF &rect, qreal corner = radius);
/// A small angle that points to one side.
void chevron(QPainter &painter, const QRect &rect, Qt::ArrowType direction, const QColor &color);

void toolButton(const QStyleOption &option, QPainter &painter);
void pushButton(const QStyleOption &option, QPainter &painter, bool isDefault);
void field(const QStyleOption &option, QPainter &painter, const QColor &fill);
void checkBox(const QStyleOption &option, QPainter &painter);
void radioButton(const QStyleOption &option, QPainter &painter);
void tab(const QStyleOptionTab &option, QPainter &painter);

} // namespace ControlShapes

} // namespace tessaly
