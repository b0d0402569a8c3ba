// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/AppPresence.h"

#include "core/Preferences/Settings.h"

namespace tessaly {

bool AppPresence::showInDock(const Settings &settings) { return settings.value(SettingKeys::showInDock); }
bool AppPresence::showInMenuBar(const Settings &settings) { return settings.value(SettingKeys::showInMenuBar); }

void AppPresence::apply(Settings &settings)
{
    if (!showInDock(settings) && !showInMenuBar(settings))
        (void)settings.set(SettingKeys::showInMenuBar, true); // holds for this run where it cannot be written
}

} // namespace tessaly
