// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

namespace tessaly {

/// Shows a colour with its text, and lets the user pick another.
class ColorButton : public QPushButton {
    Q_OBJECT

public:
    /// `title` stands over the picker.
    explicit ColorButton(QString title, QWidget *parent = nullptr);

    /// As ColorHex reads it; emits nothing.
    void setColor(const QString &hex);

Q_SIGNALS:
    void picked(const QString &hex);

protected:
    void changeEvent(QEvent *event) override;

private:
    void pick();
    void drawSwatch();

    QString m_title;
    QColor m_color;
};

} // namespace tessaly
