// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TessalyApp.h"

#include "app/EarlyReading.h"
#include "core/Base/Clock.h"
#include "core/Document/DocumentActions.h"
#include "core/Document/RecentDocuments.h"
#include "core/Editing/MarkCommands.h"
#include "core/Frame/FrameSettings.h"
#include "core/Preferences/Settings.h"
#include "platform/desktop/PortalSharing.h"
#include "platform/desktop/QtClipboard.h"
#include "ui/Editor/EditorWindowController.h"
#include "ui/Export/ProgressWork.h"
#include "ui/Export/WidgetAlerts.h"
#include "ui/Export/WidgetSavePanels.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"
#include "ui/Style/PlatformTexts.h"

#include <QApplication>

namespace tessaly {

/// In the order in which they need each other.
class TessalyApp::Services {
public:
    Services()
    {
        QCoreApplication::installTranslator(&texts);
        QGuiApplication::setWindowIcon(Icons::application());
    }

    PlatformTexts texts;
    SystemClock clock;
    Settings settings { Settings::defaultPath() };
    Appearance appearance { settings };
    SavedStyles styles { settings };
    CopiedStyle copiedStyle;
    FrameSettings frameSettings { settings, FrameSettings::defaultDataFolder() };
    RecentDocuments recentDocuments { settings };
    QtClipboard clipboard;
    PortalSharing sharing;
    WidgetAlerts alerts;
    WidgetSavePanels panels { settings };
    ProgressWork work;
    ExportService exports { { settings, clipboard, alerts, panels, sharing, work, clock } };
    DocumentActions documents { { settings, alerts, panels, work, exports, recentDocuments } };
    EditorServices editorServices { settings, styles, copiedStyle, frameSettings, clipboard, alerts, work, exports,
        documents, recentDocuments, appearance, clock };
    EditorWindowController editors { editorServices };
};

TessalyApp::TessalyApp() : m_services(std::make_unique<Services>()) { }
TessalyApp::~TessalyApp() = default;

int TessalyApp::run(const QStringList &paths, EarlyReading &first)
{
    EditorWindowController &editors = m_services->editors;
    // Alerts and panels come and go before the first editor and after the last; the program ends with the editors.
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&editors, &EditorWindowController::allClosed, qApp, &QApplication::quit, Qt::QueuedConnection);
    QObject::connect(&editors, &EditorWindowController::quitRequested, qApp, [&editors] { editors.closeAll(); });
    editors.prepareWindow(); // while the first file is being read
    for (const QString &path : paths) {
        if (auto loaded = first.take(path))
            editors.openLoaded(path, std::move(*loaded));
        else
            editors.openFile(path);
    }
    if (paths.isEmpty())
        editors.openBlank();
    if (!editors.hasEditors())
        return 1;
    const int status = QApplication::exec();
    m_services->clipboard.handOver();
    return status;
}

} // namespace tessaly
