// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CaptureDesk.h"
#include "app/ProgramCommands.h"
#include "app/SessionClipboard.h"
#include "core/Base/Clock.h"
#include "core/Capture/ToastsBetweenCaptures.h"
#include "core/Document/DocumentActions.h"
#include "core/Document/RecentDocuments.h"
#include "core/Editing/MarkCommands.h"
#include "core/Frame/FrameSettings.h"
#include "core/History/CaptureHistory.h"
#include "core/Hotkey/HotkeyService.h"
#include "core/Intents/Intents.h"
#include "core/Preferences/LanguageChoice.h"
#include "core/Preferences/Settings.h"
#include "core/Text/TextCopier.h"
#include "platform/desktop/AutostartEntry.h"
#include "platform/desktop/DesktopLinks.h"
#include "platform/desktop/PortalSharing.h"
#include "platform/recognition/WorkerRecognizer.h"
#include "ui/Editor/EditorWindowController.h"
#include "ui/Export/ProgressWork.h"
#include "ui/Export/WidgetAlerts.h"
#include "ui/Export/WidgetOpenPanels.h"
#include "ui/Export/WidgetSavePanels.h"
#include "ui/Menu/PaletteEntries.h"
#include "ui/Preferences/PreferencesController.h"
#include "ui/Start/StartWindowController.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/Translations.h"
#include "ui/Toast/WidgetToasts.h"
#include "ui/Tray/TrayPresence.h"
#include "ui/Welcome/WelcomeController.h"

namespace tessaly {

/// Exactly one of every service, in the order in which they need each other. What a start need not wait for is made
/// when it is first used. There must be a QApplication.
class DesktopServices : public QObject {
    Q_OBJECT

public:
    DesktopServices();
    ~DesktopServices() override;

    SystemClock clock;
    Settings settings { Settings::defaultPath() };
    Translations texts { LanguageChoice::shown(settings) };
    Appearance appearance { settings };
    SavedStyles styles { settings };
    CopiedStyle copiedStyle;
    FrameSettings frameSettings { settings, FrameSettings::defaultDataFolder() };
    RecentDocuments recentDocuments { settings };
    SessionClipboard clipboard;
    PortalSharing sharing;
    WidgetAlerts alerts;
    WidgetSavePanels panels { settings };
    WidgetOpenPanels openPanels;
    ProgressWork work;
    ExportService exports { { settings, clipboard, alerts, panels, sharing, work, clock } };
    DocumentActions documents { { settings, alerts, panels, work, exports, recentDocuments } };
    CaptureHistory history { { { HistoryStore::defaultDirectory() }, settings, clock } };
    DesktopLinks links;
    std::unique_ptr<WindowLayers> layers; ///< when a window first lies above others
    WidgetToasts windowToasts;
    ToastsBetweenCaptures toasts { windowToasts };
    WorkerRecognizer recognizer { { WorkerRecognizer::systemLanguages() } };
    TextCopier textCopier { recognizer, clipboard, toasts, links };
    TextCopier *quickAccessCopier = nullptr; ///< what a thumbnail copies text with
    Intents intents { { [this]() -> CaptureService & { return captureDesk().captures(); }, history,
        [this](const QUuid &id) { editors.openHistoryEntry(id); } } };
    ProgramCommands commands { *this };
    PaletteSupply palette;
    EditorServices editorServices { settings, styles, copiedStyle, frameSettings, clipboard, alerts, work, exports,
        documents, recentDocuments, appearance, clock, history, recognizer, textCopier, toasts, links, openPanels,
        &commands, [this](const RasterImage &image) { captureDesk().pins().pin(image); }, &palette };
    EditorWindowController editors { editorServices };
    StartWindowController start { { history, settings, clipboard, exports, links, clock },
        { .openFile = [this] { editors.chooseFiles(); },
            .paste = [this] { editors.openFromClipboard(); },
            .openEntry = [this](const QUuid &id) { editors.openHistoryEntry(id); },
            .openDropped = [this](const DroppedContent &content) { editors.openDropped(content); },
            .program = &editors,
            .palette = &palette } };
    AutostartEntry loginItem;
    std::unique_ptr<RecognitionTask> reading; ///< for the history

    WindowLayers &windowLayers();
    /// All that captures; null while nothing has needed it.
    CaptureDesk *presentDesk() { return m_desk.get(); }
    const CaptureDesk *presentDesk() const { return m_desk.get(); }
    CaptureDesk &captureDesk();
    HotkeyService &hotkeys();
    PreferencesController &preferences();
    WelcomeController &welcome();
    TrayPresence &tray();
    /// Off while nobody has asked for the tray.
    TrayPresence::State trayState() const { return m_tray ? m_tray->state() : TrayPresence::State::Off; }
    /// The combination that captures a region; empty while it is not heard.
    QString regionKey() const;

    /// Whether the user sees a window to work in: notices, thumbnails and pinned screenshots are none.
    bool hasVisibleWindow() const;
    static void bringWindowsToFront();

    /// Watches the folder of the desktop's screenshots, or does so no longer, as the setting says.
    void followWatchSetting();
    /// Goes on in the folder that the settings name now.
    void watchAnotherFolder();

    /// A sentence in passing.
    void showNotice(const QString &sentence);

Q_SIGNALS:
    /// Something that may have kept the program running has gone.
    void somethingGone();
    void trayChanged();
    void hotkeysReloaded();
    void trayActivated();

private:
    QList<PaletteSupply::Choice> settingChoices();
    std::unique_ptr<CaptureDesk> m_desk;
    std::unique_ptr<HotkeyBackend> m_hotkeyBackend;
    std::unique_ptr<HotkeyService> m_hotkeys;
    std::unique_ptr<PreferencesController> m_preferences;
    std::unique_ptr<WelcomeController> m_welcome;
    std::unique_ptr<TrayPresence> m_tray;
};

} // namespace tessaly
