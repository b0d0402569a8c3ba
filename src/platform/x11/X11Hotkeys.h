// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Hotkey/HotkeyBackend.h"

#include <memory>

class QString;

namespace tessaly {

/// Hot keys by grabs on the root window of the X server, on a connection of their own. Nothing is heard while another
/// program has all keys, as one with an open menu does. There must be a QCoreApplication.
class X11Hotkeys final : public HotkeyBackend {
public:
    /// On the environment's display or another one (":1"). Without a server the ability is None; one that goes away
    /// later refuses everything.
    X11Hotkeys();
    explicit X11Hotkeys(const QString &display);
    ~X11Hotkeys() override;

    Ability ability() const override;
    bool add(quint32 identifier, CaptureAction action, quint32 keyCode, quint32 modifiers) override;
    void remove(quint32 identifier) override;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
