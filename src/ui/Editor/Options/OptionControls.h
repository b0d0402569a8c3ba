// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLatin1StringView>
#include <QToolButton>

/// Small controls that the options share: each has a tooltip and an accessible name, is reached by Tab, and leaves the
/// focus on the canvas when it is clicked.
namespace tessaly::OptionControls {

/// A button that stays down. Without an icon it shows its title.
QToolButton *toggle(const QString &title, QLatin1StringView icon, const QString &help);

QToolButton *button(const QString &title, QLatin1StringView icon, const QString &help);

/// A list of choices to pick one from; `title` is its accessible name and tooltip.
QComboBox *choice(const QString &title, const QStringList &texts);

/// A control with its title before it.
QWidget *titled(const QString &title, QWidget *control);

} // namespace tessaly::OptionControls
