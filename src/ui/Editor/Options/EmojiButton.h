// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Editor/Options/MenuButton.h"

class QGridLayout;
class QLineEdit;

namespace tessaly {

/// Shows the sticker in use and opens a grid of emoji, with a field for any other.
class EmojiButton : public MenuButton {
    Q_OBJECT

public:
    explicit EmojiButton(QWidget *parent = nullptr);

    void setEmoji(const QString &emoji);

Q_SIGNALS:
    void picked(const QString &emoji);

private:
    void pick(const QString &emoji);
    QWidget *makeGrid();

    QMenu *m_menu;
    QLineEdit *m_other;
};

} // namespace tessaly
