// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace tessaly {

/// A window of its own with something to read and a row of buttons below. It deletes itself when it is closed; Escape
/// closes it. It is as high as its content, or scrolls where the screen has not the room.
class SmallWindow : public QDialog {
    Q_OBJECT

public:
    /// `widthInLetters` is the width of the content.
    SmallWindow(const QString &title, int widthInLetters);

protected:
    QVBoxLayout &content() { return *m_content; }
    QHBoxLayout &buttons() { return *m_buttons; }
    /// A button with some air beside its text, to be put into the row of buttons.
    static QPushButton *makeButton(const QString &text, const QString &toolTip);
    void showEvent(QShowEvent *event) override;

private:
    void fit();

    int m_widthInLetters;
    QVBoxLayout *m_content;
    QHBoxLayout *m_buttons;
    bool m_fitted = false;
};

} // namespace tessaly
