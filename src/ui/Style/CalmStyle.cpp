// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/CalmStyle.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"
#include "ui/Style/Icons.h"

#include <QPainter>
#include <QStyleOption>
#include <QToolButton>

#include <optional>

namespace tessaly {

namespace {

std::optional<Qt::ArrowType> arrowOf(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_IndicatorArrowDown:
        return Qt::DownArrow;
    case QStyle::PE_IndicatorArrowUp:
        return Qt::UpArrow;
    case QStyle::PE_IndicatorArrowLeft:
        return Qt::LeftArrow;
    case QStyle::PE_IndicatorArrowRight:
        return Qt::RightArrow;
    default:
        return std::nullopt;
    }
}

/// A line in the middle, across the bar.
void drawToolBarSeparator(const QStyleOption &option, QPainter &painter)
{
    const QRect &rect = option.rect;
    const bool upright = option.state & QStyle::State_Horizontal;
    painter.fillRect(upright ? QRect(rect.center().x(), rect.top() + 6, 1, rect.height() - 12)
                             : QRect(rect.left() + 6, rect.center().y(), rect.width() - 12, 1),
        Colors::separator());
}

} // namespace

CalmStyle::CalmStyle() : QProxyStyle(QStringLiteral("Fusion")) { }

void CalmStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    if (const auto direction = arrowOf(element)) {
        ControlShapes::chevron(*painter, option->rect, *direction, option->palette.color(QPalette::ButtonText));
        return;
    }
    switch (element) {
    case PE_PanelButtonTool:
    case PE_IndicatorButtonDropDown:
        ControlShapes::toolButton(*option, *painter);
        return;
    case PE_PanelButtonCommand: {
        const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
        ControlShapes::pushButton(*option, *painter, button && button->features & QStyleOptionButton::DefaultButton);
        return;
    }
    case PE_PanelLineEdit: {
        const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(option);
        if (frame && frame->lineWidth > 0) // without a frame it lies in a field that is drawn already
            ControlShapes::field(*option, *painter, option->palette.color(QPalette::Base));
        return;
    }
    case PE_FrameLineEdit:
        ControlShapes::field(*option, *painter, Qt::transparent);
        return;
    case PE_IndicatorCheckBox:
        ControlShapes::checkBox(*option, *painter);
        return;
    case PE_IndicatorRadioButton:
        ControlShapes::radioButton(*option, *painter);
        return;
    case PE_FrameFocusRect: {
        if (!(option->state & State_KeyboardFocusChange))
            return;
        const int grown = qobject_cast<const QToolButton *>(widget) ? 3 : 0; // what the tool button took off
        ControlShapes::focusRing(*painter, option->rect.adjusted(-grown, -grown, grown, grown));
        return;
    }
    case PE_IndicatorTabClose: {
        const bool hovered = option->state & (State_MouseOver | State_Sunken);
        ControlShapes::box(
            *painter, option->rect, hovered ? Colors::hovered() : QColor(Qt::transparent), Qt::transparent, 4);
        Icons::icon(QLatin1StringView("close")).paint(painter, option->rect);
        return;
    }
    case PE_IndicatorToolBarSeparator:
        drawToolBarSeparator(*option, *painter);
        return;
    case PE_PanelStatusBar:
        painter->fillRect(QRect(option->rect.left(), option->rect.top(), option->rect.width(), 1), Colors::separator());
        return;
    case PE_PanelTipLabel:
        painter->fillRect(option->rect, option->palette.toolTipBase());
        ControlShapes::box(*painter, option->rect, Qt::transparent, Colors::outline(), 0);
        return;
    case PE_PanelMenu:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        [[fallthrough]];
    case PE_Frame:
    case PE_FrameMenu:
        ControlShapes::box(*painter, option->rect, Qt::transparent, Colors::outline(), 0);
        return;
    case PE_FrameStatusBarItem:
    case PE_FrameTabBarBase:
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void CalmStyle::drawMenuEntry(
    ControlElement element, const QStyleOptionMenuItem &option, QPainter &painter, const QWidget *widget) const
{
    QStyleOptionMenuItem plain = option;
    const bool open = element == CE_MenuBarItem && option.state & State_Sunken;
    const bool separator = option.menuItemType == QStyleOptionMenuItem::Separator;
    if (separator && option.text.isEmpty()) {
        const QRect line(option.rect.left() + 8, option.rect.center().y(), option.rect.width() - 16, 1);
        painter.fillRect(line, Colors::separator());
        return;
    }
    plain.state &= ~(State_Selected | State_Sunken);
    if (element == CE_MenuBarItem)
        painter.fillRect(option.rect, option.palette.window());
    if (option.state & State_Selected && option.state & State_Enabled && !separator)
        ControlShapes::box(painter, QRectF(option.rect).adjusted(1, 1, -1, -1),
            open ? Colors::pressed() : Colors::hovered(), Qt::transparent, 5);
    if (element == CE_MenuItem)
        return QProxyStyle::drawControl(element, &plain, &painter, widget);
    const int mnemonic = styleHint(SH_UnderlineShortcut, &option, widget) ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
    drawItemText(&painter, option.rect, Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine | mnemonic,
        option.palette, option.state & State_Enabled, option.text, QPalette::WindowText);
}

void CalmStyle::drawPushButtonLabel(const QStyleOptionButton &option, QPainter &painter, const QWidget *widget) const
{
    QStyleOptionButton label = option;
    const bool accented = option.features & QStyleOptionButton::DefaultButton || option.state & State_On;
    if (accented && option.state & State_Enabled)
        label.palette.setBrush(QPalette::ButtonText, option.palette.highlightedText());
    QProxyStyle::drawControl(CE_PushButtonLabel, &label, &painter, widget);
}

void CalmStyle::drawControl(
    ControlElement element, const QStyleOption *option, QPainter *painter, const QWidget *widget) const
{
    const auto *menuItem = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
    switch (element) {
    case CE_MenuItem:
    case CE_MenuBarItem:
        if (menuItem)
            return drawMenuEntry(element, *menuItem, *painter, widget);
        break;
    case CE_MenuBarEmptyArea:
        painter->fillRect(option->rect, option->palette.window());
        return;
    case CE_PushButtonLabel:
        if (button)
            return drawPushButtonLabel(*button, *painter, widget);
        break;
    case CE_TabBarTabShape:
        if (tab)
            return ControlShapes::tab(*tab, *painter);
        break;
    case CE_ToolBar:
        painter->fillRect(option->rect, option->palette.window());
        return;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

QSize CalmStyle::sizeFromContents(
    ContentsType type, const QStyleOption *option, const QSize &contents, const QWidget *widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto *menuItem = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    switch (type) {
    case CT_MenuItem:
        return menuItem && menuItem->menuItemType == QStyleOptionMenuItem::Separator ? size : size + QSize(8, 4);
    case CT_PushButton:
        return size + QSize(8, 4);
    case CT_ComboBox:
        return size + QSize(4, 4);
    case CT_LineEdit:
        return size + QSize(0, 4);
    case CT_TabBarTab:
        return size + QSize(8, 6);
    default:
        return size;
    }
}

int CalmStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_TabBarTabShiftVertical:
    case PM_TabBarTabShiftHorizontal:
        return 0;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 18;
    case PM_SliderLength:
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return 18;
    case PM_ScrollBarExtent:
        return 12;
    case PM_ScrollBarSliderMin:
        return 32;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return 4;
    case PM_ToolBarSeparatorExtent:
        return 13;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

} // namespace tessaly
