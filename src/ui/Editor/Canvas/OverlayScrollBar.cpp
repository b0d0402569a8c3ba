// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/OverlayScrollBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace tessaly {

OverlayScrollBar::OverlayScrollBar(Qt::Orientation orientation, QWidget *parent) : QAbstractSlider(parent)
{
    setOrientation(orientation);
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::ArrowCursor);
    setAccessibleName(orientation == Qt::Horizontal ? tr("Horizontal position") : tr("Vertical position"));
    hide();
}

void OverlayScrollBar::layOut()
{
    const QRect view = parentWidget()->rect();
    if (orientation() == Qt::Horizontal)
        setGeometry(0, view.height() - thickness, view.width() - thickness, thickness);
    else
        setGeometry(view.width() - thickness, 0, thickness, view.height() - thickness);
}

int OverlayScrollBar::along(const QPointF &position) const
{
    return qRound(orientation() == Qt::Horizontal ? position.x() : position.y());
}

int OverlayScrollBar::length() const { return orientation() == Qt::Horizontal ? width() : height(); }

int OverlayScrollBar::thumbLength() const
{
    constexpr int shortest = 32;
    const double share = double(pageStep()) / std::max(1, maximum() - minimum() + pageStep());
    return std::clamp(qRound(length() * share), std::min(shortest, length()), length());
}

int OverlayScrollBar::thumbStart() const
{
    const int range = maximum() - minimum();
    return range > 0 ? qRound(double(length() - thumbLength()) * (value() - minimum()) / range) : 0;
}

int OverlayScrollBar::valueAt(int start) const
{
    const int room = std::max(1, length() - thumbLength());
    return minimum() + qRound(double(maximum() - minimum()) * start / room);
}

void OverlayScrollBar::paintEvent(QPaintEvent *)
{
    const bool isWide = underMouse() || m_grab;
    const double inset = isWide ? 3 : 4.5;
    QRectF thumb(thumbStart() + 3, inset, thumbLength() - 6, thickness - 2 * inset);
    if (orientation() == Qt::Vertical)
        thumb = QRectF(thumb.y(), thumb.x(), thumb.height(), thumb.width());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(255, 255, 255, 110), 1)); // tells it from a dark capture
    painter.setBrush(QColor(60, 60, 67, isWide ? 200 : 140));
    const double radius = (thickness - 2 * inset) / 2;
    painter.drawRoundedRect(thumb, radius, radius);
}

void OverlayScrollBar::mousePressEvent(QMouseEvent *event)
{
    const int position = along(event->position());
    const bool isOnThumb = position >= thumbStart() && position < thumbStart() + thumbLength();
    m_grab = isOnThumb ? position - thumbStart() : thumbLength() / 2;
    setValue(valueAt(position - *m_grab));
    update();
}

void OverlayScrollBar::mouseMoveEvent(QMouseEvent *event)
{
    if (m_grab)
        setValue(valueAt(along(event->position()) - *m_grab));
}

void OverlayScrollBar::mouseReleaseEvent(QMouseEvent *)
{
    m_grab.reset();
    update();
}

void OverlayScrollBar::enterEvent(QEnterEvent *) { update(); }
void OverlayScrollBar::leaveEvent(QEvent *) { update(); }

/// What lies below scrolls in its own way.
void OverlayScrollBar::wheelEvent(QWheelEvent *event) { event->ignore(); }

} // namespace tessaly
