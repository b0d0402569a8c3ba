// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Welcome/SmallWindow.h"

namespace tessaly {

class CommandTarget;
class Settings;

/// What a new user needs to know, on one page.
class WelcomeGuide : public SmallWindow {
    Q_OBJECT

public:
    struct Facts {
        bool hasTray;
        QString regionKey; ///< empty where there is none
    };
    /// Keeps both references.
    WelcomeGuide(Settings &settings, CommandTarget &program, const Facts &facts);

private:
    void addFeatures(const Facts &facts);
    void addButtons();

    Settings &m_settings;
    CommandTarget &m_program;
};

} // namespace tessaly
