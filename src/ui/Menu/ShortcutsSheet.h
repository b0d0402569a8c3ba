// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace tessaly {

/// The most used commands with their keys, and the letters of the tools.
class ShortcutsSheet : public QDialog {
    Q_OBJECT

public:
    explicit ShortcutsSheet(QWidget *parent = nullptr);

    /// Shows one above `window`, which deletes itself when it is closed.
    static void showAbove(QWidget &window);

private:
    QWidget *content();
};

} // namespace tessaly
