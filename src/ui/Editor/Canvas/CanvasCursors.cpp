// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasCursors.h"

#include <QPainter>
#include <QPixmap>

#include <array>
#include <cmath>
#include <utility>

namespace tessaly {

namespace {

constexpr std::array shapes {
    std::pair { CanvasCursor::Arrow, Qt::ArrowCursor },
    std::pair { CanvasCursor::Cross, Qt::CrossCursor },
    std::pair { CanvasCursor::Text, Qt::IBeamCursor },
    std::pair { CanvasCursor::PointingHand, Qt::PointingHandCursor },
    std::pair { CanvasCursor::FourWay, Qt::SizeAllCursor },
    std::pair { CanvasCursor::ClosedHand, Qt::ClosedHandCursor },
    std::pair { CanvasCursor::DragCopy, Qt::DragCopyCursor },
    std::pair { CanvasCursor::CrossArrow, Qt::SizeAllCursor },
};

/// The stock arrows by the angle of their movement, y downwards.
constexpr std::array stockAngles { std::pair { 0.0, Qt::SizeHorCursor }, std::pair { 45.0, Qt::SizeFDiagCursor },
    std::pair { 90.0, Qt::SizeVerCursor }, std::pair { 135.0, Qt::SizeBDiagCursor },
    std::pair { 180.0, Qt::SizeHorCursor } };

/// A double arrow along the x axis around the origin.
QPolygonF doubleArrow()
{
    return { { -9, 0 }, { -4.5, -4.5 }, { -4.5, -1.2 }, { 4.5, -1.2 }, { 4.5, -4.5 }, { 9, 0 }, { 4.5, 4.5 },
        { 4.5, 1.2 }, { -4.5, 1.2 }, { -4.5, 4.5 } };
}

QCursor resizeCursor(double angle, double ratio)
{
    for (const auto &[stock, shape] : stockAngles)
        if (std::abs(angle - stock) < 4)
            return shape;
    constexpr int side = 24;
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side / 2, side / 2);
    painter.rotate(angle);
    painter.setPen(QPen(Qt::white, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::black);
    painter.drawPolygon(doubleArrow());
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(doubleArrow());
    painter.end();
    return QCursor(picture, side / 2, side / 2);
}

} // namespace

QCursor cursorFor(const CursorShape &shape, double devicePixelRatio)
{
    for (const auto &[cursor, stock] : shapes)
        if (cursor == shape.cursor)
            return stock;
    return resizeCursor(shape.angle, devicePixelRatio);
}

} // namespace tessaly
