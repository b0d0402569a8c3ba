// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolButton>

namespace tessaly {

/// A button that opens a menu or a panel: its title with a chevron behind it, and no other arrow.
class MenuButton : public QToolButton {
    Q_OBJECT

public:
    /// Without a title there is the chevron alone. `name` is the accessible one.
    MenuButton(const QString &title, const QString &name, const QString &help, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    static constexpr int chevronSize = 12;
};

} // namespace tessaly
