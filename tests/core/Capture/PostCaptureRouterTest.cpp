// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/core/Capture/CaptureStage.h"
#include "tests/support/Rows.h"
#include "tests/support/TestFiles.h"

using namespace tessaly;
using test::CaptureStage;

using Act = std::function<void(CaptureStage &)>;
Q_DECLARE_METATYPE(Act)

namespace {

RasterImage picture() { return RasterImage::fromPixels(CaptureStage::placePicture({ 12, 8 }), 2); }

QStringList saved(const CaptureStage &stage)
{
    QStringList names = test::namesIn(stage.folder.path());
    names.removeAll(QStringLiteral("History"));
    return names;
}

} // namespace

/// What the settings make of a capture.
class PostCaptureRouterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void switchesCombine_data()
    {
        // on: letters: s(how) c(opy) d(isk) q(uick access)
        test::columns<QString, QString, int, int>("on", "events", "files", "recorded");
        test::row("show", "s", "editor Untitled", 0, 0);
        test::row("copy", "c", "copy", 0, 1);
        test::row("copy and save", "cd", "copy", 1, 1);
        test::row("all", "scdq", "copy,thumbnail", 1, 0);
        test::row("quick access instead of the editor", "sq", "thumbnail", 0, 0);
        test::row("save and show", "sd", "editor Untitled", 1, 0);
        test::row("none", "", "", 0, 1);
    }

    void switchesCombine()
    {
        QFETCH(QString, on);
        CaptureStage stage;
        stage.history.load();
        QVERIFY(stage.router.setDefaultSaveFolder(stage.folder.path()));
        QVERIFY(stage.settings.set(SettingKeys::afterCaptureShow, on.contains(u's')));
        QVERIFY(stage.settings.set(SettingKeys::afterCaptureCopy, on.contains(u'c')));
        QVERIFY(stage.settings.set(SettingKeys::afterCaptureSaveToDisk, on.contains(u'd')));
        QVERIFY(stage.settings.set(SettingKeys::afterCaptureQuickAccess, on.contains(u'q')));
        stage.router.handleCapturedImage(picture(), QStringLiteral("Untitled"), QStringLiteral("Files"));
        stage.history.flush();
        QTEST(stage.events.join(u','), "events");
        QTEST(int(saved(stage).size()), "files");
        QTEST(int(stage.history.entries().size()), "recorded");
    }

    void systemScreenshotsAreOnlyOpenedAndCopied()
    {
        CaptureStage stage;
        for (const auto &key : { SettingKeys::afterCaptureCopy, SettingKeys::afterCaptureSaveToDisk,
                 SettingKeys::afterCaptureQuickAccess })
            QVERIFY(stage.settings.set(key, true));
        stage.router.handleSystemScreenshot(picture(), QStringLiteral("a.png"));
        QCOMPARE(stage.events, QStringList({ QStringLiteral("copy"), QStringLiteral("editor a.png") }));
        QVERIFY(stage.savePanels.imageRequests.isEmpty());
    }

    void twoCapturesInOneSecondHaveTwoNames()
    {
        CaptureStage stage;
        stage.clock.time = { QDate(2024, 1, 31), QTime(9, 15, 2) };
        QVERIFY(stage.router.setDefaultSaveFolder(stage.folder.path()));
        const QString third = stage.folder.filePath(QStringLiteral("Screenshot 2024-01-31 at 09.15.02 3.png"));
        QVERIFY(QFile::link(QStringLiteral("/nowhere"), third)); // a name that is taken, although no file is there
        for (int index = 0; index < 3; ++index)
            QVERIFY(stage.router.saveToDisk(picture()));
        QVERIFY(stage.settings.set(SettingKeys::exportFormat, QStringLiteral("jpeg")));
        QVERIFY(stage.router.saveToDisk(picture()));
        QCOMPARE(saved(stage),
            QStringList({ QStringLiteral("Screenshot 2024-01-31 at 09.15.02 2.png"),
                QStringLiteral("Screenshot 2024-01-31 at 09.15.02 3.png"),
                QStringLiteral("Screenshot 2024-01-31 at 09.15.02 4.png"),
                QStringLiteral("Screenshot 2024-01-31 at 09.15.02.jpg"),
                QStringLiteral("Screenshot 2024-01-31 at 09.15.02.png") }));
    }

    void twoProcessesNeverShareAName()
    {
        CaptureStage stage;
        QVERIFY(stage.router.setDefaultSaveFolder(stage.folder.path()));
        QVERIFY(stage.settings.set(SettingKeys::exportFormat, QStringLiteral("bmp")));
        constexpr int each = 40;
        const auto saveAll = [&stage] {
            int failures = 0;
            for (int index = 0; index < each; ++index)
                failures += stage.router.saveToDisk(picture()) ? 0 : 1;
            return failures;
        };
        const pid_t other = ::fork();
        if (other == 0)
            ::_exit(saveAll());
        QCOMPARE(test::inChild(saveAll), 0);
        int status = -1;
        ::waitpid(other, &status, 0);
        QCOMPARE(status, 0);
        QCOMPARE(saved(stage).size(), 2 * each);
    }

    void whatCannotBeSavedThereIsAskedFor_data()
    {
        test::columns<QString, bool>("folder", "warns");
        test::row("none chosen", "", false);
        test::row("gone", "/nowhere/at/all", false);
        test::row("relative", ".", false);
        test::row("read-only", "/proc", true);
    }

    void whatCannotBeSavedThereIsAskedFor()
    {
        QFETCH(QString, folder);
        QFETCH(bool, warns);
        CaptureStage stage;
        QVERIFY(stage.router.setDefaultSaveFolder(folder));
        const QString path = stage.folder.filePath(QStringLiteral("elsewhere.png"));
        stage.savePanels.image = { .path = path };
        const auto result = stage.router.saveToDisk(picture());
        QVERIFY(result);
        QCOMPARE(*result, path);
        QVERIFY(QFileInfo::exists(path));
        QCOMPARE(!stage.alerts.shown.isEmpty(), warns);
        stage.savePanels.image.reset();
        const auto cancelled = stage.router.saveToDisk(picture());
        QVERIFY(cancelled && cancelled->isEmpty());
    }

    void aPictureThatTheFormatCannotHoldIsAskedFor()
    {
        CaptureStage stage;
        QVERIFY(stage.router.setDefaultSaveFolder(stage.folder.path()));
        QVERIFY(stage.settings.set(SettingKeys::exportFormat, QStringLiteral("webp")));
        QImage wide(16'384, 1, QImage::Format_RGB32); // one more than WebP has room for
        wide.fill(Qt::white);
        QVERIFY(stage.router.saveToDisk(RasterImage::fromPixels(wide)));
        QCOMPARE(stage.savePanels.imageRequests.size(), 1);
        QVERIFY(saved(stage).isEmpty());
    }

    void savingCopiesWhenItShould()
    {
        CaptureStage stage;
        QVERIFY(stage.router.setDefaultSaveFolder(stage.folder.path()));
        QVERIFY(stage.router.saveToDisk(picture()));
        QVERIFY(stage.events.isEmpty());
        QVERIFY(stage.settings.set(SettingKeys::autoCopyAfterSave, true));
        QVERIFY(stage.router.saveToDisk(picture()));
        QCOMPARE(stage.events, QStringList(QStringLiteral("copy")));
    }

    void aBurstDoesNotPileUpInMemory()
    {
        CaptureStage stage;
        stage.history.load();
        for (int index = 0; index < 20; ++index)
            stage.router.record(picture(), QStringLiteral("Files"));
        const QDir history(stage.folder.filePath(QStringLiteral("History")));
        QVERIFY(history.entryList({ QStringLiteral("*.tessaly") }).size() >= 16);
        stage.history.flush();
        QCOMPARE(stage.history.entries().size(), 20);
    }

    void anAskedForFileIsReplacedOrRefused_data()
    {
        test::columns<QString, bool>("name", "written");
        test::row("png", "a.png", true);
        test::row("another case", "a.JPEG", true);
        test::row("no extension", "a", true);
        test::row("extension of nothing known", "a.b9", true);
        test::row("no such folder", "no/a.png", false);
    }

    void anAskedForFileIsReplacedOrRefused()
    {
        QFETCH(QString, name);
        QFETCH(bool, written);
        CaptureStage stage;
        const QString path = stage.folder.filePath(name);
        test::writeFile(path, "old");
        const auto result = stage.router.saveTo(path, picture());
        QCOMPARE(bool(result), written);
        QCOMPARE(stage.alerts.shown.isEmpty(), written);
        QCOMPARE(QImage(path).isNull(), !written);
    }
};

QTEST_GUILESS_MAIN(PostCaptureRouterTest)
#include "PostCaptureRouterTest.moc"
