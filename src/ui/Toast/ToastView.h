// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Toast/FloatingPanel.h"

namespace tessaly {

/// A notice: white words on black, which the pointer passes through.
class ToastView final : public FloatingPanel {
    Q_OBJECT

public:
    static constexpr int usualHeight = 40; ///< logical pixels
    static constexpr int air = 40; ///< left and right of the words together

    /// As wide as the words, where the screen has the room.
    ToastView(const QString &message, int mostWidth);

    const QString &message() const { return m_message; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_message;
};

} // namespace tessaly
