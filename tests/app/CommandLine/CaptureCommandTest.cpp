// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ImageEncoder.h"
#include "core/History/HistoryKeeper.h"
#include "core/Preferences/Settings.h"
#include "tests/app/CommandLine/CommandRun.h"
#include "tests/support/TestFiles.h"

#include <QTemporaryDir>
#include <QTest>

using namespace tessaly;

namespace {

/// Two displays, told apart by size and colour.
class TwoDisplays final : public ScreenSource {
public:
    Result<QList<tessaly::Display>> displays() override
    {
        return QList<tessaly::Display> { { "left", { 0, 0, 64, 40 }, 2, true },
            { "right", { 64, 0, 30, 20 }, 1, false } };
    }

    Result<RasterImage> capture(const QRect &pixelRect, double scale) override
    {
        QImage image(pixelRect.size(), QImage::Format_RGB32);
        image.fill(pixelRect.x() == 0 ? Qt::red : Qt::blue);
        return RasterImage::fromPixels(image, scale);
    }
};

} // namespace

class CaptureCommandTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    static test::Finished runFully(const QStringList &arguments)
    {
        return test::runCommand(QStringList { "capture", "full-screen" } + arguments,
            { [] { return Result<std::unique_ptr<ScreenSource>>(std::make_unique<TwoDisplays>()); }, {} });
    }
    static int run(const QStringList &arguments) { return runFully(arguments).status; }

    static HistoryStore files() { return { HistoryStore::defaultDirectory() }; }
    static QList<HistoryEntry> recorded() { return HistoryKeeper(files()).load().entries; }

    static void addEntry(const QDateTime &created, const QString &text = {})
    {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(Qt::black);
        const auto png = encodeImage(RasterImage::fromPixels(image), ExportFormat::Png, {});
        const auto package = TessalyDocument::package(AnnotationDocument(), *png, std::nullopt);
        const HistoryEntry entry { QUuid::createUuid(), "old", created, created, 4, 4, text };
        QVERIFY(HistoryKeeper(files()).put(*package, entry));
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *name : { "XDG_CONFIG_HOME", "XDG_DATA_HOME" })
            qputenv(name, m_folder.filePath(name).toLocal8Bit());
    }

    void init() { QDir(m_folder.filePath("XDG_DATA_HOME")).removeRecursively(); }

    void aDisplayIsWritten_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("dpi");
        QTest::newRow("the primary one") << QStringList() << "a.png" << QSize(64, 40) << 144.0;
        QTest::newRow("the second") << QStringList { "--display", "2" } << "b.png" << QSize(30, 20) << 72.0;
        QTest::newRow("another format") << QStringList { "--display", "1" } << "c.bmp" << QSize(64, 40) << 0.0;
        QTest::newRow("no format") << QStringList() << "d" << QSize(64, 40) << 144.0;
    }

    void aDisplayIsWritten()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, name);
        QFETCH(double, dpi);
        const QString path = m_folder.filePath(name);
        QCOMPARE(run(QStringList { "-o", path } + options), 0);
        const QImage written(path);
        QTEST(written.size(), "size");
        QCOMPARE(written.pixelColor(0, 0), QColor(written.width() == 64 ? Qt::red : Qt::blue));
        if (dpi > 72)
            QCOMPARE(qRound(written.dotsPerMeterX() * 0.0254), qRound(dpi));
    }

    void whatCannotBeCaptured_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("no third display") << QStringList { "-o", "x.png", "--display", "3" };
        QTest::newRow("no folder") << QStringList { "-o", "nowhere/x.png" };
        QTest::newRow("a folder") << QStringList { "-o", "/tmp" };
    }

    void whatCannotBeCaptured()
    {
        QFETCH(QStringList, options);
        QDir::setCurrent(m_folder.path());
        QCOMPARE(run(options), 1);
        QVERIFY(!QFile::exists("x.png"));
        QVERIFY(recorded().isEmpty());
    }

    void everyCaptureIsRecorded_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("png") << "a.png";
        QTest::newRow("another format") << "a.jpg";
    }

    void everyCaptureIsRecorded()
    {
        QFETCH(QString, name);
        const QDateTime before = QDateTime::currentDateTime().addMSecs(-1);
        const auto finished = runFully({ "-o", m_folder.filePath(name) });
        QCOMPARE(finished.messages, QString());
        const auto entries = recorded();
        QCOMPARE(entries.size(), 1);
        const HistoryEntry &entry = entries.first();
        QCOMPARE(entry.title, "Screenshot");
        QCOMPARE(QSize(entry.pixelWidth, entry.pixelHeight), QSize(64, 40));
        QVERIFY(entry.created >= before && entry.created <= QDateTime::currentDateTime());
        QVERIFY(!entry.recognizedText);
        const QString package = files().packagePath(entry.id);
        if (name.endsWith(".png"))
            QCOMPARE(test::fileContent(package + "/image.png"), test::fileContent(m_folder.filePath(name)));
        const auto contents = TessalyDocument::contents(package);
        QVERIFY(contents);
        QCOMPARE(contents->image.pointSize, QSizeF(32, 20));
        QCOMPARE(contents->image.pixels.pixelColor(0, 0), QColor(Qt::red));
        QVERIFY(QFile::exists(package + "/QuickLook/Thumbnail.png"));
        QCOMPARE(QFileInfo(package).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    }

    void aHistoryThatIsOffStaysAsItIs()
    {
        addEntry(QDateTime::currentDateTime());
        QVERIFY(Settings(Settings::defaultPath()).set(SettingKeys::historyEnabled, false));
        const int status = run({ "-o", m_folder.filePath("off.png") });
        QVERIFY(Settings(Settings::defaultPath()).set(SettingKeys::historyEnabled, true));
        QCOMPARE(status, 0);
        QCOMPARE(recorded().size(), 1);
    }

    void aHistoryThatFailsIsTold()
    {
        QDir().mkpath(m_folder.filePath("XDG_DATA_HOME"));
        QFile inTheWay(m_folder.filePath("XDG_DATA_HOME/tessaly"));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        const auto finished = runFully({ "-o", m_folder.filePath("kept.png") });
        QCOMPARE(finished.status, 0);
        QCOMPARE(QImage(m_folder.filePath("kept.png")).size(), QSize(64, 40));
        QVERIFY2(test::onlyLine(finished).contains("history"), qPrintable(test::onlyLine(finished)));
    }

    /// A long index is not read for each capture: it waits, and is there for whoever reads the history.
    void beyondALongIndex()
    {
        addEntry(QDateTime::currentDateTime().addDays(-1), QString(300 * 1024, u'x'));
        QCOMPARE(run({ "-o", m_folder.filePath("a.png") }), 0);
        QCOMPARE(files().load().entries.size(), 1);
        QCOMPARE(recorded().size(), 2);
        QCOMPARE(files().load().entries.size(), 2);
    }

    void expiredCapturesGo()
    {
        addEntry(QDateTime::currentDateTime().addDays(-31));
        addEntry(QDateTime::currentDateTime().addDays(-29));
        QCOMPARE(run({ "-o", m_folder.filePath("a.png") }), 0);
        QCOMPARE(recorded().size(), 2);
    }

    /// Another process keeps the history: the capture is left to it.
    void besideARunningTessaly()
    {
        HistoryKeeper keeper(files());
        QCOMPARE(keeper.role(), HistoryKeeper::Role::Keeper);
        QCOMPARE(run({ "-o", m_folder.filePath("a.png") }), 0);
        QVERIFY(keeper.entries().isEmpty());
        QVERIFY(keeper.takeRequests());
        QCOMPARE(keeper.entries().size(), 1);
    }
};

QTEST_GUILESS_MAIN(CaptureCommandTest)
#include "CaptureCommandTest.moc"
