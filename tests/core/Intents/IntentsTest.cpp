// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Intents/Intents.h"
#include "tests/core/Capture/CaptureStage.h"
#include "tests/support/Rows.h"

using namespace tessaly;
using test::CaptureStage;

Q_DECLARE_METATYPE(Intent)

/// The five operations, from their names to what the user sees of them.
class IntentsTest : public QObject {
    Q_OBJECT

    static Intents intentsOf(CaptureStage &stage)
    {
        return Intents({ [&stage]() -> CaptureService & { return stage.service; }, stage.history,
            [&stage](const QUuid &id) { stage.events += id.toString(); } });
    }

private Q_SLOTS:
    void capturesGoWhereTheyAreSent_data()
    {
        test::columns<QString, QString, QString>("name", "destination", "last event");
        test::row("no destination", QStringLiteral("CaptureRegion"), QString(), QStringLiteral("editor Untitled"));
        test::row("region to the clipboard", QStringLiteral("CaptureRegion"), QStringLiteral("clipboard"),
            QStringLiteral("copy"));
        test::row(
            "window", QStringLiteral("CaptureWindow"), QStringLiteral("editor"), QStringLiteral("editor Untitled"));
        test::row("screen to the clipboard", QStringLiteral("CaptureFullScreen"), QStringLiteral("clipboard"),
            QStringLiteral("copy"));
        test::row(
            "screen to a file", QStringLiteral("CaptureFullScreen"), QStringLiteral("file"), QStringLiteral("restore"));
        test::row("text", QStringLiteral("CopyTextFromRegion"), QString(), QStringLiteral("read"));
    }

    void capturesGoWhereTheyAreSent()
    {
        QFETCH(QString, name);
        QFETCH(QString, destination);
        CaptureStage stage;
        QVERIFY(stage.settings.set(SettingKeys::showMagnifierWhileSelecting, false));
        QVERIFY(stage.settings.set(SettingKeys::defaultSaveFolder, stage.folder.path()));
        QVERIFY(intentsOf(stage).perform(*intentNamed(name), destination));
        if (name != u"CaptureFullScreen") {
            QVERIFY(stage.service.isBusy()); // it has begun, and waits for the user
            QTRY_VERIFY(stage.overlay.isOpen());
            QCOMPARE(stage.events.contains(QStringLiteral("overlay for windows")), name == u"CaptureWindow");
            stage.overlay.answer(
                name == u"CaptureWindow" ? OverlayResult(stage.window()) : OverlayResult(stage.area({ 3, 4, 10, 6 })));
        }
        QTRY_VERIFY(!stage.service.isBusy());
        if (stage.copier.isReading())
            stage.events += QStringLiteral("read");
        QTEST(stage.events.last(), "last event");
        const QStringList files = QDir(stage.folder.path()).entryList({ QStringLiteral("*.png") });
        QCOMPARE(files.size(), destination == u"file" ? 1 : 0);
    }

    void whatCannotBeUnderstoodBeginsNothing_data()
    {
        test::columns<QString, QString>("name", "destination");
        test::row("unknown", QStringLiteral("CaptureRegion"), QStringLiteral("printer"));
        test::row("other case", QStringLiteral("CaptureWindow"), QStringLiteral("Editor"));
        test::row("of the text copy", QStringLiteral("CaptureFullScreen"), QStringLiteral("text"));
        test::row("where none is taken", QStringLiteral("CopyTextFromRegion"), QStringLiteral("file"));
        test::row("where nothing is captured", QStringLiteral("OpenLastCapture"), QStringLiteral("editor"));
    }

    void whatCannotBeUnderstoodBeginsNothing()
    {
        QFETCH(QString, name);
        QFETCH(QString, destination);
        CaptureStage stage;
        const Outcome outcome = intentsOf(stage).perform(*intentNamed(name), destination);
        QVERIFY(!outcome);
        QVERIFY(outcome.failure().message.contains(name == u"CopyTextFromRegion" ? name : destination)
            || name == u"OpenLastCapture");
        QVERIFY(stage.events.isEmpty());
        QVERIFY(!intentNamed(u"captureRegion"));
    }

    void theLastCaptureIsTheNewest()
    {
        CaptureStage stage;
        Intents intents = intentsOf(stage);
        const QString none = QStringLiteral("There are no captures in the history yet.");
        QCOMPARE(intents.perform(Intent::OpenLastCapture).failure().message, none);
        const auto picture = RasterImage::fromPixels(CaptureStage::placePicture({ 8, 8 }));
        QVERIFY(stage.history.record(picture, QStringLiteral("first")));
        stage.clock.time = stage.clock.time.addSecs(60);
        const auto newest = stage.history.record(picture, QStringLiteral("second"));
        QVERIFY(newest);
        QVERIFY(intents.perform(Intent::OpenLastCapture));
        QCOMPARE(stage.events.last(), newest->toString());
        QVERIFY(stage.settings.set(SettingKeys::historyEnabled, false));
        QCOMPARE(intents.perform(Intent::OpenLastCapture).failure().message, none);
    }
};

QTEST_MAIN(IntentsTest)
#include "IntentsTest.moc"
