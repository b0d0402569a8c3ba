// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/FrameBackground.h"

#include "core/Imaging/ColorHex.h"

#include <QLinearGradient>
#include <QPainter>

namespace tessaly {

static QBrush gradientBrush(const QStringList &colors, QSizeF canvasSize)
{
    if (colors.size() == 1)
        return ColorHex::toColor(colors.first());
    QLinearGradient gradient(QPointF(), QPointF(canvasSize.width(), canvasSize.height()));
    gradient.setInterpolationMode(QGradient::ComponentInterpolation);
    for (qsizetype index = 0; index < colors.size(); ++index)
        gradient.setColorAt(double(index) / double(colors.size() - 1), ColorHex::toColor(colors[index]));
    return gradient;
}

FrameBackground::FrameBackground(const FrameStyle &frame, QSizeF canvasSize, bool checkerboard) :
    m_canvasSize(canvasSize)
{
    const bool isGradient = frame.background == FrameBackgroundKind::Gradient;
    if (isGradient && !frame.gradientColors.isEmpty())
        m_brush = gradientBrush(frame.gradientColors, canvasSize);
    else if (frame.background == FrameBackgroundKind::Solid)
        m_brush = ColorHex::toColor(frame.solidHex);
    m_checkerboard = checkerboard && frame.background == FrameBackgroundKind::Transparent;
    m_opaque = m_checkerboard || m_brush.isOpaque();
}

void FrameBackground::paint(QImage &image, const QRect &rows, double scale) const
{
    QPainter painter(&image);
    painter.setClipRect(rows);
    if (!m_opaque) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(rows, Qt::transparent);
    }
    painter.scale(scale, scale);
    const QRectF canvas(QPointF(), m_canvasSize);
    if (!m_checkerboard) {
        if (m_brush.style() != Qt::NoBrush)
            painter.fillRect(canvas, m_brush);
        return;
    }
    constexpr double cell = 8; // points
    painter.fillRect(canvas, Qt::white);
    for (int row = 0; row * cell < m_canvasSize.height(); ++row) {
        for (int column = row % 2; column * cell < m_canvasSize.width(); column += 2)
            painter.fillRect(QRectF(column * cell, row * cell, cell, cell).intersected(canvas), QColor(226, 226, 230));
    }
}

} // namespace tessaly
