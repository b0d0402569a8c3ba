// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Hotkey/CaptureAction.h"

#include <QString>

#include <optional>

namespace tessaly {

class Settings;

/// A key that goes down, as the window system tells it.
struct PressedKey {
    quint32 evdevCode = 0; ///< the kernel's; 0 where nothing tells it
    int key = 0; ///< of Qt::Key, as the modifiers make it
    Qt::KeyboardModifiers modifiers;
};

/// A stored key combination.
struct CaptureHotKey {
    /// Bits of `modifiers`. On the keyboards here they are Ctrl, Shift, Alt and Super.
    static constexpr quint32 command = 256;
    static constexpr quint32 shift = 512;
    static constexpr quint32 option = 2048;
    static constexpr quint32 control = 4096;

    quint32 keyCode = 0; ///< a number of core/Hotkey/KeyCodes.h
    quint32 modifiers = 0;
    QString keyLabel;

    static CaptureHotKey defaultOf(CaptureAction action);
    static CaptureHotKey load(const Settings &settings, CaptureAction action);
    Outcome save(Settings &settings, CaptureAction action) const;

    /// Absent without a modifier, and for a key that no combination can have, as a modifier alone.
    static std::optional<CaptureHotKey> from(const PressedKey &press);

    /// The first other action, in their order, that has this very combination.
    std::optional<CaptureAction> conflict(const Settings &settings, CaptureAction excluding) const;

    /// With the glyphs of the modifiers, in their fixed order.
    QString displayString() const;
    /// As it stands on the keyboards here: "Ctrl+Alt+4".
    QString keyText() const;
    /// As desktops read a combination, whatever the language: "CTRL+ALT+4". Empty for a key that is not known.
    QString triggerText() const;

    /// The same keys, whatever they are labelled.
    bool hasSameKeys(const CaptureHotKey &other) const
    {
        return keyCode == other.keyCode && modifiers == other.modifiers;
    }
    bool operator==(const CaptureHotKey &) const = default;
};

size_t qHash(const CaptureHotKey &hotKey, size_t seed = 0) noexcept;

} // namespace tessaly
