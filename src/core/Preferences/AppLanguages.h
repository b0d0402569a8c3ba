// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tessaly {

/// A language that the program can be shown in.
struct AppLanguage {
    const char *code; ///< as the setting "appLanguage" stores it
    const char *ownName; ///< UTF-8; never translated, so that everybody finds their own. Empty: that of the system
};

inline constexpr AppLanguage appLanguages[] = {
    { "system", "" },
    { "en", "English" },
    { "es", "Español" },
    { "de", "Deutsch" },
    { "fr", "Français" },
};

} // namespace tessaly
