// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/PaletteEntries.h"

#include <QFrame>
#include <QPointer>

class QLabel;
class QLineEdit;

namespace tessaly {

class PaletteList;

/// A panel over the upper part of a window: type to find a command, a setting or a tool, and Return does it. It belongs
/// to the window and deletes itself when it closes: when something was chosen, with Escape, or when the user turns to
/// something else in the window.
class CommandPalette : public QFrame {
    Q_OBJECT

public:
    /// Shows one over `window`; where one is shown already, closes it. `actions` are the window's; `supply` may be
    /// null.
    static void open(QWidget &window, CommandActions &actions, PaletteSupply *supply);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    CommandPalette(QWidget &window, CommandActions &actions, PaletteSupply *supply);

    void find();
    void place();
    void choose();
    void leave();
    bool takesKey(int key);

    QWidget &m_window;
    PaletteSupply *m_supply;
    QList<PaletteEntry> m_entries;
    QPointer<QWidget> m_focusBefore;
    QLineEdit *m_field;
    PaletteList *m_list;
    QLabel *m_nothing;
};

} // namespace tessaly
