// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace tessaly {

/// The field over the grid. Escape empties it; the keys that go down or accept leave it for what was found.
class SearchField : public QLineEdit {
    Q_OBJECT

public:
    explicit SearchField(QWidget *parent = nullptr);

    /// Continues the query with what was typed elsewhere.
    void typeOn(const QString &text);

Q_SIGNALS:
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace tessaly
