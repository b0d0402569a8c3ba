// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QStringList>
#include <QWidget>

class QPainter;

namespace tessaly {

/// The names of the keys of a combination in the order in which they are pressed: Ctrl, Shift, S. A minus key is
/// written with the minus sign.
QStringList keyNames(const QKeySequence &combination);

/// Keys drawn as the caps of a keyboard, in the painter's font. Sizes in logical pixels.
namespace KeyCapsPainting {
QSize size(const QStringList &keys, const QFontMetrics &metrics);
void draw(QPainter &painter, QPoint topLeft, const QStringList &keys, const QPalette &palette);
} // namespace KeyCapsPainting

/// A combination shown as the caps of a keyboard.
class KeyCaps : public QWidget {
public:
    explicit KeyCaps(const QStringList &keys, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QStringList m_keys;
};

} // namespace tessaly
