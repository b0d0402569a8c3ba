// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/ControlShapes.h"

#include "ui/Style/Appearance.h"

#include <QPainter>
#include <QStyleOption>

namespace tessaly::ControlShapes {

namespace {

struct Restoring {
    explicit Restoring(QPainter &each) : painter(each)
    {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
    }
    ~Restoring() { painter.restore(); }
    Restoring(const Restoring &) = delete;
    Restoring &operator=(const Restoring &) = delete;

    QPainter &painter;
};

QColor withAlpha(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

bool isEnabled(const QStyleOption &option) { return option.state & QStyle::State_Enabled; }
bool isHovered(const QStyleOption &option) { return isEnabled(option) && option.state & QStyle::State_MouseOver; }
bool hasFocus(const QStyleOption &option) { return isEnabled(option) && option.state & QStyle::State_HasFocus; }

/// A click on a button moves the focus too, but nobody then needs to be shown where it is.
bool showsFocus(const QStyleOption &option)
{
    return hasFocus(option) && option.state & QStyle::State_KeyboardFocusChange;
}

QColor overlay(const QStyleOption &option)
{
    if (option.state & QStyle::State_Sunken)
        return Colors::pressed();
    return isHovered(option) ? Colors::hovered() : QColor(Qt::transparent);
}

QColor edge(const QStyleOption &option)
{
    return isEnabled(option) ? Colors::outline() : withAlpha(Colors::outline(), 0.5F);
}

/// The ground of a box or ring that is ticked or not.
void indicator(const QStyleOption &option, QPainter &painter, const QRectF &rect, qreal corner)
{
    const bool on = option.state & (QStyle::State_On | QStyle::State_NoChange);
    const QColor accent = option.palette.color(QPalette::Highlight);
    const QColor empty = option.palette.color(isEnabled(option) ? QPalette::Dark : QPalette::Mid);
    box(painter, rect, on ? accent : option.palette.color(QPalette::Base), on ? accent : empty, corner);
    box(painter, rect, overlay(option), Qt::transparent, corner);
    if (showsFocus(option))
        focusRing(painter, rect.adjusted(-2, -2, 2, 2), corner + 2);
}

} // namespace

void box(QPainter &painter, const QRectF &rect, const QColor &fill, const QColor &edge, qreal corner, qreal edgeWidth)
{
    if (fill.alpha() == 0 && edge.alpha() == 0)
        return;
    const Restoring restoring(painter);
    const qreal inset = edge.alpha() == 0 ? 0 : edgeWidth / 2;
    painter.setBrush(fill);
    painter.setPen(edge.alpha() == 0 ? QPen(Qt::NoPen) : QPen(edge, edgeWidth));
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), corner - inset, corner - inset);
}

void focusRing(QPainter &painter, const QRectF &rect, qreal corner)
{
    box(painter, rect, Qt::transparent, Colors::accent(), corner, 2);
}

void chevron(QPainter &painter, const QRect &rect, Qt::ArrowType direction, const QColor &color)
{
    constexpr QPointF down[] = { { -3.5, -1.75 }, { 0, 1.75 }, { 3.5, -1.75 } };
    static const QHash<Qt::ArrowType, int> degrees { { Qt::DownArrow, 0 }, { Qt::LeftArrow, 90 }, { Qt::UpArrow, 180 },
        { Qt::RightArrow, 270 } };
    const Restoring restoring(painter);
    painter.translate(QRectF(rect).center());
    painter.rotate(degrees.value(direction));
    const qreal scale = std::min({ 1.0, rect.width() / 8.0, rect.height() / 6.0 });
    painter.scale(scale, scale);
    painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(down, 3);
}

void toolButton(const QStyleOption &option, QPainter &painter)
{
    if (option.state & QStyle::State_On)
        box(painter, option.rect, withAlpha(Colors::accent(), isEnabled(option) ? 0.2F : 0.1F), Qt::transparent);
    // A tool button that is on but raised has both flags of a button held down.
    const bool held = option.state & QStyle::State_Sunken;
    const QColor over = held ? Colors::pressed() : isHovered(option) ? Colors::hovered() : QColor(Qt::transparent);
    box(painter, option.rect, over, Qt::transparent);
}

void pushButton(const QStyleOption &option, QPainter &painter, bool isDefault)
{
    const bool accented = isEnabled(option) && (isDefault || option.state & QStyle::State_On);
    const QColor fill = option.palette.color(accented ? QPalette::Highlight : QPalette::Button);
    box(painter, option.rect, fill, accented ? fill : edge(option));
    box(painter, option.rect, overlay(option), Qt::transparent);
    if (showsFocus(option)) {
        focusRing(painter, option.rect);
        if (accented) // the ring alone would vanish in the fill
            box(painter, QRectF(option.rect).adjusted(2, 2, -2, -2), Qt::transparent,
                option.palette.color(QPalette::HighlightedText), radius - 2);
    }
}

void field(const QStyleOption &option, QPainter &painter, const QColor &fill)
{
    box(painter, option.rect, fill, edge(option));
    if (hasFocus(option))
        focusRing(painter, option.rect);
}

void checkBox(const QStyleOption &option, QPainter &painter)
{
    const QRectF rect = QRectF(option.rect).adjusted(1, 1, -1, -1);
    indicator(option, painter, rect, 4);
    const Restoring restoring(painter);
    painter.setPen(
        QPen(option.palette.color(QPalette::HighlightedText), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at
        = [&](double x, double y) { return QPointF(rect.left() + x * rect.width(), rect.top() + y * rect.height()); };
    if (option.state & QStyle::State_NoChange) {
        painter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
    } else if (option.state & QStyle::State_On) {
        const QPointF tick[] = { at(0.25, 0.53), at(0.43, 0.7), at(0.75, 0.32) };
        painter.drawPolyline(tick, 3);
    }
}

void radioButton(const QStyleOption &option, QPainter &painter)
{
    const QRectF rect = QRectF(option.rect).adjusted(1, 1, -1, -1);
    indicator(option, painter, rect, rect.width() / 2);
    if (!(option.state & QStyle::State_On))
        return;
    const qreal inset = rect.width() * 0.31;
    const QRectF disc = rect.adjusted(inset, inset, -inset, -inset);
    box(painter, disc, option.palette.color(QPalette::HighlightedText), Qt::transparent, disc.width() / 2);
}

void tab(const QStyleOptionTab &option, QPainter &painter)
{
    const QRectF rect = QRectF(option.rect).adjusted(2, 3, -2, -3);
    const bool selected = option.state & QStyle::State_Selected;
    if (selected)
        box(painter, rect, option.palette.color(QPalette::Button), Colors::separator());
    else if (isHovered(option))
        box(painter, rect, Colors::hovered(), Qt::transparent);
    if (showsFocus(option) && selected)
        focusRing(painter, rect);
}

} // namespace tessaly::ControlShapes
