// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Editor/Options/MenuButton.h"

class QFrame;
class QVBoxLayout;

namespace tessaly {

/// A button that opens a panel of further controls below itself; a click elsewhere or Escape closes it.
class PopoverButton : public MenuButton {
    Q_OBJECT

public:
    PopoverButton(const QString &title, const QString &help, QWidget *parent = nullptr);

    /// Where the controls go.
    QVBoxLayout &content() { return *m_content; }
    QWidget &panel();

Q_SIGNALS:
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void open();

    QFrame *m_panel;
    QVBoxLayout *m_content;
};

} // namespace tessaly
