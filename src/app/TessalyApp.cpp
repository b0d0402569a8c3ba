// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TessalyApp.h"

#include "app/AutomationClient.h"
#include "app/AutomationService.h"
#include "app/CaptureCommands.h"
#include "app/CaptureDesk.h"
#include "app/DesktopArguments.h"
#include "app/EarlyReading.h"
#include "app/EndSignals.h"
#include "app/Errand.h"
#include "app/SessionClipboard.h"
#include "core/Base/Clock.h"
#include "core/Capture/RequestReading.h"
#include "core/Capture/ToastsBetweenCaptures.h"
#include "core/Document/DocumentActions.h"
#include "core/Document/RecentDocuments.h"
#include "core/Editing/MarkCommands.h"
#include "core/Frame/FrameSettings.h"
#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"
#include "core/Text/TextCopier.h"
#include "platform/Choice/Desktop/DesktopChoice.h"
#include "platform/desktop/DesktopLinks.h"
#include "platform/desktop/PortalSharing.h"
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
#include <QWindow>

namespace tessaly {

namespace {

using namespace std::chrono_literals;

/// After the start: not before the first window has been painted.
constexpr std::chrono::milliseconds historyDelay = 300ms;

/// Nor are requests of other programs heard before that.
constexpr std::chrono::milliseconds quietDelay = 500ms;

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
        if (!DesktopChoice::windowsPlaceThemselves())
            windowToasts.setLayers(&windowLayers());
    }

    PlatformTexts texts;
    SystemClock clock;
    Settings settings { Settings::defaultPath() };
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
    CaptureCommands captureCommands { { [this] { return desk.get(); },
        [this]() -> CaptureDesk & { return captureDesk(); } } };
    EditorServices editorServices { settings, styles, copiedStyle, frameSettings, clipboard, alerts, work, exports,
        documents, recentDocuments, appearance, clock, history, recognizer, textCopier, toasts, links, openPanels,
        &captureCommands, [this](const RasterImage &image) { captureDesk().pins().pin(image); } };
    EditorWindowController editors { editorServices };
    StartWindowController start { { history, settings, clipboard, exports, links, clock },
        { .openFile = [this] { editors.chooseFiles(); },
            .paste = [this] { editors.openFromClipboard(); },
            .openEntry = [this](const QUuid &id) { editors.openHistoryEntry(id); },
            .program = &editors } };
    std::unique_ptr<CaptureDesk> desk; ///< when something is first captured, or it has become quiet after the start
    AutomationService automation { [this]() -> CaptureService & { return captureDesk().captures(); } };
    std::unique_ptr<RecognitionTask> reading; ///< for the history

    bool stays = false; ///< resident: until it is asked to end
    bool isErrand = false; ///< started for one capture
    int status = 0;

    WindowLayers &windowLayers();
    CaptureDesk &captureDesk();
    void connectWindows();
    void connectNotices();
    void recognizeForHistory();
    void loadHistory();
    bool leavesToOther();
    void settleDown();
    void capture(const DesktopArguments::Capture &wanted);
    bool open(const DesktopArguments &arguments, EarlyReading &first);
    bool isNeeded() const;
    void endIfUnneeded();
    void endWhenAsked();
    void finish();
};

WindowLayers &TessalyApp::Services::windowLayers()
{
    if (!layers)
        layers = DesktopChoice::windowLayers();
    return *layers;
}

CaptureDesk &TessalyApp::Services::captureDesk()
{
    if (desk)
        return *desk;
    desk = std::make_unique<CaptureDesk>(CaptureDesk::Surroundings { settings, clipboard, exports, history, textCopier,
        toasts, alerts, openPanels, clock, windowLayers(),
        [this](RasterImage image, const QString &title) { editors.openCapture(std::move(image), title); } });
    const auto look = [this] { endIfUnneeded(); };
    toasts.setCaptures(desk->captures());
    QObject::connect(&desk->captures(), &CaptureService::becameIdle, qApp, look, Qt::QueuedConnection);
    QObject::connect(&desk->thumbnails(), &QuickAccessController::emptied, qApp, look, Qt::QueuedConnection);
    QObject::connect(&desk->pins(), &PinnedScreenshotController::countsChanged, qApp, look, Qt::QueuedConnection);
    return *desk;
}

/// Alerts and panels come and go before the first window and after the last; the program itself says when it ends.
void TessalyApp::Services::connectWindows()
{
    QApplication::setQuitOnLastWindowClosed(false);
    const auto look = [this] { endIfUnneeded(); };
    QObject::connect(&editors, &EditorWindowController::allClosed, qApp, look, Qt::QueuedConnection);
    QObject::connect(&start, &StartWindowController::closed, qApp, look, Qt::QueuedConnection);
    QObject::connect(&clipboard, &SessionClipboard::lost, qApp, look);
    QObject::connect(&textCopier, &TextCopier::finished, qApp, look, Qt::QueuedConnection);
    QObject::connect(&editors, &EditorWindowController::startWindowRequested, qApp, [this] { start.show(); });
    QObject::connect(&editors, &EditorWindowController::quitRequested, qApp, [this] { endWhenAsked(); });
    QObject::connect(&automation, &AutomationService::quitRequested, qApp, [this] { endWhenAsked(); });
    QObject::connect(&automation, &AutomationService::stayRequested, qApp, [this] { stays = true; });
    QObject::connect(&automation, &AutomationService::ignoreRequested, qApp, [this](const QString &path) {
        if (desk)
            desk->watcher().ignorePath(path);
    });
    QObject::connect(&automation, &AutomationService::unlockRequested, qApp, [this] {
        if (desk)
            desk->pins().unlockAll();
    });
}

bool TessalyApp::Services::isNeeded() const
{
    if (stays || editors.hasEditors() || start.isVisible())
        return true;
    if (desk && (desk->captures().isBusy() || !desk->thumbnails().isEmpty() || desk->pins().count() > 0))
        return true;
    // Nobody would know that closing a window takes the clipboard's content away; of an errand it is all that there is.
    return isErrand && (textCopier.isReading() || (clipboard.holdsOurs() && !clipboard.canHandOver()));
}

void TessalyApp::Services::endIfUnneeded()
{
    if (isNeeded())
        return;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto shown = std::ranges::find_if(windows, &QWindow::isVisible);
    if (!isErrand || shown == windows.end())
        return QApplication::exit(status);
    // A notice is being read. Which of several windows is asked does not matter: the next is looked for then.
    QObject::connect(
        *shown, &QWindow::visibleChanged, qApp, [this] { endIfUnneeded(); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void TessalyApp::Services::endWhenAsked()
{
    if (!editors.closeAll()) {
        automation.claim(); // it had been given up for the end
        return;
    }
    start.close();
    QApplication::exit(status);
}

void TessalyApp::Services::finish()
{
    automation.release();
    history.flush();
    clipboard.handOver();
}

void TessalyApp::Services::connectNotices()
{
    const auto show = [this](const QString &sentence) { toasts.show(sentence, sentenceDuration); };
    QObject::connect(&history, &CaptureHistory::notice, qApp, show);
    recognizer.notice = show;
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

/// A Tessaly runs already. It stays instead of this one, which nobody could reach; and whoever opens the start window
/// beside it can again reach its pinned screenshots, which may be all that it shows.
bool TessalyApp::Services::leavesToOther()
{
    if (stays)
        return AutomationClient::stay();
    if (start.isVisible())
        AutomationClient::unlockPinnedScreenshots();
    return false;
}

/// What the start need not wait for.
void TessalyApp::Services::settleDown()
{
    // Whoever finds the program there may save a screenshot at once.
    if (settings.value(SettingKeys::watchSystemScreenshots))
        captureDesk().watcher().start();
    if (!automation.claim() && leavesToOther())
        return QApplication::exit(status);
    if (stays)
        captureDesk().captures().prepare();
}

void TessalyApp::Services::capture(const DesktopArguments::Capture &wanted)
{
    CaptureService &captures = captureDesk().captures();
    auto request = RequestReading::read(wanted.subject, wanted.options, captures.displays());
    if (!request) {
        status = Errand::tell(request.failure());
        return endIfUnneeded();
    }
    const bool namesFile = request->outputPath.has_value();
    request->finished = [this, namesFile](const CaptureOutcome &outcome) {
        status = Errand::tell(outcome, namesFile);
        QTimer::singleShot(0, qApp, [this] { endIfUnneeded(); });
    };
    captures.start(std::move(*request));
}

/// False when nothing could be opened.
bool TessalyApp::Services::open(const DesktopArguments &arguments, EarlyReading &first)
{
    if (!arguments.files.isEmpty())
        editors.prepareWindow(); // while the first file is being read
    for (const QString &path : arguments.files) {
        if (auto loaded = first.take(path))
            editors.openLoaded(path, std::move(*loaded));
        else
            editors.openFile(path);
    }
    if (!arguments.historyEntries.isEmpty())
        history.flush(); // it then knows their titles
    for (const QUuid &entry : arguments.historyEntries)
        editors.openHistoryEntry(entry);
    return editors.hasEditors();
}

TessalyApp::TessalyApp() : m_services(std::make_unique<Services>()) { }
TessalyApp::~TessalyApp() = default;

int TessalyApp::run(const DesktopArguments &arguments, EarlyReading &first)
{
    Services &services = *m_services;
    services.connectWindows();
    services.connectNotices();
    services.stays = arguments.resident;
    services.isErrand = arguments.capture.has_value();
    services.status = services.isErrand ? 1 : 0; // until it is done
    if (arguments.opensNothing() || !arguments.historyEntries.isEmpty())
        services.loadHistory(); // it is shown
    else
        QTimer::singleShot(historyDelay, qApp, [&services] { services.loadHistory(); });
    if (arguments.opensNothing())
        services.start.show();
    else if (arguments.capture)
        QTimer::singleShot(0, qApp, [&services, &arguments] { services.capture(*arguments.capture); });
    else if (!arguments.resident && !services.open(arguments, first))
        return 1;
    QTimer::singleShot(arguments.resident ? 0ms : quietDelay, qApp, [&services] { services.settleDown(); });
    const EndSignals endSignals([&services] { QApplication::exit(services.status); });
    const int status = QApplication::exec();
    services.finish();
    return status;
}

} // namespace tessaly
