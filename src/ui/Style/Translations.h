// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Style/PlatformTexts.h"

#include <QTranslator>

namespace tessaly {

/// The texts of the program in one language, from its making until its end. Make it before the first window; windows
/// that are there keep their texts.
///
/// Only the chosen language is loaded, and none for English, which the texts in the code are in. A text without a
/// translation is shown in English, in its form for this desktop (PlatformTexts).
class Translations {
public:
    /// `language` is a code of core/Preferences/AppLanguages.h, not "system". Dates and numbers follow it where the
    /// system's are those of another language.
    explicit Translations(const QString &language);

private:
    PlatformTexts m_platform;
    QTranslator m_qt; ///< standard buttons and the like
    QTranslator m_own;
};

} // namespace tessaly
