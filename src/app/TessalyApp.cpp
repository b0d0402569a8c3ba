// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TessalyApp.h"

#include "app/EarlyReading.h"
#include "core/Base/Clock.h"
#include "core/Document/DocumentActions.h"
#include "core/Document/RecentDocuments.h"
#include "core/Editing/MarkCommands.h"
#include "core/Frame/FrameSettings.h"
#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"
#include "core/Text/TextCopier.h"
#include "platform/desktop/DesktopLinks.h"
#include "platform/desktop/PortalSharing.h"
#include "platform/desktop/QtClipboard.h"
#include "platform/recognition/WorkerRecognizer.h"
#include "ui/Editor/EditorWindowController.h"
#include "ui/Export/ProgressWork.h"
#include "ui/Export/WidgetAlerts.h"
#include "ui/Export/WidgetOpenPanels.h"
#include "ui/Export/WidgetSavePanels.h"
#include "ui/Start/StartWindowController.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"
#include "ui/Style/PlatformTexts.h"
#include "ui/Toast/WidgetToasts.h"

#include <QApplication>
#include <QTimer>

namespace tessaly {

namespace {

using namespace std::chrono_literals;

/// After the start: not before the first window has been painted.
constexpr std::chrono::milliseconds historyDelay = 300ms;

/// Nothing is recognised for the history while the program is first used.
constexpr std::chrono::milliseconds recognitionDelay = 3s;

/// How long a notice stays that is a whole sentence.
constexpr std::chrono::milliseconds sentenceDuration = 4s;

} // namespace

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
    WidgetOpenPanels openPanels;
    ProgressWork work;
    ExportService exports { { settings, clipboard, alerts, panels, sharing, work, clock } };
    DocumentActions documents { { settings, alerts, panels, work, exports, recentDocuments } };
    CaptureHistory history { { { HistoryStore::defaultDirectory() }, settings, clock } };
    DesktopLinks links;
    WidgetToasts toasts;
    WorkerRecognizer recognizer { { WorkerRecognizer::systemLanguages() } };
    TextCopier textCopier { recognizer, clipboard, toasts, links };
    EditorServices editorServices { settings, styles, copiedStyle, frameSettings, clipboard, alerts, work, exports,
        documents, recentDocuments, appearance, clock, history, recognizer, textCopier, toasts, links, openPanels };
    EditorWindowController editors { editorServices };
    StartWindowController start { { history, settings, clipboard, exports, links, clock },
        { .openFile = [this] { editors.chooseFiles(); },
            .paste = [this] { editors.openFromClipboard(); },
            .openEntry = [this](const QUuid &id) { editors.openHistoryEntry(id); },
            .program = &editors } };
    std::unique_ptr<RecognitionTask> reading; ///< for the history

    void connectWindows();
    void connectNotices();
    void recognizeForHistory();
    void loadHistory();
};

/// Alerts and panels come and go before the first window and after the last; the program ends with editors and start
/// window.
void TessalyApp::Services::connectWindows()
{
    QApplication::setQuitOnLastWindowClosed(false);
    const auto quitWithoutWindows = [this] {
        if (!editors.hasEditors() && !start.isVisible())
            QApplication::quit();
    };
    QObject::connect(&editors, &EditorWindowController::allClosed, qApp, quitWithoutWindows, Qt::QueuedConnection);
    QObject::connect(&start, &StartWindowController::closed, qApp, quitWithoutWindows, Qt::QueuedConnection);
    QObject::connect(&editors, &EditorWindowController::startWindowRequested, qApp, [this] { start.show(); });
    QObject::connect(&editors, &EditorWindowController::quitRequested, qApp, [this] {
        if (!editors.closeAll())
            return;
        start.close();
        QApplication::quit();
    });
}

void TessalyApp::Services::connectNotices()
{
    const auto tell = [this](const QString &sentence) { toasts.show(sentence, sentenceDuration); };
    QObject::connect(&history, &CaptureHistory::notice, qApp, tell);
    recognizer.notice = tell;
}

void TessalyApp::Services::recognizeForHistory()
{
    if (!recognizer.isSupported())
        return;
    if (history.isEnabled())
        recognizer.prewarm();
    history.setTextRecognizer([this](const RasterImage &image, auto answer) {
        reading = recognizer.recognize({ .image = image, .urgency = TextRecognizer::Urgency::Background },
            [answer = std::move(answer)](const Result<RecognizedContent> &content) {
                if (content)
                    return answer(content->text());
                qWarning("Tessaly: the text of a capture couldn't be read: %s", qPrintable(content.failure().message));
                answer(std::nullopt);
            });
    });
}

void TessalyApp::Services::loadHistory()
{
    history.load();
    history.pruneExpired(clock.now());
    QTimer::singleShot(recognitionDelay, qApp, [this] { recognizeForHistory(); });
}

TessalyApp::TessalyApp() : m_services(std::make_unique<Services>()) { }
TessalyApp::~TessalyApp() = default;

int TessalyApp::run(const QStringList &paths, const QList<QUuid> &historyEntries, EarlyReading &first)
{
    EditorWindowController &editors = m_services->editors;
    m_services->connectWindows();
    m_services->connectNotices();
    const bool opensNothing = paths.isEmpty() && historyEntries.isEmpty();
    if (paths.isEmpty())
        m_services->loadHistory(); // it is shown
    if (opensNothing) {
        m_services->start.show();
    } else if (!paths.isEmpty()) {
        editors.prepareWindow(); // while the first file is being read
        QTimer::singleShot(historyDelay, qApp, [this] { m_services->loadHistory(); });
    }
    for (const QString &path : paths) {
        if (auto loaded = first.take(path))
            editors.openLoaded(path, std::move(*loaded));
        else
            editors.openFile(path);
    }
    if (!historyEntries.isEmpty())
        m_services->history.flush(); // it then knows their titles
    for (const QUuid &entry : historyEntries)
        editors.openHistoryEntry(entry);
    if (!opensNothing && !editors.hasEditors())
        return 1;
    const int status = QApplication::exec();
    m_services->history.flush();
    m_services->clipboard.handOver();
    return status;
}

} // namespace tessaly
