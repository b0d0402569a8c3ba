// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/TessalyApp.h"

#include "app/ActivationToken.h"
#include "app/AppDelegate.h"
#include "app/Bus/AutomationClient.h"
#include "app/Bus/AutomationService.h"
#include "app/Bus/DesktopArguments.h"
#include "app/Bus/HandOver.h"
#include "app/DesktopServices.h"
#include "app/EarlyReading.h"
#include "app/EndSignals.h"
#include "app/Errand.h"
#include "app/LaunchSequence.h"
#include "app/Presence.h"
#include "app/ProgramEnd.h"
#include "core/Capture/RequestReading.h"

#include <QApplication>
#include <QTimer>

namespace tessaly {

static LaunchSequence::Kind kindOf(const DesktopArguments &arguments)
{
    using Kind = LaunchSequence::Kind;
    if (arguments.capture)
        return Kind::Errand;
    if (!arguments.files.isEmpty() || !arguments.historyEntries.isEmpty() || arguments.action)
        return Kind::Files;
    return arguments.resident ? Kind::Resident : Kind::Plain;
}

class TessalyApp::Program {
public:
    explicit Program(const DesktopArguments &given) :
        arguments(given),
        end(services, given.capture || given.action ? ProgramEnd::Purpose::Errand : ProgramEnd::Purpose::Windows)
    {
        connectRequests();
    }

    DesktopArguments arguments;
    DesktopServices services;
    ProgramEnd end;
    AppDelegate delegate { services, end };
    Presence presence { services };
    LaunchSequence launch { services, presence, kindOf(arguments) };
    AutomationService automation { { .captures
        = [this]() -> CaptureService & { return services.captureDesk().captures(); },
        .perform = [this](Intent intent, const QString &where) { return services.intents.perform(intent, where); },
        .activate = [this] { activate(); },
        .open = [this](const QList<QUrl> &urls) { delegate.open(urls); },
        .openHistoryEntries = [this](const QList<QUuid> &entries) { delegate.openHistoryEntries(entries); },
        .tell = [this](const QString &sentence) { services.showNotice(sentence); },
        .takeActivation = &ActivationToken::take } };

    void connectRequests();
    void stay();
    void activate();
    std::optional<int> leftToOther();
    bool begin(EarlyReading &first);
    bool open(EarlyReading &first);
    void capture(const DesktopArguments::Capture &wanted);
    void act(const DesktopArguments::Action &wanted);
};

void TessalyApp::Program::connectRequests()
{
    QObject::connect(&automation, &AutomationService::quitRequested, &end, &ProgramEnd::endWhenAsked);
    QObject::connect(&automation, &AutomationService::stayRequested, &end, [this] { stay(); });
    QObject::connect(&automation, &AutomationService::ignoreRequested, &end, [this](const QString &path) {
        if (CaptureDesk *desk = services.presentDesk())
            desk->watcher().ignorePath(path);
    });
    QObject::connect(&automation, &AutomationService::unlockRequested, &end, [this] {
        if (CaptureDesk *desk = services.presentDesk())
            desk->pins().unlockAll();
    });
    // The name had been given up for the end.
    QObject::connect(&end, &ProgramEnd::keptRunning, &automation, [this] { automation.claim(); });
    QObject::connect(&services, &DesktopServices::trayActivated, &end, [this] { delegate.reopen(); });
    QObject::connect(&services, &DesktopServices::trayChanged, &end, &ProgramEnd::endIfUnneeded);
    QObject::connect(&services.settings, &Settings::changed, &end, [this](const QString &key) {
        if (key == QLatin1StringView(SettingKeys::appearance.name))
            services.appearance.refresh();
        else if (key == QLatin1StringView(SettingKeys::watchSystemScreenshots.name))
            services.followWatchSetting();
        else if (key == QLatin1StringView(SettingKeys::systemScreenshotsFolder.name))
            services.watchAnotherFolder();
        else if (key == QLatin1StringView(SettingKeys::historyRetentionDays.name))
            services.history.pruneExpired(services.clock.now());
    });
}

/// It is from now on what a start with the session is, whatever it was started for.
void TessalyApp::Program::stay()
{
    end.stay();
    presence.showInTray();
    if (arguments.capture)
        services.hotkeys().reload();
}

void TessalyApp::Program::activate()
{
    stay();
    delegate.reopen();
}

/// The exit status, where another one runs that was not there when this one looked before.
std::optional<int> TessalyApp::Program::leftToOther()
{
    if (automation.claim() || arguments.besideOther || !HandOver::isOtherRunning())
        return std::nullopt;
    if (arguments.capture) {
        const auto outcome = AutomationClient::capture(arguments.capture->subject, arguments.capture->options);
        if (outcome)
            return Errand::tell(*outcome, arguments.capture->options.contains(QStringLiteral("output")));
    } else if (HandOver::toOther(arguments) == HandOver::Answer::Taken) {
        return 0;
    }
    automation.claim(); // the other one may just have ended; one that is stuck keeps the name
    return std::nullopt;
}

void TessalyApp::Program::capture(const DesktopArguments::Capture &wanted)
{
    CaptureService &captures = services.captureDesk().captures();
    auto request = RequestReading::read(wanted.subject, wanted.options, captures.displays());
    if (!request) {
        end.setStatus(Errand::tell(request.failure()));
        return end.endIfUnneeded();
    }
    const bool namesFile = request->outputPath.has_value();
    request->finished = [this, namesFile](const CaptureOutcome &outcome) {
        end.setStatus(Errand::tell(outcome, namesFile));
        QTimer::singleShot(0, &end, &ProgramEnd::endIfUnneeded);
    };
    captures.start(std::move(*request));
}

/// Started for one operation that other programs ask for, as the desktop entry's actions are.
void TessalyApp::Program::act(const DesktopArguments::Action &wanted)
{
    const auto intent = intentNamed(wanted.name);
    const Outcome outcome = intent ? services.intents.perform(*intent, wanted.destination)
                                   : Failure { AutomationService::tr("There is no action \"%1\".").arg(wanted.name) };
    if (!outcome) {
        services.showNotice(outcome.failure().message);
        end.setStatus(Errand::tell(outcome.failure()));
    }
    QTimer::singleShot(0, &end, &ProgramEnd::endIfUnneeded);
}

/// False when nothing could be opened.
bool TessalyApp::Program::open(EarlyReading &first)
{
    if (!arguments.files.isEmpty())
        services.editors.prepareWindow(); // while the first file is being read
    for (const QString &path : arguments.files) {
        if (auto loaded = first.take(path))
            services.editors.openLoaded(path, std::move(*loaded));
        else
            services.editors.openFile(path);
    }
    if (!arguments.historyEntries.isEmpty()) {
        services.history.load();
        services.history.flush(); // it then knows their titles
    }
    for (const QUuid &entry : arguments.historyEntries)
        services.editors.openHistoryEntry(entry);
    return services.editors.hasEditors();
}

/// False when there is nothing to run for.
bool TessalyApp::Program::begin(EarlyReading &first)
{
    if (arguments.isPlain() || arguments.resident)
        end.stay();
    if (arguments.capture) {
        end.setStatus(1); // until it is done
        QTimer::singleShot(0, &end, [this] { capture(*arguments.capture); });
    } else if (arguments.action) {
        QTimer::singleShot(0, &end, [this] { act(*arguments.action); });
    } else if (!arguments.isPlain() && !arguments.resident && !open(first)) {
        return false;
    }
    return true;
}

TessalyApp::TessalyApp(const DesktopArguments &arguments) : m_program(std::make_unique<Program>(arguments)) { }
TessalyApp::~TessalyApp() = default;

int TessalyApp::run(EarlyReading &first)
{
    Program &program = *m_program;
    if (program.arguments.resident) // whoever finds the name on the bus may save a screenshot at once
        program.services.followWatchSetting();
    if (const auto status = program.leftToOther())
        return *status;
    program.launch.run();
    if (!program.begin(first))
        return 1;
    const EndSignals endSignals([&program] { program.end.endAtOnce(); });
    const int status = QApplication::exec();
    program.automation.release();
    program.delegate.willTerminate();
    return status;
}

} // namespace tessaly
