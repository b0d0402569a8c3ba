// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Hotkey/CaptureAction.h"

#include <QString>

#include <functional>
#include <optional>

namespace tessaly {

/// The desktop's way to hear a key combination whatever program is in front. Main thread only.
class HotkeyBackend {
public:
    /// What this desktop lets a program do.
    enum class Ability {
        None, ///< nothing: the desktop's own shortcut settings can start `tessaly capture …`
        Grabs, ///< the combination itself is taken, or refused because another program holds it
        Asks, ///< the desktop is asked; the user decides there which combination it becomes
    };
    virtual ~HotkeyBackend();

    virtual Ability ability() const = 0;

    /// Takes the combination under a number; false where it is refused. `action` says what it is for where the user is
    /// asked.
    virtual bool add(quint32 identifier, CaptureAction action, quint32 keyCode, quint32 modifiers) = 0;
    virtual void remove(quint32 identifier) = 0;

    /// Where the desktop is asked: which keys it has given to the action, in its own words, empty for none. Absent
    /// while it has not answered, and where the combination is taken as it is.
    virtual std::optional<QString> given(CaptureAction action) const;

    /// Called on the main thread, never from within add().
    std::function<void(quint32 identifier)> pressed;
    /// The keyboard, or what the desktop has given, has changed: all is to be added anew.
    std::function<void()> changed;
};

/// Of a desktop that offers nothing.
class MissingHotkeys final : public HotkeyBackend {
public:
    Ability ability() const override { return Ability::None; }
    bool add(quint32, CaptureAction, quint32, quint32) override { return false; }
    void remove(quint32) override { }
};

} // namespace tessaly
