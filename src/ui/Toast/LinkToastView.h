// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Toast/FloatingPanel.h"

#include <QTimer>

#include <chrono>
#include <functional>

namespace tessaly {

/// A notice with a link's host and buttons that open the link or close the notice.
class LinkToastView final : public FloatingPanel {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds usualLifetime { 6000 };

    /// Exactly one of `onOpen` and `onClose` is called, once: the latter also when its time is over.
    LinkToastView(const QString &message, const QString &host, std::function<void()> onOpen,
        std::function<void()> onClose, std::chrono::milliseconds lifetime = usualLifetime);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *words(const QString &message, const QString &host);
    void end(const std::function<void()> &how);

    std::function<void()> m_onOpen;
    std::function<void()> m_onClose;
    QTimer m_lifetime;
};

} // namespace tessaly
