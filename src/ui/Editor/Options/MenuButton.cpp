// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/MenuButton.h"

#include "ui/Style/Icons.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace tessaly {

MenuButton::MenuButton(const QString &title, const QString &name, const QString &help, QWidget *parent) :
    QToolButton(parent)
{
    setText(title);
    setAccessibleName(name);
    setToolTip(help);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setPopupMode(QToolButton::InstantPopup);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
}

QSize MenuButton::sizeHint() const
{
    const int inset = 6;
    const int textWidth = text().isEmpty() ? 0 : fontMetrics().horizontalAdvance(text()) + inset;
    const int height = std::max(fontMetrics().height() + 8, 28);
    return { textWidth + chevronSize + 2 * inset, height };
}

void MenuButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.features &= ~QStyleOptionToolButton::HasMenu;
    option.text.clear();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    const int inset = text().isEmpty() ? (width() - chevronSize) / 2 : 6;
    const QRect chevron(width() - inset - chevronSize, (height() - chevronSize) / 2, chevronSize, chevronSize);
    const QRect label = rect().adjusted(inset, 0, -inset - chevronSize, 0);
    Icons::icon(QLatin1StringView("chevron-down"))
        .paint(&painter, QStyle::visualRect(layoutDirection(), rect(), chevron), Qt::AlignCenter,
            isEnabled() ? QIcon::Normal : QIcon::Disabled);
    painter.drawItemText(QStyle::visualRect(layoutDirection(), rect(), label), int(Qt::AlignVCenter | Qt::AlignLeading),
        palette(), isEnabled(), text(), QPalette::ButtonText);
}

} // namespace tessaly
