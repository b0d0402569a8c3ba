// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QStringList>

namespace tessaly {

class Settings;

/// Which of the languages of AppLanguages.h the program is shown in.
namespace LanguageChoice {

/// The code that a name stands for: "de" for "de", "de_DE.UTF-8", "ger", "German" and "Deutsch". "system" for the empty
/// name and for every language that there are no texts in.
QString normalized(const QString &name);

/// The chosen language, or for "system" the first of `systemLanguages` ("de-AT", in the order of preference) that there
/// are texts in; "en" where there is none. Never "system".
QString shown(const QString &chosen, const QStringList &systemLanguages);

/// That of the stored choice, in whatever spelling, on this system.
QString shown(const Settings &settings);

/// Brings an older spelling of the stored choice to the code that it stands for. A language that this version does not
/// know stays stored, for one that does.
Outcome migrate(Settings &settings);

} // namespace LanguageChoice

} // namespace tessaly
