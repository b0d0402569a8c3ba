// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/Appearance.h"
#include "ui/Style/CalmStyle.h"
#include "ui/Style/ControlShapes.h"

#include <QPainter>
#include <QStyleOption>

namespace tessaly {

namespace {

/// Where the thumb of a scroll bar lies in its groove, which is the whole bar.
QRect scrollThumb(const QStyleOptionSlider &option, int shortest)
{
    const bool horizontal = option.orientation == Qt::Horizontal;
    const int length = horizontal ? option.rect.width() : option.rect.height();
    const qint64 whole = qint64(option.maximum) - option.minimum + option.pageStep;
    int thumb = length;
    if (option.maximum > option.minimum && whole > 0)
        thumb = std::clamp(int(qint64(length) * option.pageStep / whole), std::min(shortest, length), length);
    const int start = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, length - thumb, option.upsideDown);
    return horizontal ? QRect(option.rect.left() + start, option.rect.top(), thumb, option.rect.height())
                      : QRect(option.rect.left(), option.rect.top() + start, option.rect.width(), thumb);
}

QColor chevronColor(const QStyleOption &option, bool usable)
{
    return option.palette.color(usable ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
}

} // namespace

void CalmStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex *option, QPainter *painter, const QWidget *widget) const
{
    if (const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option); box && control == CC_ComboBox)
        drawComboBox(*box, *painter, widget);
    else if (const auto *spin = qstyleoption_cast<const QStyleOptionSpinBox *>(option); spin && control == CC_SpinBox)
        drawSpinBox(*spin, *painter, widget);
    else if (const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option); slider && control == CC_Slider)
        drawSlider(*slider, *painter, widget);
    else if (slider && control == CC_ScrollBar)
        drawScrollBar(*slider, *painter, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect CalmStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex *option, SubControl part, const QWidget *widget) const
{
    const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control != CC_ScrollBar || !bar)
        return QProxyStyle::subControlRect(control, option, part, widget);
    const QRect thumb = scrollThumb(*bar, pixelMetric(PM_ScrollBarSliderMin, option, widget));
    const bool horizontal = bar->orientation == Qt::Horizontal;
    QRect rect = bar->rect;
    switch (part) { // no arrows: nobody aims at them
    case SC_ScrollBarGroove:
        break;
    case SC_ScrollBarSlider:
        rect = thumb;
        break;
    case SC_ScrollBarSubPage:
        horizontal ? rect.setRight(thumb.left() - 1) : rect.setBottom(thumb.top() - 1);
        break;
    case SC_ScrollBarAddPage:
        horizontal ? rect.setLeft(thumb.right() + 1) : rect.setTop(thumb.bottom() + 1);
        break;
    default:
        return {};
    }
    return visualRect(bar->direction, bar->rect, rect);
}

void CalmStyle::drawComboBox(const QStyleOptionComboBox &option, QPainter &painter, const QWidget *widget) const
{
    QStyleOptionComboBox field = option;
    if (!option.editable && !(option.state & State_KeyboardFocusChange))
        field.state &= ~State_HasFocus;
    if (option.frame)
        ControlShapes::field(field, painter, option.palette.color(option.editable ? QPalette::Base : QPalette::Button));
    const bool enabled = option.state & State_Enabled;
    if (enabled && !option.editable && option.state & (State_MouseOver | State_Sunken | State_On))
        ControlShapes::box(painter, option.rect,
            option.state & (State_Sunken | State_On) ? Colors::pressed() : Colors::hovered(), Qt::transparent);
    const QRect arrow = subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget);
    ControlShapes::chevron(painter, arrow, Qt::DownArrow, chevronColor(option, enabled));
}

void CalmStyle::drawSpinBox(const QStyleOptionSpinBox &option, QPainter &painter, const QWidget *widget) const
{
    if (option.frame)
        ControlShapes::field(option, painter, option.palette.color(QPalette::Base));
    if (option.buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    struct Arrow {
        SubControl part;
        QAbstractSpinBox::StepEnabledFlag step;
        Qt::ArrowType direction;
    };
    for (const Arrow &arrow : { Arrow { SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, Qt::UpArrow },
             Arrow { SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, Qt::DownArrow } }) {
        const QRect rect = subControlRect(CC_SpinBox, &option, arrow.part, widget);
        const bool usable = option.state & State_Enabled && option.stepEnabled & arrow.step;
        if (usable && option.activeSubControls == arrow.part)
            ControlShapes::box(painter, QRectF(rect).adjusted(1, 1, -1, -1),
                option.state & State_Sunken ? Colors::pressed() : Colors::hovered(), Qt::transparent, 3);
        ControlShapes::chevron(painter, rect, arrow.direction, chevronColor(option, usable));
    }
}

void CalmStyle::drawSlider(const QStyleOptionSlider &option, QPainter &painter, const QWidget *widget) const
{
    const bool horizontal = option.orientation == Qt::Horizontal;
    const bool enabled = option.state & State_Enabled;
    const QRectF handle = QRectF(subControlRect(CC_Slider, &option, SC_SliderHandle, widget)).adjusted(1, 1, -1, -1);
    QRectF track = subControlRect(CC_Slider, &option, SC_SliderGroove, widget);
    constexpr qreal thickness = 4;
    const QPointF middle = track.center();
    if (horizontal)
        track = QRectF(track.left() + 2, middle.y() - thickness / 2, track.width() - 4, thickness);
    else
        track = QRectF(middle.x() - thickness / 2, track.top() + 2, thickness, track.height() - 4);
    ControlShapes::box(painter, track, option.palette.color(QPalette::Mid), Qt::transparent, thickness / 2);
    QRectF used = track; // from the least value to the handle
    if (horizontal)
        option.upsideDown ? used.setLeft(handle.center().x()) : used.setRight(handle.center().x());
    else
        option.upsideDown ? used.setTop(handle.center().y()) : used.setBottom(handle.center().y());
    ControlShapes::box(painter, used, option.palette.color(QPalette::Highlight), Qt::transparent, thickness / 2);
    const qreal corner = handle.width() / 2;
    const bool held = option.state & State_Sunken && option.activeSubControls == SC_SliderHandle;
    const bool hovered = enabled && option.state & State_MouseOver;
    const QColor edge = hovered || held ? Colors::accent() : Colors::outline();
    ControlShapes::box(
        painter, handle, enabled ? QColor(Qt::white) : option.palette.color(QPalette::Button), edge, corner);
    if (option.state & State_HasFocus && option.state & State_KeyboardFocusChange)
        ControlShapes::focusRing(painter, handle.adjusted(-1, -1, 1, 1), corner + 1);
}

void CalmStyle::drawScrollBar(const QStyleOptionSlider &option, QPainter &painter, const QWidget *widget) const
{
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    if (option.maximum <= option.minimum)
        return;
    const bool strong = option.state & (State_MouseOver | State_Sunken);
    const qreal inset = strong ? 2 : 3;
    const QRectF thumb = QRectF(subControlRect(CC_ScrollBar, &option, SC_ScrollBarSlider, widget))
                             .adjusted(inset, inset, -inset, -inset);
    ControlShapes::box(painter, thumb, option.palette.color(strong ? QPalette::Dark : QPalette::Mid), Qt::transparent,
        std::min(thumb.width(), thumb.height()) / 2);
}

} // namespace tessaly
