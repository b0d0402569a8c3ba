// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/Commands.h"

#include <QDialog>

namespace tessaly {

/// The most used commands with their keys, and the letters of the tools.
class ShortcutsSheet : public QDialog {
    Q_OBJECT

public:
    explicit ShortcutsSheet(QWidget *parent = nullptr);

    /// The general commands that it lists, in their order.
    static std::span<const CommandId> generalCommands();

private:
    QWidget *content();
};

} // namespace tessaly
