// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/Capture/CaptureStage.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"

#include <QElapsedTimer>

using namespace tessaly;
using test::CaptureStage;
using test::milliseconds;

using Act = std::function<void(CaptureStage &)>;
Q_DECLARE_METATYPE(Act)
Q_DECLARE_METATYPE(CaptureSubject)
Q_DECLARE_METATYPE(CaptureSink)

namespace {

const Act nothing = [](CaptureStage &) {};

Act with(const SettingKey<bool> &key, bool value)
{
    return [&key, value](CaptureStage &stage) { QVERIFY(stage.settings.set(key, value)); };
}

Act both(Act first, Act second)
{
    return [first, second](CaptureStage &stage) {
        first(stage);
        second(stage);
    };
}

const Act freezing = with(SettingKeys::freezeScreenWhileSelecting, true);
const Act delayed = [](CaptureStage &stage) { QVERIFY(stage.settings.set(SettingKeys::captureDelay, 1)); };
const Act covered = [](CaptureStage &stage) { stage.overlay.live = false; };
const Act slow = [](CaptureStage &stage) { stage.screen.immediate = false; };
const Act showsWindows = [](CaptureStage &stage) { stage.ownWindows.open = { 1 }; };

const Act picksArea = [](CaptureStage &stage) { stage.overlay.answer(stage.area({ 3, 4, 10, 6 })); };
const Act picksWindow = [](CaptureStage &stage) { stage.overlay.answer(stage.window()); };
const Act picksScreen
    = [](CaptureStage &stage) { stage.overlay.answer(FullScreenSelection { stage.screen.monitors.last() }); };

/// Where the top left pixel of a picture was on its monitor.
QPoint placeOf(const RasterImage &image)
{
    const QRgb pixel = image.pixels.pixel(0, 0);
    return { qRed(pixel), qGreen(pixel) };
}

} // namespace

/// Requests from their beginning to the sink, with the order of everything that the desktop is asked to do.
class CaptureServiceTest : public QObject {
    Q_OBJECT

    static void waitForOverlay(CaptureStage &stage) { QTRY_VERIFY(stage.overlay.isOpen()); }

private Q_SLOTS:
    void everythingHappensInOrder_data()
    {
        test::columns<CaptureSubject, Act, Act, QString>("subject", "given", "user", "events");
        const auto row = [](const char *name, CaptureSubject subject, Act given, Act user, const char *events) {
            QTest::newRow(name) << subject << given << user << QString::fromLatin1(events);
        };
        using enum CaptureSubject;
        const Act plain = with(SettingKeys::showMagnifierWhileSelecting, false);
        row("area", Region, plain, picksArea, "hide,overlay,settle,shot left,restore,editor Untitled");
        row("magnified", Region, nothing, picksArea,
            "hide,shot left,shot right,overlay,settle,shot left,restore,editor Untitled");
        row("no magnifier where shots ask the user", Region, slow, picksArea,
            "hide,overlay,settle,shot left,restore,editor Untitled");
        row("magnified past own windows", Region, showsWindows, picksArea,
            "hide,settle,shot left,shot right,overlay,settle,shot left,restore,editor Untitled");
        row("countdown after the area", Region, both(plain, delayed), picksArea,
            "hide,overlay,count 1,count hidden,settle,shot left,restore,editor Untitled");
        row("frozen", Region, freezing, picksArea, "hide,shot left,shot right,overlay,restore,editor Untitled");
        row("countdown before freezing", Region, both(freezing, delayed), picksArea,
            "hide,count 1,count hidden,settle,shot left,shot right,overlay,restore,editor Untitled");
        row("frozen, whole screen", Region, freezing, picksScreen,
            "hide,shot left,shot right,overlay,restore,editor Untitled");
        row("frozen, window", Window, both(freezing, delayed), picksWindow,
            "hide,count 1,count hidden,settle,shot left,shot right,overlay for windows,settle,window seven,restore,"
            "editor Untitled");
        row("pictures under the overlay are not the capture", Region, covered, picksArea,
            "hide,shot left,shot right,overlay,settle,shot left,restore,editor Untitled");
        row("unless the user would be asked twice", Region, both(covered, slow), picksArea,
            "hide,shot left,shot right,overlay,restore,editor Untitled");
        row("but a countdown needs a new one", Region, both(both(covered, slow), delayed), picksScreen,
            "hide,shot left,shot right,overlay,count 1,count hidden,settle,shot right,restore,editor Untitled");
        row("whole screen", Region, plain, picksScreen, "hide,overlay,settle,shot right,restore,editor Untitled");
        row("window", Window, plain, picksWindow,
            "hide,overlay for windows,settle,window seven,restore,editor Untitled");
        row(
            "cancelled", Region, plain, [](auto &stage) { stage.overlay.cancel(); }, "hide,overlay,restore");
        row("full screen", FullScreen, nothing, nothing, "hide,shot left,restore,editor Untitled");
        row("full screen past own windows", FullScreen, showsWindows, nothing,
            "hide,settle,shot left,restore,editor Untitled");
        row("full screen with countdown and sound", FullScreen, both(delayed, with(SettingKeys::captureSound, true)),
            nothing, "hide,count 1,count hidden,settle,shot left,restore,sound,editor Untitled");
        row("front window", FrontWindow, showsWindows, nothing, "window seven,editor Untitled");
        row("no last region", LastRegion, nothing, nothing, "beep");
        row(
            "last region", LastRegion,
            [](auto &stage) { QVERIFY(stage.settings.set(SettingKeys::lastRegionRect, QByteArray("[1,1,1,1,1]"))); },
            nothing, "beep");
    }

    void everythingHappensInOrder()
    {
        QFETCH(CaptureSubject, subject);
        QFETCH(Act, given);
        QFETCH(Act, user);
        CaptureStage stage;
        given(stage);
        stage.service.start(stage.request(subject));
        if (subject == CaptureSubject::Region || subject == CaptureSubject::Window)
            waitForOverlay(stage);
        user(stage);
        QTRY_COMPARE(stage.outcomes.size(), 1);
        QTEST(stage.events.join(u','), "events");
        QVERIFY(!stage.service.isBusy());
        QVERIFY(!stage.ownWindows.hidden);
    }

    void capturesExactlyWhatWasSelected_data()
    {
        QTest::addColumn<Act>("given");
        test::row("live", nothing);
        test::row("over pictures", covered);
        test::row("frozen", freezing);
    }

    void capturesExactlyWhatWasSelected()
    {
        QFETCH(Act, given);
        CaptureStage stage;
        given(stage);
        stage.service.capture(CaptureMode::Region);
        waitForOverlay(stage);
        picksArea(stage);
        QCOMPARE(stage.shown.pixelSize(), QSize(10, 6));
        QCOMPARE(stage.shown.pointSize, QSizeF(5, 3));
        QCOMPARE(placeOf(stage.shown), QPoint(3, 4));
        QVERIFY(stage.service.hasLastRegion());
        stage.shown = {};
        stage.service.captureLastRegion();
        QCOMPARE(placeOf(stage.shown), QPoint(3, 4));
        QCOMPARE(stage.shown.pixelSize(), QSize(10, 6));
        stage.service.captureFullScreen(stage.screen.monitors.last().id());
        QCOMPARE(stage.shown.pointSize, QSizeF(50, 40));
    }

    void theMagnifierAndThePicturesAreOfEveryDisplay()
    {
        CaptureStage stage;
        stage.service.capture(CaptureMode::Region);
        QCOMPARE(stage.overlay.snapshots.size(), 2);
        QVERIFY(stage.overlay.opening.pictures.isEmpty());
        covered(stage);
        stage.service.capture(CaptureMode::Region); // the first one ends cancelled
        QCOMPARE(stage.overlay.opening.pictures.size(), 2);
        QCOMPARE(stage.overlay.opening.displays, stage.screen.monitors);
        QTRY_COMPARE(stage.picker.windows().size(), 1); // after the overlay is there
        stage.overlay.cancel();
        QVERIFY(stage.picker.windows().isEmpty());
    }

    void capturesGoToTheirSinks_data()
    {
        // recorded: in the history
        test::columns<CaptureSink, QString, int, int>("sink", "events", "recorded", "counted");
        test::row("editor", CaptureSink::Editor, "editor Untitled", 0, 1);
        test::row("clipboard", CaptureSink::Clipboard, "copy", 1, 1);
        test::row("file", CaptureSink::File, "", 1, 1);
        test::row("file that was asked for", CaptureSink::File, "", 1, 1);
        test::row("text", CaptureSink::Text, "", 0, 0);
    }

    void capturesGoToTheirSinks()
    {
        QFETCH(CaptureSink, sink);
        CaptureStage stage;
        QVERIFY(stage.router.setDefaultSaveFolder(stage.folder.path()));
        stage.history.load();
        auto request = stage.request(CaptureSubject::FrontWindow, sink);
        if (QByteArray(QTest::currentDataTag()).contains("asked"))
            request.outputPath = stage.folder.filePath(QStringLiteral("asked.bmp"));
        stage.service.start(request);
        QTEST(stage.events.mid(1).join(u','), "events");
        QCOMPARE(
            stage.toasts.shown, sink == CaptureSink::Clipboard ? QStringList("Copied to clipboard") : QStringList());
        QCOMPARE(stage.recognizer.pending.size(), sink == CaptureSink::Text ? 1 : 0);
        const QString path = std::get<Captured>(stage.outcomes.value(0)).path;
        QCOMPARE(QFileInfo(path).isFile(), sink == CaptureSink::File);
        QCOMPARE(path, request.outputPath.value_or(path));
        QTEST(int(stage.settings.value(SettingKeys::newsletterCaptureCount)), "counted");
        stage.history.flush();
        QTEST(int(stage.history.entries().size()), "recorded");
        for (const auto &entry : stage.history.entries())
            QCOMPARE(entry.title, QStringLiteral("Files"));
    }

    void historyNamesTheProgramBefore_data()
    {
        using Fronts = QList<std::optional<WindowSource::Application>>;
        // fronts: one for each request
        test::columns<Fronts, QString>("fronts", "title");
        const WindowSource::Application files { QStringLiteral("Files"), 1 };
        const WindowSource::Application nameless { QString(), 1 };
        const WindowSource::Application own { QStringLiteral("Tessaly"), QCoreApplication::applicationPid() };
        test::row("another program", Fronts { files }, "Files");
        test::row("this program keeps it", Fronts { files, own }, "Files");
        test::row("this program alone", Fronts { own }, "Screenshot");
        test::row("one without a name", Fronts { files, nameless }, "Screenshot");
        test::row("unknown", Fronts { files, std::nullopt }, "Screenshot");
    }

    void historyNamesTheProgramBefore()
    {
        QFETCH(QList<std::optional<WindowSource::Application>>, fronts);
        CaptureStage stage;
        stage.history.load();
        for (const auto &front : fronts) {
            stage.windows.front = front;
            stage.clock.time = stage.clock.time.addSecs(1);
            stage.service.captureFrontWindow(CaptureSink::Clipboard);
        }
        stage.history.flush();
        QTEST(stage.history.entries().value(0).title, "title");
    }

    void windowsLookAsTheSettingsSay_data()
    {
        test::columns<bool, bool, bool, QSize>("shadow", "transparent", "asksForTransparency", "pixelSize");
        test::row("shadow", true, false, true, QSize(20 + 128, 10 + 128));
        test::row("transparent", false, true, true, QSize(20, 10));
        test::row("opaque", false, false, false, QSize(20, 10));
    }

    void windowsLookAsTheSettingsSay()
    {
        QFETCH(bool, shadow);
        QFETCH(bool, transparent);
        CaptureStage stage;
        QVERIFY(stage.settings.set(SettingKeys::windowCaptureShadow, shadow));
        QVERIFY(stage.settings.set(SettingKeys::windowCaptureTransparentBackground, transparent));
        stage.service.captureFrontWindow(CaptureSink::Editor);
        QTEST(stage.windows.look.transparentBackground, "asksForTransparency");
        QTEST(stage.shown.pixelSize(), "pixelSize");
    }

    void ownWindowsAreWaitedFor_data()
    {
        // stillShown: so many times
        test::columns<int, int>("stillShown", "leastMilliseconds");
        test::row("gone at once", 0, 40);
        test::row("gone later", 3, 40 + 2 * 16);
        test::row("never gone", 1'000'000, 40 + 60);
    }

    void ownWindowsAreWaitedFor()
    {
        QFETCH(int, stillShown);
        QFETCH(int, leastMilliseconds);
        CaptureStage stage(milliseconds(40));
        showsWindows(stage);
        stage.windows.stillShown = stillShown;
        QElapsedTimer timer;
        timer.start();
        stage.service.capture(CaptureMode::FullScreen);
        QVERIFY(stage.screen.shots.isEmpty());
        QTRY_COMPARE(stage.screen.shots.size(), 1);
        QVERIFY2(timer.elapsed() >= leastMilliseconds, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(!stage.ownWindows.hidden);
    }

    void failuresAreTold_data()
    {
        test::columns<CaptureSubject, Act, QString>("subject", "fault", "detail");
        const auto row = [](const char *name, CaptureSubject subject, Act fault, const char *detail) {
            QTest::newRow(name) << subject << fault << QString::fromLatin1(detail);
        };
        const Act unplugged = [](auto &stage) { stage.screen.monitors.removeFirst(); };
        row("monitor unplugged while selecting", CaptureSubject::Region,
            both(unplugged,
                [](auto &stage) {
                    stage.overlay.answer(
                        RegionSelection { { QStringLiteral("left"), {}, { 80, 60 } }, { 0, 0, 9, 9 }, {} });
                }),
            "No display was found.");
        row(
            "monitor became smaller", CaptureSubject::Region,
            [](auto &stage) {
                stage.screen.monitors.first().pixelSize = { 8, 8 };
                stage.overlay.answer(stage.area({ 20, 20, 9, 9 }));
            },
            "Couldn't crop the selected region.");
        row(
            "window closed", CaptureSubject::Window,
            [](auto &stage) {
                stage.windows.failure = Failure { QStringLiteral("The window was closed.") };
                picksWindow(stage);
            },
            "The window was closed.");
        row(
            "no front window", CaptureSubject::FrontWindow, [](auto &stage) { stage.windows.list.clear(); },
            "No front window was found.");
        row("no such display", CaptureSubject::FullScreen, unplugged, "No display was found.");
        row(
            "refused", CaptureSubject::FullScreen,
            [](auto &stage) { stage.screen.failure = Failure { QStringLiteral("Refused.") }; }, "Refused.");
        row("refused before the overlay", CaptureSubject::Region,
            both(freezing, [](auto &stage) { stage.screen.failure = Failure { QStringLiteral("Refused.") }; }),
            "Refused.");
    }

    void failuresAreTold()
    {
        QFETCH(CaptureSubject, subject);
        QFETCH(Act, fault);
        QFETCH(QString, detail);
        CaptureStage stage;
        const bool selects = subject == CaptureSubject::Region || subject == CaptureSubject::Window;
        auto request = stage.request(subject);
        request.display = stage.screen.monitors.first().id();
        const bool early = !selects || QByteArray(QTest::currentDataTag()).contains("before");
        if (early)
            fault(stage);
        stage.service.start(request);
        if (!early)
            fault(stage);
        QVERIFY(!stage.ownWindows.hidden);
        QVERIFY(stage.outcomes.isEmpty()); // the alert is not shown within the desktop's answer
        QVERIFY(stage.service.isBusy());
        QTRY_COMPARE(stage.outcomes.size(), 1);
        QVERIFY(!stage.service.isBusy());
        QCOMPARE(std::get<Failure>(stage.outcomes.first()).message, detail);
        QCOMPARE(stage.alerts.shown, QStringList(QStringLiteral("Couldn't capture the screen")));
        const bool isOfWindow = subject == CaptureSubject::Window || subject == CaptureSubject::FrontWindow;
        if (isOfWindow) // the screen can be captured
            QCOMPARE(stage.alerts.texts.first(), detail);
        else
            QVERIFY(stage.alerts.texts.first().endsWith(QStringLiteral("\n\nDetail: ") + detail));
        QVERIFY(!stage.overlay.isOpen());
        stage.screen.failure.reset();
        stage.service.capture(CaptureMode::FullScreen); // and the next one works
        QVERIFY(!stage.shown.isEmpty());
    }

    void theAlertOffersWaysOut()
    {
        CaptureStage stage;
        stage.screen.failure = Failure { QStringLiteral("Refused.") };
        stage.screen.way = QStringLiteral("Allow it.");
        stage.openPanels.folder = stage.folder.path();
        stage.alerts.answer = 1;
        stage.service.start(stage.request(CaptureSubject::FullScreen));
        QTRY_COMPARE(stage.outcomes.size(), 1);
        QVERIFY(stage.alerts.texts.last().startsWith(QStringLiteral("Allow it.\n\n")));
        QVERIFY(!stage.watcher.isWatching());
        stage.alerts.answer = 0;
        stage.service.start(stage.request(CaptureSubject::FullScreen));
        QTRY_COMPARE(stage.outcomes.size(), 2);
        QVERIFY(stage.watcher.isWatching());
        QVERIFY(stage.settings.value(SettingKeys::watchSystemScreenshots));
    }

    void cancellingIsNoFailure_data()
    {
        test::columns<Act, Act>("given", "cancel");
        const Act refuses = [](auto &stage) { stage.screen.failure = Failure { QStringLiteral("Cancelled."), true }; };
        test::row("overlay", nothing, Act([](auto &stage) { stage.overlay.cancel(); }));
        test::row("by the caller", nothing, Act([](auto &stage) { stage.service.cancel(); }));
        test::row("countdown", both(freezing, delayed), Act([](auto &stage) { stage.view.click(); }));
        test::row("the desktop's question", both(freezing, refuses), nothing);
        test::row(
            "a newer request", nothing, Act([](auto &stage) { stage.service.captureFrontWindow(CaptureSink::Text); }));
        test::row("a newer one while counting", both(freezing, delayed), Act([](auto &stage) {
            QVERIFY(stage.settings.set(SettingKeys::captureDelay, 0));
            stage.service.captureFrontWindow(CaptureSink::Text);
        }));
    }

    void cancellingIsNoFailure()
    {
        QFETCH(Act, given);
        QFETCH(Act, cancel);
        CaptureStage stage;
        given(stage);
        stage.service.start(stage.request(CaptureSubject::Region));
        cancel(stage);
        QCOMPARE(stage.outcomes.size(), 1);
        QVERIFY(std::holds_alternative<CaptureCancelled>(stage.outcomes.first()));
        QCoreApplication::processEvents();
        QVERIFY(stage.alerts.shown.isEmpty());
        QVERIFY(!stage.overlay.isOpen());
        QVERIFY(!stage.countdown.isRunning());
        QVERIFY(!stage.ownWindows.hidden);
        QVERIFY(stage.shown.isEmpty());
    }

    void aLateAnswerChangesNothing()
    {
        CaptureStage stage;
        stage.screen.defers = true;
        stage.service.start(stage.request(CaptureSubject::FullScreen));
        QVERIFY(stage.service.isBusy());
        stage.service.start(stage.request(CaptureSubject::FullScreen));
        QCOMPARE(stage.outcomes.size(), 1);
        QVERIFY(std::holds_alternative<CaptureCancelled>(stage.outcomes.first()));
        QVERIFY(stage.ownWindows.hidden); // they stay away for the second
        stage.screen.waiting.takeFirst()();
        QCOMPARE(stage.outcomes.size(), 1);
        stage.screen.waiting.takeFirst()();
        QVERIFY(std::holds_alternative<Captured>(stage.outcomes.value(1)));
        QCOMPARE(stage.events.count(QStringLiteral("restore")), 1);
    }

    void theNewestOfNestedRequestsWins()
    {
        CaptureStage stage;
        auto first = stage.request(CaptureSubject::Region);
        first.finished = [&stage](const CaptureOutcome &) { stage.service.capture(CaptureMode::Window); };
        stage.service.start(first);
        stage.service.start(stage.request(CaptureSubject::FullScreen));
        QVERIFY(std::holds_alternative<CaptureCancelled>(stage.outcomes.value(0)));
        QCOMPARE(stage.overlay.opening.mode, OverlayMode::Window);
        QVERIFY(stage.overlay.isOpen());
    }

    void whatIsKeptIsGivenBackAtRest()
    {
        CaptureStage stage(milliseconds(0), milliseconds(30));
        stage.service.prepare();
        QCOMPARE(stage.overlay.prepared, QList { OverlayUse::Later });
        QCOMPARE(stage.screen.prepared, 1);
        stage.service.capture(CaptureMode::Region);
        QTest::qWait(60); // selecting is no rest, however long it takes
        QCOMPARE(stage.screen.released, 0);
        stage.overlay.cancel();
        QTRY_COMPARE(stage.screen.released, 1);
        QCOMPARE(stage.overlay.prepared, QList({ OverlayUse::Later, OverlayUse::AtOnce, OverlayUse::Later }));
    }

    void fiveHundredRequestsLeaveNothingBehind()
    {
        CaptureStage stage;
        QVERIFY(stage.router.setDefaultSaveFolder(stage.folder.path()));
        const auto openFiles = [] { return QDir(QStringLiteral("/proc/self/fd")).count(); };
        decltype(openFiles()) before = 0;
        for (int index = 0; index < 500; ++index) {
            if (index == 20) {
                stage.history.flush(); // which has opened its folder by now
                before = openFiles();
            }
            stage.screen.defers = index % 5 == 4; // cancelled by the next one
            stage.service.start(stage.request(index % 2 == 0 ? CaptureSubject::Region : CaptureSubject::FullScreen,
                index % 20 == 1 ? CaptureSink::File : CaptureSink::Editor));
            if (stage.overlay.isOpen())
                picksArea(stage);
        }
        for (const auto &answer : std::exchange(stage.screen.waiting, {}))
            answer();
        QCOMPARE(stage.outcomes.size(), 500);
        QVERIFY(!stage.service.isBusy());
        QVERIFY(!stage.overlay.isOpen());
        QCOMPARE(stage.windows.prepared, stage.windows.released);
        QCOMPARE(QDir(stage.folder.path()).entryList({ QStringLiteral("Screenshot*") }).size(), 25);
        stage.history.flush();
        QCOMPARE(openFiles(), before);
    }
};

QTEST_GUILESS_MAIN(CaptureServiceTest)
#include "CaptureServiceTest.moc"
