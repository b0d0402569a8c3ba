// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

#include <functional>

namespace tessaly {

/// Says that something takes a while, with a moving bar and, where it can be, "Cancel"; modal over the active window.
class ProgressPanel final : public QDialog {
public:
    /// `cancelled` is called for the button, for Escape and for closing the panel; without it there is no button, and
    /// the panel stays.
    ProgressPanel(const QString &title, std::function<void()> cancelled);

    void reject() override;

private:
    std::function<void()> m_cancelled;
};

} // namespace tessaly
