// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QWidget>

namespace tessaly {

/// Says beside a lock where captures are kept and for how long.
class StartFooter : public QWidget {
    Q_OBJECT

public:
    explicit StartFooter(QWidget *parent = nullptr);

    void setText(const QString &text);

protected:
    void changeEvent(QEvent *event) override;

private:
    void dress();

    QLabel *m_lock;
    QLabel *m_text;
};

} // namespace tessaly
