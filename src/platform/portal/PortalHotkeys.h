// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Hotkey/HotkeyBackend.h"

#include <memory>

namespace tessaly {

/// Hot keys by the desktop portal (org.freedesktop.portal.GlobalShortcuts): the desktop is told which keys are wanted,
/// and what they become is up to the user there. Nothing is waited for: the ability is None until the portal has said
/// that it offers shortcuts. There must be a QCoreApplication.
class PortalHotkeys final : public HotkeyBackend {
public:
    PortalHotkeys();
    ~PortalHotkeys() override;

    Ability ability() const override;
    bool add(quint32 identifier, CaptureAction action, quint32 keyCode, quint32 modifiers) override;
    void remove(quint32 identifier) override;
    std::optional<QString> given(CaptureAction action) const override;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
