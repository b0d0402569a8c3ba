// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/KeyboardMap.h"

#include "platform/x11/X11Reply.h"

namespace tessaly {

KeyboardMap::KeyboardMap(xcb_connection_t *xcb) : m_firstKey(xcb_get_setup(xcb)->min_keycode)
{
    const auto count = static_cast<uint8_t>(xcb_get_setup(xcb)->max_keycode - m_firstKey + 1);
    const auto keyboardRequest = xcb_get_keyboard_mapping(xcb, m_firstKey, count);
    const auto modifierRequest = xcb_get_modifier_mapping(xcb);
    const XcbReply<xcb_get_keyboard_mapping_reply_t> keyboard(
        xcb_get_keyboard_mapping_reply(xcb, keyboardRequest, nullptr));
    const XcbReply<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb_get_modifier_mapping_reply(xcb, modifierRequest, nullptr));
    if (!keyboard || !modifiers)
        return;
    m_symbolsPerKey = keyboard->keysyms_per_keycode;
    const xcb_keysym_t *symbols = xcb_get_keyboard_mapping_keysyms(keyboard.get());
    m_symbols = QList<xcb_keysym_t>(symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(keyboard.get()));
    const xcb_keycode_t *keys = xcb_get_modifier_mapping_keycodes(modifiers.get());
    const int keysPerModifier = modifiers->keycodes_per_modifier;
    for (int modifier = 0; modifier < 8; ++modifier)
        m_modifiers += QList<xcb_keycode_t>(keys + modifier * keysPerModifier, keys + (modifier + 1) * keysPerModifier);
}

QList<xcb_keycode_t> KeyboardMap::keysOf(xcb_keysym_t symbol) const
{
    QList<xcb_keycode_t> keys;
    for (qsizetype place = 0; place < m_symbols.size(); ++place) {
        const auto key = static_cast<xcb_keycode_t>(m_firstKey + place / m_symbolsPerKey);
        if (m_symbols[place] == symbol && !keys.contains(key))
            keys += key;
    }
    return keys;
}

uint16_t KeyboardMap::modifierOf(std::initializer_list<xcb_keysym_t> symbols) const
{
    QList<xcb_keycode_t> keys;
    for (const xcb_keysym_t symbol : symbols)
        keys += keysOf(symbol);
    for (qsizetype modifier = 0; modifier < m_modifiers.size(); ++modifier) {
        if (std::ranges::any_of(m_modifiers[modifier], [&](xcb_keycode_t key) { return keys.contains(key); }))
            return static_cast<uint16_t>(1U << modifier);
    }
    return 0;
}

} // namespace tessaly
