// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qt>

#include <array>
#include <span>

namespace tessaly {

/// A key that can be part of a combination.
struct KeyRow {
    enum class Kind {
        Character, ///< what it writes is up to the keyboard's layout
        Named, ///< the same on every layout
        Keypad, ///< a character of the block of digits
    };

    quint32 keyCode; ///< as it is stored: a number of the key's place, whatever the layout
    Kind kind;
    /// The kernel's codes (linux/input-event-codes.h), the main one first, 0 for no more: keyboards send different ones
    /// for some keys.
    std::array<quint16, 3> evdevCodes;
    Qt::Key key; ///< Qt's name for it, on the layout of the United States
    const char *label; ///< UTF-8; what a combination with it shows; empty where only its number tells
    const char *symbol; ///< its name in combinations that desktops read, as libxkbcommon has it
};

/// The one table of keys by their stored number.
namespace KeyCodes {

inline constexpr quint32 escape = 53;

std::span<const KeyRow> rows();

/// Null for a number that no key has.
const KeyRow *find(quint32 keyCode);
const KeyRow *findByEvdev(quint32 evdevCode);
/// For keys that come without a code, as those of programs that type. Shifted characters are not found.
const KeyRow *findByKey(int key, bool isOnKeypad);

} // namespace KeyCodes

} // namespace tessaly
