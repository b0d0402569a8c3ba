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

FrameBackground::FrameBackground(
    const std::optional<FrameStyle> &frame, QSizeF canvasSize, const std::optional<Checkerboard> &checkerboard) :
    m_canvasSize(canvasSize)
{
    const auto kind = frame ? frame->background : FrameBackgroundKind::Transparent;
    if (kind == FrameBackgroundKind::Gradient && !frame->gradientColors.isEmpty())
        m_brush = gradientBrush(frame->gradientColors, canvasSize);
    else if (kind == FrameBackgroundKind::Solid)
        m_brush = ColorHex::toColor(frame->solidHex);
    if (m_brush.style() == Qt::NoBrush)
        m_checkerboard = checkerboard;
    m_opaque = m_checkerboard || m_brush.isOpaque();
}

void FrameBackground::paint(QImage &image, const QRect &area, double scale, QPoint origin) const
{
    QPainter painter(&image);
    painter.translate(-origin);
    painter.setClipRect(area);
    if (!m_opaque) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(area, Qt::transparent);
    }
    painter.scale(scale, scale);
    const QRectF canvas(QPointF(), m_canvasSize);
    if (!m_checkerboard) {
        if (m_brush.style() != Qt::NoBrush)
            painter.fillRect(canvas, m_brush);
        return;
    }
    constexpr double cell = 8; // points
    const auto cellAt = [&](int pixel) { return int(pixel / scale / cell); };
    painter.fillRect(canvas, m_checkerboard->light);
    if (cell * scale < 1) // smaller than can be seen
        return;
    for (int row = cellAt(area.top()); row <= cellAt(area.bottom()) + 1; ++row) {
        const int first = cellAt(area.left());
        for (int column = first + (first + row) % 2; column <= cellAt(area.right()) + 1; column += 2)
            painter.fillRect(QRectF(column * cell, row * cell, cell, cell).intersected(canvas), m_checkerboard->dark);
    }
}

} // namespace tessaly
