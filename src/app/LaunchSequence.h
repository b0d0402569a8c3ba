// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <vector>

namespace tessaly {

class DesktopServices;
class Presence;

/// Sets the program up, step by step. What the first window would have to wait for is only scheduled.
class LaunchSequence {
public:
    /// What the program is started for.
    enum class Kind {
        Plain, ///< to be used; nothing is named to open
        Resident, ///< the same with the session, to be there when it is wanted
        Files, ///< to open something
        Errand, ///< for one capture, which nothing may disturb
    };

    /// Keeps the references, which live as long as the application.
    LaunchSequence(DesktopServices &services, Presence &presence, Kind kind);

    void run();

private:
    /// Done after run(), once the first window has been painted, in the order of the calls.
    void soon(void (LaunchSequence::*step)());
    /// The same, when the program is not just being used for the first time.
    void atLeisure(void (LaunchSequence::*step)());
    void schedule(std::chrono::milliseconds delay, std::vector<void (LaunchSequence::*)()> steps);

    void loadHistory();
    void giveQuickAccessItsTextCopier();
    void installTextRecognizer();
    void prewarmTextRecognizer();
    void noteLaunch();
    void migrateLanguage();
    void applyPresence();
    void applyAppearance();
    void reloadHotkeys();
    void startWatcher();
    void showOnboardingIfNeeded();
    void pruneHistory();
    void showWindows();
    void showWhatsNewIfDue();
    void prepareCaptures();
    void followSettings();

    DesktopServices &m_services;
    Presence &m_presence;
    Kind m_kind;
    std::vector<void (LaunchSequence::*)()> m_soon, m_atLeisure;
};

} // namespace tessaly
