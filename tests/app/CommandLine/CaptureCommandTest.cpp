// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/LastRegion.h"
#include "core/Capture/ScreenshotNames.h"
#include "core/Export/ImageEncoder.h"
#include "core/History/HistoryKeeper.h"
#include "core/Preferences/Settings.h"
#include "tests/app/CommandLine/CommandRun.h"
#include "tests/support/FakeScreen.h"
#include "tests/support/Rows.h"
#include "tests/support/TestFiles.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace tessaly;

namespace {

QImage filled(QSize size, Qt::GlobalColor color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// Two displays, told apart by size and colour; one pixel of the first is green.
std::unique_ptr<test::FakeScreen> twoDisplays()
{
    auto screen = std::make_unique<test::FakeScreen>();
    QImage left = filled({ 64, 40 }, Qt::red);
    left.setPixelColor(21, 11, Qt::green);
    screen->add("left", { 0, 0, 64, 40 }, 2, left);
    screen->add("right", { 64, 0, 30, 20 }, 1, filled({ 30, 20 }, Qt::blue));
    return screen;
}

std::unique_ptr<WindowSource> twoWindows(ScreenSource &)
{
    auto windows = std::make_unique<test::FakeWindows>();
    windows->list
        = { { 7, "first", "Editor", 1, { 3, 4, 12, 10 } }, { 9, "second\nline", "Mail", 2, { 0, 0, 16, 8 } } };
    return windows;
}

} // namespace

class CaptureCommandTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    std::optional<CaptureOutcome> m_program; ///< what a running Tessaly answers
    QStringList m_asked; ///< what it was asked
    std::function<void()> m_whileTaking; ///< what another program does meanwhile

    test::Finished runCommand(const QStringList &arguments)
    {
        const auto ask = [this](const QString &subject, const QVariantMap &options) {
            m_asked = QStringList { subject };
            for (const auto &[name, value] : options.asKeyValueRange())
                m_asked += name + u'=' + value.toString();
            return m_program;
        };
        return test::runCommand(arguments,
            { [this] {
                 if (m_whileTaking)
                     m_whileTaking();
                 return Result<std::unique_ptr<ScreenSource>>(twoDisplays());
             },
                [] {
                    return std::make_unique<test::ScriptedRecognizer>([](const TextRecognizer::Request &request) {
                        const QString size = QString::number(request.image.pixelSize().width());
                        return RecognizedContent { .lines = { { .text = "width " + size, .boundingBox = {} } } };
                    });
                },
                twoWindows, ask });
    }
    test::Finished runFully(const QStringList &arguments)
    {
        return runCommand(QStringList { "capture", "full-screen" } + arguments);
    }
    int run(const QStringList &arguments) { return runFully(arguments).status; }

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

    void init()
    {
        for (const char *name : { "XDG_DATA_HOME", "XDG_CONFIG_HOME" })
            QDir(m_folder.filePath(name)).removeRecursively();
        m_program.reset();
        m_asked.clear();
        m_whileTaking = {};
    }

    void areasAreExactToThePixel_data()
    {
        // green: where the one pixel is; outside when it is not in the picture
        test::columns<QStringList, QSize, QPoint>("options", "size", "green");
        const QPoint nowhere(-1, -1);
        test::row("one point of two pixels", QStringList { "region", "--rect", "10,5,1,1" }, QSize(2, 2), QPoint(1, 1));
        test::row("half points are pixels", QStringList { "region", "--rect", "10.5,5.5,0.5,0.5" }, QSize(1, 1),
            QPoint(0, 0));
        test::row("edges go to the nearest pixel", QStringList { "region", "--rect", "10.4,5.3,1.3,1" }, QSize(2, 2),
            QPoint(0, 0));
        test::row(
            "cut off at the edge", QStringList { "region", "--rect", "-5,-5,20,15" }, QSize(30, 20), QPoint(21, 11));
        test::row("of the second display", QStringList { "region", "--display", "2", "--rect", "2,3,4,5" }, QSize(4, 5),
            nowhere);
        test::row("the last region", QStringList { "last-region" }, QSize(8, 6), QPoint(1, 1));
    }

    void areasAreExactToThePixel()
    {
        QFETCH(QStringList, options);
        QFETCH(QPoint, green);
        Settings settings(Settings::defaultPath());
        LastRegion::save(settings, { twoDisplays()->monitors.first(), { 20, 10, 8, 6 }, {} });
        const QString path = m_folder.filePath("area.png");
        const auto finished = runCommand(QStringList { "capture" } + options + QStringList { "-o", path });
        QCOMPARE(finished.messages, QString());
        const QImage written(path);
        QTEST(written.size(), "size");
        QCOMPARE(recorded().size(), 1);
        for (int y = 0; y < written.height(); ++y) {
            for (int x = 0; x < written.width(); ++x)
                QCOMPARE(written.pixelColor(x, y) == QColor(Qt::green), QPoint(x, y) == green);
        }
    }

    void windowsAreTakenByTheSettings_data()
    {
        test::columns<QStringList, bool, QSize>("options", "shadow", "size");
        test::row("the front one", QStringList { "front-window" }, false, QSize(12, 10));
        test::row("by its number", QStringList { "window", "--window", "9" }, false, QSize(16, 8));
        test::row("with its shadow", QStringList { "front-window" }, true, QSize(140, 138));
    }

    void windowsAreTakenByTheSettings()
    {
        QFETCH(QStringList, options);
        QFETCH(bool, shadow);
        QVERIFY(Settings(Settings::defaultPath()).set(SettingKeys::windowCaptureShadow, shadow));
        const QString path = m_folder.filePath("window.png");
        const auto finished = runCommand(QStringList { "capture" } + options + QStringList { "-o", path });
        QCOMPARE(finished.messages, QString());
        const QImage written(path);
        QTEST(written.size(), "size");
        QCOMPARE(written.pixelColor(written.rect().center()), QColor(Qt::green));
        QCOMPARE(written.pixelColor(0, 0).alpha() < 255, shadow);
    }

    void newFilesAreNamedAndTold()
    {
        const auto without = runFully({ "--to", "file" });
        QCOMPARE(without.status, 1);
        QVERIFY(test::onlyLine(without).contains("save folder"));
        QDir(m_folder.path()).mkdir("saved");
        const QDir saved(m_folder.filePath("saved"));
        QVERIFY(Settings(Settings::defaultPath()).set(SettingKeys::defaultSaveFolder, saved.path()));
        QSet<QString> paths;
        const QString others
            = saved.filePath(ScreenshotNames::fileName(QDateTime::currentDateTime(), 1, QLatin1StringView("png")));
        m_whileTaking = [&others] { test::writeFile(others, "another's"); };
        for (int i = 0; i < 3; ++i) {
            const auto finished = runFully({ "--to", "file", "--display", "2" });
            QCOMPARE(finished.status, 0);
            const QString path = QString::fromUtf8(finished.output).trimmed();
            QVERIFY2(QRegularExpression("/Screenshot \\d{4}-\\d\\d-\\d\\d at \\d\\d\\.\\d\\d\\.\\d\\d( [2-9])?\\.png$")
                         .match(path)
                         .hasMatch(),
                qPrintable(path));
            QCOMPARE(QImage(path).size(), QSize(30, 20));
            paths += path;
        }
        QCOMPARE(paths.size(), 3);
        QCOMPARE(test::fileContent(others), "another's");
    }

    void textIsPrintedAndNotKept()
    {
        const auto finished = runCommand({ "capture", "region", "--rect", "1,1,5,5", "--to", "text" });
        QCOMPARE(finished.output, QByteArray("width 10\n"));
        QCOMPARE(finished.status, 0);
        QVERIFY(recorded().isEmpty());
    }

    void asksTheProgram_data()
    {
        test::columns<QStringList, QString>("arguments", "asked");
        test::row("to select", QStringList { "region" }, "region to=editor");
        test::row("to select into a file", QStringList { "region", "-o", "x.png", "--delay", "3" },
            "region delay=3 output=HERE/x.png to=file");
        test::row("to pick", QStringList { "window", "--to", "text" }, "window to=text");
        test::row("for its clipboard", QStringList { "full-screen", "--to", "clipboard", "--display", "2" },
            "full-screen display=2 to=clipboard");
        test::row("for an area", QStringList { "region", "--rect", "1,2,3,4", "--to", "clipboard" },
            "region rect=1,2,3,4 to=clipboard");
        test::row("for a window", QStringList { "window", "--window", "9" }, "window to=editor window=9");
    }

    void asksTheProgram()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, asked);
        QDir::setCurrent(m_folder.path());
        const QStringList command = QStringList { "capture" } + arguments;
        m_program = Captured {};
        QCOMPARE(runCommand(command).status, 0);
        QCOMPARE(m_asked.join(u' '), asked.replace("HERE", QDir::currentPath()));
        m_program = CaptureCancelled {};
        const auto cancelled = runCommand(command);
        QCOMPARE(cancelled.status, 1);
        QVERIFY(test::onlyLine(cancelled).contains("cancelled"));
        m_program = Failure { "The moon is in the way." };
        QCOMPARE(test::onlyLine(runCommand(command)), "tessaly: The moon is in the way.");
        m_program = Captured { "/saved/a.png" };
        QCOMPARE(runCommand({ "capture", "region", "--to", "file" }).output, QByteArray("/saved/a.png\n"));
    }

    void listsTheDesktop_data()
    {
        test::columns<QStringList, QByteArray>("arguments", "output");
        test::row("displays", QStringList { "displays" },
            QByteArray("1  left   64×40 pixels  @2  at 0,0   primary\n"
                       "2  right  30×20 pixels  @1  at 64,0\n"));
        test::row("windows", QStringList { "windows" },
            QByteArray("7  Editor  12×10  at 3,4  first\n9  Mail    16×8   at 0,0  second?line\n"));
        QTest::newRow("displays as JSON")
            << QStringList { "displays", "--json" }
            << QByteArray(
                   R"([{"layoutRect":[0,0,64,40],"name":"left","number":1,"pixelSize":[64,40],)"
                   R"("pointSize":[32,20],"primary":true,"scale":2},{"layoutRect":[64,0,30,20],)"
                   R"("name":"right","number":2,"pixelSize":[30,20],"pointSize":[30,20],"primary":false,"scale":1}])");
        QTest::newRow("windows as JSON")
            << QStringList { "windows", "--json" }
            << QByteArray(
                   R"([{"application":"Editor","id":7,"layoutRect":[3,4,12,10],"processId":1,"title":"first"},)"
                   R"({"application":"Mail","id":9,"layoutRect":[0,0,16,8],"processId":2,"title":"second\nline"}])");
    }

    void listsTheDesktop()
    {
        QFETCH(QStringList, arguments);
        const auto finished = runCommand(arguments);
        QCOMPARE(finished.status, 0);
        const auto json = QJsonDocument::fromJson(finished.output);
        QTEST(json.isNull() ? finished.output : json.toJson(QJsonDocument::Compact), "output");
    }

    void aDisplayIsWritten_data()
    {
        test::columns<QStringList, QString, QSize, double>("options", "name", "size", "dpi");
        test::row("the primary one", QStringList(), "a.png", QSize(64, 40), 144.0);
        test::row("the second", QStringList { "--display", "2" }, "b.png", QSize(30, 20), 72.0);
        test::row("another format", QStringList { "--display", "1" }, "c.bmp", QSize(64, 40), 0.0);
        test::row("no format", QStringList(), "d", QSize(64, 40), 144.0);
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
        test::row("no third display", QStringList { "full-screen", "-o", "x.png", "--display", "3" });
        test::row("no folder", QStringList { "full-screen", "-o", "nowhere/x.png" });
        test::row("a folder", QStringList { "full-screen", "-o", "/tmp" });
        test::row("no folder for what is selected", QStringList { "region", "-o", "nowhere/x.png" });
        test::row("beyond the display", QStringList { "region", "--rect", "32,0,5,5", "-o", "x.png" });
        test::row("no such window", QStringList { "window", "--window", "8", "-o", "x.png" });
        test::row("no last region", QStringList { "last-region", "-o", "x.png" });
    }

    void whatCannotBeCaptured()
    {
        QFETCH(QStringList, options);
        QDir::setCurrent(m_folder.path());
        const auto finished = runCommand(QStringList { "capture" } + options);
        QCOMPARE(finished.status, 1);
        QVERIFY(test::onlyLine(finished).endsWith(u'.'));
        QVERIFY(m_asked.isEmpty() && !QFile::exists("x.png"));
        QVERIFY(recorded().isEmpty());
    }

    void everyCaptureIsRecorded_data()
    {
        QTest::addColumn<QString>("name");
        test::row("png", "a.png");
        test::row("another format", "a.jpg");
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
