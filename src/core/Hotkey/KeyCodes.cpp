// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Hotkey/KeyCodes.h"

#include <algorithm>

namespace tessaly::KeyCodes {

namespace {

using enum KeyRow::Kind;

constexpr auto table = std::to_array<KeyRow>({
    { 0, Character, { 30 }, Qt::Key_A, "A", "a" },
    { 1, Character, { 31 }, Qt::Key_S, "S", "s" },
    { 2, Character, { 32 }, Qt::Key_D, "D", "d" },
    { 3, Character, { 33 }, Qt::Key_F, "F", "f" },
    { 4, Character, { 35 }, Qt::Key_H, "H", "h" },
    { 5, Character, { 34 }, Qt::Key_G, "G", "g" },
    { 6, Character, { 44 }, Qt::Key_Z, "Z", "z" },
    { 7, Character, { 45 }, Qt::Key_X, "X", "x" },
    { 8, Character, { 46 }, Qt::Key_C, "C", "c" },
    { 9, Character, { 47 }, Qt::Key_V, "V", "v" },
    { 11, Character, { 48 }, Qt::Key_B, "B", "b" },
    { 12, Character, { 16 }, Qt::Key_Q, "Q", "q" },
    { 13, Character, { 17 }, Qt::Key_W, "W", "w" },
    { 14, Character, { 18 }, Qt::Key_E, "E", "e" },
    { 15, Character, { 19 }, Qt::Key_R, "R", "r" },
    { 16, Character, { 21 }, Qt::Key_Y, "Y", "y" },
    { 17, Character, { 20 }, Qt::Key_T, "T", "t" },
    { 31, Character, { 24 }, Qt::Key_O, "O", "o" },
    { 32, Character, { 22 }, Qt::Key_U, "U", "u" },
    { 34, Character, { 23 }, Qt::Key_I, "I", "i" },
    { 35, Character, { 25 }, Qt::Key_P, "P", "p" },
    { 37, Character, { 38 }, Qt::Key_L, "L", "l" },
    { 38, Character, { 36 }, Qt::Key_J, "J", "j" },
    { 40, Character, { 37 }, Qt::Key_K, "K", "k" },
    { 45, Character, { 49 }, Qt::Key_N, "N", "n" },
    { 46, Character, { 50 }, Qt::Key_M, "M", "m" },
    { 18, Character, { 2 }, Qt::Key_1, "1", "1" },
    { 19, Character, { 3 }, Qt::Key_2, "2", "2" },
    { 20, Character, { 4 }, Qt::Key_3, "3", "3" },
    { 21, Character, { 5 }, Qt::Key_4, "4", "4" },
    { 23, Character, { 6 }, Qt::Key_5, "5", "5" },
    { 22, Character, { 7 }, Qt::Key_6, "6", "6" },
    { 26, Character, { 8 }, Qt::Key_7, "7", "7" },
    { 28, Character, { 9 }, Qt::Key_8, "8", "8" },
    { 25, Character, { 10 }, Qt::Key_9, "9", "9" },
    { 29, Character, { 11 }, Qt::Key_0, "0", "0" },
    { 10, Character, { 86 }, Qt::Key_Less, "<", "less" },
    { 24, Character, { 13 }, Qt::Key_Equal, "=", "equal" },
    { 27, Character, { 12 }, Qt::Key_Minus, "-", "minus" },
    { 30, Character, { 27 }, Qt::Key_BracketRight, "]", "bracketright" },
    { 33, Character, { 26 }, Qt::Key_BracketLeft, "[", "bracketleft" },
    { 39, Character, { 40 }, Qt::Key_Apostrophe, "'", "apostrophe" },
    { 41, Character, { 39 }, Qt::Key_Semicolon, ";", "semicolon" },
    { 42, Character, { 43 }, Qt::Key_Backslash, "\\", "backslash" },
    { 43, Character, { 51 }, Qt::Key_Comma, ",", "comma" },
    { 44, Character, { 53 }, Qt::Key_Slash, "/", "slash" },
    { 47, Character, { 52 }, Qt::Key_Period, ".", "period" },
    { 50, Character, { 41 }, Qt::Key_QuoteLeft, "`", "grave" },
    { 93, Character, { 124 }, Qt::Key_yen, "¥", "yen" },
    { 94, Character, { 89 }, Qt::Key_Underscore, "_", "underscore" },
    { 36, Named, { 28 }, Qt::Key_Return, "↩", "Return" },
    { 48, Named, { 15 }, Qt::Key_Tab, "⇥", "Tab" },
    { 49, Named, { 57 }, Qt::Key_Space, "Space", "space" },
    { 51, Named, { 14 }, Qt::Key_Backspace, "⌫", "BackSpace" },
    { 53, Named, { 1 }, Qt::Key_Escape, "", "Escape" },
    { 123, Named, { 105 }, Qt::Key_Left, "←", "Left" },
    { 124, Named, { 106 }, Qt::Key_Right, "→", "Right" },
    { 125, Named, { 108 }, Qt::Key_Down, "↓", "Down" },
    { 126, Named, { 103 }, Qt::Key_Up, "↑", "Up" },
    { 115, Named, { 102 }, Qt::Key_Home, "", "Home" },
    { 119, Named, { 107 }, Qt::Key_End, "", "End" },
    { 116, Named, { 104 }, Qt::Key_PageUp, "", "Prior" },
    { 121, Named, { 109 }, Qt::Key_PageDown, "", "Next" },
    { 114, Named, { 110, 138 }, Qt::Key_Insert, "", "Insert" },
    { 117, Named, { 111 }, Qt::Key_Delete, "", "Delete" },
    { 110, Named, { 127, 139 }, Qt::Key_Menu, "", "Menu" },
    { 105, Named, { 99, 210, 183 }, Qt::Key_Print, "", "Print" },
    { 107, Named, { 70, 184 }, Qt::Key_ScrollLock, "", "Scroll_Lock" },
    { 113, Named, { 119, 185 }, Qt::Key_Pause, "", "Pause" },
    { 122, Named, { 59 }, Qt::Key_F1, "", "F1" },
    { 120, Named, { 60 }, Qt::Key_F2, "", "F2" },
    { 99, Named, { 61 }, Qt::Key_F3, "", "F3" },
    { 118, Named, { 62 }, Qt::Key_F4, "", "F4" },
    { 96, Named, { 63 }, Qt::Key_F5, "", "F5" },
    { 97, Named, { 64 }, Qt::Key_F6, "", "F6" },
    { 98, Named, { 65 }, Qt::Key_F7, "", "F7" },
    { 100, Named, { 66 }, Qt::Key_F8, "", "F8" },
    { 101, Named, { 67 }, Qt::Key_F9, "", "F9" },
    { 109, Named, { 68 }, Qt::Key_F10, "", "F10" },
    { 103, Named, { 87 }, Qt::Key_F11, "", "F11" },
    { 111, Named, { 88 }, Qt::Key_F12, "", "F12" },
    { 106, Named, { 186 }, Qt::Key_F16, "", "F16" },
    { 64, Named, { 187 }, Qt::Key_F17, "", "F17" },
    { 79, Named, { 188 }, Qt::Key_F18, "", "F18" },
    { 80, Named, { 189 }, Qt::Key_F19, "", "F19" },
    { 90, Named, { 190 }, Qt::Key_F20, "", "F20" },
    { 82, Keypad, { 82 }, Qt::Key_0, "0", "KP_0" },
    { 83, Keypad, { 79 }, Qt::Key_1, "1", "KP_1" },
    { 84, Keypad, { 80 }, Qt::Key_2, "2", "KP_2" },
    { 85, Keypad, { 81 }, Qt::Key_3, "3", "KP_3" },
    { 86, Keypad, { 75 }, Qt::Key_4, "4", "KP_4" },
    { 87, Keypad, { 76 }, Qt::Key_5, "5", "KP_5" },
    { 88, Keypad, { 77 }, Qt::Key_6, "6", "KP_6" },
    { 89, Keypad, { 71 }, Qt::Key_7, "7", "KP_7" },
    { 91, Keypad, { 72 }, Qt::Key_8, "8", "KP_8" },
    { 92, Keypad, { 73 }, Qt::Key_9, "9", "KP_9" },
    { 65, Keypad, { 83 }, Qt::Key_Period, ".", "KP_Decimal" },
    { 67, Keypad, { 55 }, Qt::Key_Asterisk, "*", "KP_Multiply" },
    { 69, Keypad, { 78 }, Qt::Key_Plus, "+", "KP_Add" },
    { 75, Keypad, { 98 }, Qt::Key_Slash, "/", "KP_Divide" },
    { 78, Keypad, { 74 }, Qt::Key_Minus, "-", "KP_Subtract" },
    { 81, Keypad, { 117 }, Qt::Key_Equal, "=", "KP_Equal" },
    { 76, Keypad, { 96 }, Qt::Key_Enter, "", "KP_Enter" },
});

const KeyRow *firstOf(auto matches)
{
    const auto row = std::ranges::find_if(table, matches);
    return row == table.end() ? nullptr : &*row;
}

} // namespace

std::span<const KeyRow> rows() { return table; }

const KeyRow *find(quint32 keyCode)
{
    return firstOf([=](const KeyRow &row) { return row.keyCode == keyCode; });
}

const KeyRow *findByEvdev(quint32 evdevCode)
{
    if (evdevCode == 0)
        return nullptr;
    return firstOf(
        [=](const KeyRow &row) { return std::ranges::find(row.evdevCodes, evdevCode) != row.evdevCodes.end(); });
}

const KeyRow *findByKey(int key, bool isOnKeypad)
{
    const int wanted = key == Qt::Key_Backtab ? int(Qt::Key_Tab) : key;
    return firstOf([=](const KeyRow &row) {
        return row.key == wanted && (row.kind == Named || (row.kind == Keypad) == isOnKeypad);
    });
}

} // namespace tessaly::KeyCodes
