// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QStringList>
#include <QWidget>

namespace tessaly {

/// The names of the keys of a combination in the order in which they are pressed: Ctrl, Shift, S. A minus key is
/// written with the minus sign.
QStringList keyNames(const QKeySequence &combination);

/// Keys drawn as the caps of a keyboard.
class KeyCaps : public QWidget {
public:
    explicit KeyCaps(const QStringList &keys, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QSize capSize(const QString &key) const;

    QStringList m_keys;
};

} // namespace tessaly
