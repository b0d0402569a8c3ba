// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Clipboard.h"
#include "core/Desktop/WindowLayers.h"
#include "core/Hotkey/HotkeyBackend.h"

#include <memory>

/// What the program with the windows takes from the session that Qt runs on, which is not always the one that is
/// captured.
namespace tessaly::DesktopChoice {

/// Before the QGuiApplication is made. On Wayland it lets windows go without the roles that Qt gives them, and Qt
/// without OpenGL. Qt reads both variables whenever a window is shown, so they stay, and DesktopLinks keeps them from
/// the programs that it starts.
void prepareEnvironment();

/// There must be a QGuiApplication.
std::unique_ptr<WindowLayers> windowLayers();

/// Whether a window is shown where it asks to be; else it goes where the desktop wants it, but for the layers.
bool windowsPlaceThemselves();

/// The session's clipboard where Qt's does not do; null where Qt's does.
std::unique_ptr<Clipboard> ownClipboard();

/// How this desktop lets a program hear key combinations; one that offers nothing where it does not.
std::unique_ptr<HotkeyBackend> hotkeys();

} // namespace tessaly::DesktopChoice
