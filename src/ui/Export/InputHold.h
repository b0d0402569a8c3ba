// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace tessaly {

/// Keeps what the user does away from every window but one while it lives. What was begun before may end: releases of
/// keys and buttons pass.
class InputHold final : public QObject {
public:
    InputHold();

    /// The window that goes on taking input; it must outlive this or be replaced.
    void setException(QWidget *window) { m_exception = window; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool belongsToException(const QObject *object) const;

    QWidget *m_exception = nullptr;
};

} // namespace tessaly
