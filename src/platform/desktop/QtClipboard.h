// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Clipboard.h"

#include <QTimer>

namespace tessaly {

/// The desktop's clipboard through Qt, on X11 and in a focused window on Wayland.
class QtClipboard final : public Clipboard {
    Q_OBJECT

public:
    /// There must be a QGuiApplication, which takes what was offered last and serves it until it ends.
    QtClipboard();

    void offer(std::unique_ptr<ClipboardOffer> offer) override;
    QStringList types() const override;
    std::optional<QStringList> knownTypes() const override;
    QByteArray data(const QString &type) const override;

    /// Before the program ends: what it offers goes to the desktop's clipboard manager, where one is running. Takes as
    /// long as the manager goes on fetching; the program then ends at once, and does not wait for a manager any more.
    void handOver();

private:
    mutable std::optional<QStringList> m_types; ///< of the present content, once they were asked for
    QTimer m_asking;
};

} // namespace tessaly
