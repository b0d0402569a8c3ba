// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Clipboard.h"

#include <memory>

namespace tessaly {

/// The clipboard of a Wayland compositor that lets programs set it without a focused window (data-control), on a
/// connection of its own. Needs an event loop; once the compositor has gone it is empty for ever.
class DataControlClipboard final : public Clipboard {
    Q_OBJECT

public:
    /// Null where the compositor has no such thing.
    static std::unique_ptr<Clipboard> create();
    ~DataControlClipboard() override;

    /// Readers are served in the background, however slow they are.
    void offer(std::unique_ptr<ClipboardOffer> offer) override;
    QStringList types() const override;
    std::optional<QStringList> knownTypes() const override;
    /// Waits for the other program; gives up when nothing comes for two seconds.
    QByteArray data(const QString &type) const override;

private:
    struct Implementation;
    DataControlClipboard();
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
