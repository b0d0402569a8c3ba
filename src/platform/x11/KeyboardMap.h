// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

#include <initializer_list>
#include <xcb/xcb.h>

namespace tessaly {

/// Which key makes which symbol on a server's keyboard, and which modifier which key is, as they are when this is made.
class KeyboardMap {
public:
    static constexpr xcb_keysym_t escape = 0xff1b;
    static constexpr xcb_keysym_t numLock = 0xff7f;
    static constexpr xcb_keysym_t leftAlt = 0xffe9;
    static constexpr xcb_keysym_t rightAlt = 0xffea;
    static constexpr xcb_keysym_t leftSuper = 0xffeb;
    static constexpr xcb_keysym_t rightSuper = 0xffec;

    explicit KeyboardMap(xcb_connection_t *xcb);

    /// The keys that make a symbol, by their codes.
    QList<xcb_keycode_t> keysOf(xcb_keysym_t symbol) const;

    /// The bit of the first modifier that a key with one of the symbols is; 0 when none does.
    uint16_t modifierOf(std::initializer_list<xcb_keysym_t> symbols) const;

private:
    xcb_keycode_t m_firstKey;
    int m_symbolsPerKey = 0;
    QList<xcb_keysym_t> m_symbols;
    QList<QList<xcb_keycode_t>> m_modifiers; ///< the keys of each of the eight
};

} // namespace tessaly
