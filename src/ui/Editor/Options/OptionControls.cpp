// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/OptionControls.h"

#include "ui/Style/Icons.h"

#include <QHBoxLayout>
#include <QLabel>

namespace tessaly::OptionControls {

QToolButton *button(const QString &title, QLatin1StringView icon, const QString &help)
{
    auto *button = new QToolButton;
    button->setText(title);
    if (!icon.isEmpty()) {
        button->setIcon(Icons::icon(icon));
        button->setIconSize({ 18, 18 });
    } else {
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    }
    button->setToolTip(help);
    button->setAccessibleName(title);
    button->setAutoRaise(true);
    button->setMinimumHeight(28);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QToolButton *toggle(const QString &title, QLatin1StringView icon, const QString &help)
{
    QToolButton *toggle = button(title, icon, help);
    toggle->setCheckable(true);
    return toggle;
}

QComboBox *choice(const QString &title, const QStringList &texts)
{
    auto *choice = new QComboBox;
    choice->addItems(texts);
    choice->setToolTip(title);
    choice->setAccessibleName(title);
    choice->setFocusPolicy(Qt::TabFocus);
    return choice;
}

QWidget *titled(const QString &title, QWidget *control)
{
    auto *pair = new QWidget;
    auto *layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    auto *label = new QLabel(title);
    label->setBuddy(control);
    layout->addWidget(label);
    layout->addWidget(control);
    return pair;
}

} // namespace tessaly::OptionControls
