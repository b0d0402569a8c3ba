// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Sharing.h"

#include <optional>

namespace tessaly {

/// "Open with" through the desktop portal (org.freedesktop.portal.OpenURI), where the session bus has one.
class PortalSharing final : public Sharing {
public:
    /// Asks the bus the first time; a portal that takes too long to answer is asked again the next time.
    bool isAvailable() const override;
    Outcome share(const QString &path) override;

private:
    mutable std::optional<bool> m_available;
};

} // namespace tessaly
