// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tessaly {

class Settings;

/// Where the program shows itself: as an application with windows of its own from the start ("Dock"), in the tray
/// ("menu bar"), or both.
namespace AppPresence {

bool showInDock(const Settings &settings);
bool showInMenuBar(const Settings &settings);

/// The program must be reachable somewhere: without either the tray is switched back on, silently.
void apply(Settings &settings);

} // namespace AppPresence

} // namespace tessaly
