// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/LoupeView.h"

#include "ui/Overlay/SelectionPainter.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainterPath>

namespace tessaly {

namespace {

/// Beside the pointer on one axis: after it, before it where that leaves the monitor.
int beside(int pointer, int distance, int length, int edge, int monitor)
{
    int place = pointer + distance;
    if (place + length > monitor - edge)
        place = pointer - distance - length;
    return std::max(edge, std::min(place, monitor - edge - length));
}

constexpr double margin = 1, padding = 8;

} // namespace

void LoupeView::look(const QImage &picture, QPoint pixel, std::optional<QSize> selection)
{
    if (!picture.rect().contains(pixel))
        return hide();
    m_pointer = pixel;
    const QPoint half(samplePixels / 2, samplePixels / 2);
    m_sample = picture.copy(QRect(pixel - half, QSize(samplePixels, samplePixels)));
    m_swatch = QColor(picture.pixel(pixel) | 0xff000000U);
    m_position = QStringLiteral("%1, %2").arg(pixel.x()).arg(pixel.y());
    m_size = selection ? QStringLiteral("%1 × %2").arg(selection->width()).arg(selection->height()) : QString();
    place(picture.size());
}

void LoupeView::hide()
{
    m_sample = {};
    m_rect = {};
}

std::optional<QString> LoupeView::hex() const
{
    return isVisible() ? std::optional(m_swatch.name().toUpper()) : std::nullopt;
}

QSize LoupeView::layoutSize() const
{
    const int line = QFontMetrics(SelectionPainter::font(m_scale)).height();
    const int side = gridSide() + 2 * pixels(margin);
    return { side, side + (m_size.isEmpty() ? 2 : 3) * line + 2 * pixels(padding) };
}

void LoupeView::place(QSize monitor)
{
    const QSize size = layoutSize();
    const int distance = pixels(pointerDistance), edge = pixels(edgeDistance);
    m_rect = QRect(QPoint(beside(m_pointer.x(), distance, size.width(), edge, monitor.width()),
                       beside(m_pointer.y(), distance, size.height(), edge, monitor.height())),
        size);
}

void LoupeView::paint(QPainter &painter) const
{
    if (!isVisible())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double corner = 8 * m_scale;
    QPainterPath outline;
    outline.addRoundedRect(m_rect, corner, corner);
    painter.fillPath(outline, QColor(20, 20, 22, 235));
    painter.save();
    painter.setClipPath(outline, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, false);
    paintSample(painter);
    painter.restore();
    paintTexts(painter);
    const double line = m_scale;
    painter.setPen(QPen(QColor(255, 255, 255, 150), line));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(
        QRectF(m_rect).adjusted(line / 2, line / 2, -line / 2, -line / 2), corner - line / 2, corner - line / 2);
    painter.restore();
}

void LoupeView::paintSample(QPainter &painter) const
{
    const int cell = pixels(8), inset = pixels(margin);
    const QRect grid(m_rect.topLeft() + QPoint(inset, inset), QSize(gridSide(), gridSide()));
    painter.drawImage(grid, m_sample); // without smoothing: each pixel is a square
    const QRect centre(grid.topLeft() + QPoint(cell, cell) * (samplePixels / 2), QSize(cell, cell));
    const int line = pixels(1);
    const auto frame = [&](const QRect &rect, const QColor &color) {
        for (const QRect &part : QRegion(rect) - rect.adjusted(line, line, -line, -line))
            painter.fillRect(part, color);
    };
    frame(centre.adjusted(-line, -line, line, line), Qt::black);
    frame(centre.adjusted(-2 * line, -2 * line, 2 * line, 2 * line), Qt::white);
}

void LoupeView::paintTexts(QPainter &painter) const
{
    const QFont font = SelectionPainter::font(m_scale);
    const int line = QFontMetrics(font).height();
    const int space = pixels(padding);
    QRect row(
        m_rect.x() + space, m_rect.y() + gridSide() + 2 * pixels(margin) + space, m_rect.width() - 2 * space, line);
    painter.setFont(font);
    const int side = line - pixels(3);
    const QRect swatch(row.x(), row.y() + (line - side) / 2, side, side);
    painter.setPen(QPen(QColor(255, 255, 255, 150), m_scale));
    painter.setBrush(m_swatch);
    painter.drawRoundedRect(swatch, 3 * m_scale, 3 * m_scale);
    painter.setPen(Qt::white);
    const QString first = m_copied ? QCoreApplication::translate("LoupeView", "Copied") : hex().value_or(QString());
    painter.drawText(row.adjusted(side + space, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, first);
    for (const QString &text : { m_position, m_size }) {
        row.translate(0, line);
        painter.setPen(QColor(255, 255, 255, 200));
        painter.drawText(row, Qt::AlignVCenter | Qt::AlignLeft, text);
    }
}

} // namespace tessaly
