// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Toasts.h"

#include <QObject>

#include <optional>

namespace tessaly {

class CaptureService;

/// Keeps notices back while a capture is under way, in whose picture they would lie. Of those that came meanwhile the
/// last is shown when it has ended. One for the program.
class ToastsBetweenCaptures final : public QObject, public Toasts {
public:
    /// Keeps it.
    explicit ToastsBetweenCaptures(Toasts &shown) : m_shown(shown) { }

    /// The captures that are waited for from now on, until they are destroyed.
    void setCaptures(const CaptureService &captures);

    void show(const QString &message, std::chrono::milliseconds duration) override;
    void showLink(const QString &message, const QString &host, std::function<void()> onOpen) override;

private:
    /// At once, or instead of the `kept` one at the end of the capture.
    void showOrKeep(std::optional<std::function<void()>> &kept, std::function<void()> toast);
    void showKept();

    Toasts &m_shown;
    const CaptureService *m_captures = nullptr;
    std::optional<std::function<void()>> m_keptNotice, m_keptLink;
};

} // namespace tessaly
