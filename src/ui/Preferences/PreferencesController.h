// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <memory>

namespace tessaly {

class Alerts;
class CaptureHistory;
class CommandTarget;
class HotkeyService;
class LoginItem;
class OpenPanels;
class Settings;

/// What the settings window needs of the program. Each outlives it. Who follows a setting listens to
/// Settings::changed.
struct PreferencesServices {
    Settings &settings;
    CaptureHistory &history;
    HotkeyService &hotkeys;
    LoginItem &loginItem;
    OpenPanels &openPanels;
    Alerts &alerts;
    CommandTarget &program; ///< what the keys of its window do that are no settings
    /// Lets the user choose the folder of the desktop's screenshots; what is to follow from it is the owner's.
    std::function<void()> chooseWatchedFolder = {};
};

/// The settings window; made when it is first shown. One for the program; main thread only.
class PreferencesController : public QObject {
    Q_OBJECT

public:
    explicit PreferencesController(const PreferencesServices &services);
    ~PreferencesController() override;

    /// Shows the window on the tab that the setting "settingsTab" names, or brings it to the front on that tab.
    void show();
    bool isVisible() const;
    void close();

Q_SIGNALS:
    /// The user has closed the window.
    void closed();

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
