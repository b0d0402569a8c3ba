// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace tessaly {

class CommandTarget;
class Settings;

/// The small windows beside the work: the welcome guide, what is new in this version, about the program, help. Each is
/// made when it is shown and given back when it is closed. One for the program; main thread only.
class WelcomeController : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        Settings &settings;
        CommandTarget &program; ///< what the guide's buttons and the keys of the windows do
        /// What the guide says about where Tessaly is to be found: the tray, or that there is none; and the key of a
        /// region, empty where this desktop gives programs no hot keys.
        std::function<bool()> hasTray;
        std::function<QString()> regionKey;
    };
    explicit WelcomeController(const Surroundings &surroundings);
    ~WelcomeController() override;

    /// Compares the version that ran last with this one and remembers this one. A first start owes nothing.
    void noteLaunch();
    bool owesWhatsNew() const;

    /// As the settings "showOnboardingOnLaunch" and "didShowOnboarding" say; remembers that it was shown.
    void showGuideIfNeeded();
    void showGuide();
    void showWhatsNew(); ///< and owes it no longer
    void showAbout();
    void showHelp();
    bool isVisible() const;
    void close();

Q_SIGNALS:
    /// The user has closed one of the windows.
    void closed();

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
