// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/PostCaptureRouter.h"
#include "tests/core/Capture/CaptureStage.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"
#include "tests/support/TestFiles.h"

#include <QBuffer>
#include <QTest>

using namespace tessaly;
using test::CaptureStage;

/// Files that come into the watched folder, in one piece and in several.
class SystemScreenshotWatcherTest : public QObject {
    Q_OBJECT

    std::unique_ptr<CaptureStage> m_stage;
    QString m_folder;
    QStringList m_found;

    static QByteArray bytes(const char *format = "png")
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        CaptureStage::placePicture({ 9, 7 }).save(&buffer, format);
        return bytes;
    }
    bool put(const QString &name, const QByteArray &content = bytes())
    {
        return test::writeFile(m_folder + u'/' + name, content);
    }
    /// Puts a file that is opened for certain, after which all others before it have been looked at.
    void putLast(const QString &name = QStringLiteral("last.png"))
    {
        QVERIFY(put(name));
        QTRY_VERIFY(m_found.contains(name));
    }

private Q_SLOTS:
    void init()
    {
        m_found.clear();
        m_stage = std::make_unique<CaptureStage>();
        m_stage->clock.time = QDateTime::currentDateTime();
        m_folder = m_stage->folder.filePath(QStringLiteral("Pictures/Screenshots"));
        QVERIFY(QDir().mkpath(m_folder));
        QVERIFY(m_stage->settings.set(SettingKeys::systemScreenshotsFolder, m_folder));
        m_stage->watcher.found = [this](const RasterImage &image, const QString &name) {
            QCOMPARE(image.pixelSize(), QSize(9, 7));
            m_found += name;
        };
    }

    void opensPicturesThatAreNew_data()
    {
        test::columns<QString, QByteArray, bool>("name", "content", "opened");
        test::row("png", QStringLiteral("a b.png"), bytes(), true);
        test::row("upper case", QStringLiteral("A.PNG"), bytes(), true);
        test::row("jpeg", QStringLiteral("a.jpg"), bytes("jpg"), true);
        test::row("hidden", QStringLiteral(".a.png"), bytes(), false);
        test::row("another kind", QStringLiteral("a.webp"), bytes(), false);
        test::row("pdf", QStringLiteral("a.pdf"), bytes(), false);
        test::row("no picture", QStringLiteral("a.png"), QByteArray("text"), false);
        test::row("empty", QStringLiteral("a.png"), QByteArray(), false);
    }

    void opensPicturesThatAreNew()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(bool, opened);
        m_stage->watcher.start();
        QVERIFY(put(name, content));
        putLast();
        QCOMPARE(m_found.contains(name), opened);
        QCOMPARE(m_found.size(), opened ? 2 : 1);
    }

    void waitsUntilAFileIsWhole_data()
    {
        test::columns<int, int>("bytesAtFirst", "pause");
        test::row("a look at nothing", 0, 12);
        test::row("more than all looks at nothing", 0, 150);
        test::row("a look at a part", 60, 12);
        test::row("more than all looks at a part", 60, 150);
    }

    void waitsUntilAFileIsWhole()
    {
        QFETCH(int, bytesAtFirst);
        QFETCH(int, pause);
        m_stage->watcher.start();
        QVERIFY(put(QStringLiteral("a.png"), bytes().left(bytesAtFirst)));
        QTest::qWait(pause);
        QVERIFY(m_found.isEmpty());
        QVERIFY(put(QStringLiteral("a.png")));
        QTRY_COMPARE(m_found, QStringList(QStringLiteral("a.png")));
        QVERIFY(put(QStringLiteral("a.png"))); // touched
        putLast();
        QCOMPARE(m_found.size(), 2);
    }

    void oldFilesAreNeverOpened()
    {
        QVERIFY(put(QStringLiteral("there.png")));
        m_stage->watcher.start();
        QVERIFY(put(QStringLiteral("there.png"))); // touched
        const QString elsewhere = m_stage->folder.filePath(QStringLiteral("made before.png"));
        m_stage->clock.time = m_stage->clock.time.addSecs(3600);
        m_stage->watcher.start(); // an hour later, for the file that now comes
        QVERIFY(put(QStringLiteral("earlier.png")));
        m_stage->clock.time = m_stage->clock.time.addSecs(-7200);
        QTest::qWait(30);
        m_stage->watcher.start();
        putLast();
        QCOMPARE(m_found.size(), 1);
    }

    void ownFilesAreIgnoredOnce()
    {
        CaptureStage &stage = *m_stage;
        stage.watcher.start();
        QVERIFY(stage.router.setDefaultSaveFolder(m_folder));
        const auto own = stage.router.saveToDisk(RasterImage::fromPixels(CaptureStage::placePicture({ 9, 7 })));
        QVERIFY(own);
        putLast();
        QCOMPARE(m_found.size(), 1);
        QVERIFY(QFile::remove(*own));
        putLast(QStringLiteral("later.png")); // by then the removal is known
        QVERIFY(put(QFileInfo(*own).fileName()));
        QTRY_COMPARE(m_found.size(), 3);
    }

    void filesElsewhereAreNotIgnoredHere()
    {
        CaptureStage &stage = *m_stage;
        stage.watcher.start();
        QVERIFY(stage.router.setDefaultSaveFolder(stage.folder.path()));
        const auto own = stage.router.saveToDisk(RasterImage::fromPixels(CaptureStage::placePicture({ 9, 7 })));
        QVERIFY(put(QFileInfo(*own).fileName()));
        QTRY_COMPARE(m_found.size(), 1);
    }

    void theFolderMayVanishAndComeBack_data()
    {
        QTest::addColumn<QString>("gone"); // below the stage's folder
        QTest::addColumn<bool>("moved");
        QTest::newRow("deleted") << "Pictures/Screenshots" << false;
        QTest::newRow("deleted with what is above") << "Pictures" << false;
        QTest::newRow("moved away") << "Pictures/Screenshots" << true;
    }

    void theFolderMayVanishAndComeBack()
    {
        QFETCH(QString, gone);
        QFETCH(bool, moved);
        m_stage->watcher.start();
        const QString path = m_stage->folder.filePath(gone);
        QVERIFY(moved ? QDir().rename(path, path + u'x') : QDir(path).removeRecursively());
        QVERIFY(QDir().mkpath(m_folder));
        QVERIFY(put(QStringLiteral("a.png")));
        QTRY_COMPARE(m_found, QStringList(QStringLiteral("a.png")));
        QVERIFY(put(QStringLiteral("b.png")));
        QTRY_COMPARE(m_found.size(), 2);
    }

    void enablingAsksForAFolderOnce()
    {
        CaptureStage &stage = *m_stage;
        QVERIFY(stage.settings.set(SettingKeys::systemScreenshotsFolder, QStringLiteral("/nowhere/at/all")));
        stage.watcher.enableChoosingFolder(); // cancelled
        QVERIFY(!stage.watcher.isWatching());
        QVERIFY(!stage.settings.value(SettingKeys::watchSystemScreenshots));
        stage.openPanels.folder = m_folder;
        stage.watcher.enableChoosingFolder();
        QVERIFY(stage.watcher.isWatching());
        QVERIFY(stage.settings.value(SettingKeys::watchSystemScreenshots));
        QCOMPARE(stage.settings.value(SettingKeys::systemScreenshotsFolder), m_folder);
        stage.watcher.enableChoosingFolder();
        QCOMPARE(stage.openPanels.asked.size(), 2);
        stage.watcher.stop();
        QVERIFY(put(QStringLiteral("a.png")));
        QTest::qWait(20);
        QVERIFY(m_found.isEmpty());
    }

    void theChoiceBeginsWhereDesktopsSave()
    {
        CaptureStage &stage = *m_stage;
        QCOMPARE(stage.watcher.suggestedFolder(), m_folder); // chosen before
        QVERIFY(stage.settings.set(SettingKeys::systemScreenshotsFolder, QString()));
        const QString config = stage.folder.path();
        QVERIFY(test::writeFile(config + QStringLiteral("/user-dirs.dirs"),
            "XDG_PICTURES_DIR=\"" + QFile::encodeName(config) + "/Pictures\"\n"));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(config));
        QCOMPARE(stage.watcher.suggestedFolder(), m_folder);
        QVERIFY(QDir(m_folder).removeRecursively());
        QCOMPARE(stage.watcher.suggestedFolder(), config + QStringLiteral("/Pictures"));
        qunsetenv("XDG_CONFIG_HOME");
    }
};

QTEST_GUILESS_MAIN(SystemScreenshotWatcherTest)
#include "SystemScreenshotWatcherTest.moc"
