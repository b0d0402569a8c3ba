// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Preferences/SettingKeys.h"

namespace tessaly {

/// The settings of one hot key. Key code and modifiers are numbers of core/Hotkey/CaptureHotKey.h.
struct HotKeyKeys {
    SettingKey<int> keyCode;
    SettingKey<int> modifiers;
    SettingKey<const char *> keyLabel;
};

/// In the order of CaptureAction.
inline constexpr HotKeyKeys hotKeyKeys[] = {
    { { "captureHotKeyKeyCode", 21 }, { "captureHotKeyModifiers", 2304 }, { "captureHotKeyKeyLabel", "4" } },
    { { "captureHotKeyWindowKeyCode", 23 }, { "captureHotKeyWindowModifiers", 2304 },
        { "captureHotKeyWindowKeyLabel", "5" } },
    { { "captureHotKeyFrontWindowKeyCode", 23 }, { "captureHotKeyFrontWindowModifiers", 2816 },
        { "captureHotKeyFrontWindowKeyLabel", "5" } },
    { { "captureHotKeyFullScreenKeyCode", 20 }, { "captureHotKeyFullScreenModifiers", 2304 },
        { "captureHotKeyFullScreenKeyLabel", "3" } },
    { { "captureHotKeyLastRegionKeyCode", 21 }, { "captureHotKeyLastRegionModifiers", 2816 },
        { "captureHotKeyLastRegionKeyLabel", "4" } },
    { { "captureHotKeyCopyTextKeyCode", 26 }, { "captureHotKeyCopyTextModifiers", 2304 },
        { "captureHotKeyCopyTextKeyLabel", "7" } },
};

} // namespace tessaly
