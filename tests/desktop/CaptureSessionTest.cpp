// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/DesktopSession.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace tessaly::test;

/// What happens around a capture: how it is given up, where it goes, and what stays on the screen after it.
class CaptureSessionTest : public QObject {
    Q_OBJECT

    DesktopSession m_session { QStringLiteral("1280x900x24") };
    QImage m_pattern { 1280, 900, QImage::Format_RGB32 };

    QString file(const QString &name = QStringLiteral("area.png")) const { return m_session.path(name); }
    static QImage read(const QString &path) { return DesktopSession::pixels(path); }
    QByteArray tessaly(const QStringList &arguments) const
    {
        return m_session.output(QStringLiteral(TESSALY_BINARIES "/tessaly"), arguments);
    }
    QByteArray commandLine(const QStringList &arguments) const
    {
        const auto command = m_session.command(arguments);
        return QByteArray::number(DesktopSession::finish(*command));
    }

    bool isShown(const char *name) const { return m_session.tree().find(QLatin1StringView(name)).has_value(); }

    qsizetype count(const QString &name) const
    {
        const auto controls = m_session.tree().controls();
        return std::ranges::count_if(
            controls, [&](const SeenControl &control) { return control.showing && control.name == name; });
    }

    /// Chooses an entry of a menu, as the screen reader's user does.
    bool choose(const QString &title)
    {
        for (const SeenControl &control : m_session.tree().controls()) {
            if (control.name == title && control.role == u"menu item")
                return m_session.tree().activate(control);
        }
        return false;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_session.isReady());
        for (int y = 0; y < m_pattern.height(); ++y) {
            for (int x = 0; x < m_pattern.width(); ++x)
                m_pattern.setPixel(x, y, qRgb(x % 251, y % 241, (x + y) % 2 ? 255 : 0));
        }
        m_session.showBackground(m_pattern);
    }

    void cleanup()
    {
        if (m_session.isRunning())
            QCOMPARE(m_session.stop(), 0);
    }

    void isGivenUp_data()
    {
        columns<QByteArray, QStringList, QByteArray, bool>("settings", "options", "waitsFor", "byMouse");
        const QByteArray overlay = "Select what to capture";
        row("Escape", QByteArray("{}"), QStringList { "region" }, overlay, false);
        row("right button", QByteArray("{}"), QStringList { "region" }, overlay, true);
        row("picking", QByteArray("{}"), QStringList { "window" }, overlay, false);
        row("countdown", QByteArray("{}"), QStringList { "full-screen", "--delay", "999", "--to", "clipboard" },
            QByteArray("9"), false); // for more than a minute
        row("countdown of the settings", QByteArray("{\"captureDelay\":199,\"freezeScreenWhileSelecting\":true}"),
            QStringList { "region" }, QByteArray("1"), false);
    }

    void isGivenUp()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QStringList, options);
        QFETCH(QByteArray, waitsFor);
        QFETCH(bool, byMouse);
        QVERIFY(m_session.startResident(settings));
        const QByteArray before = tessaly({ "history", "list" });
        const auto command = m_session.command(QStringList { "capture" } + options);
        QVERIFY(isShown(waitsFor));
        if (byMouse)
            m_session.click({ 400, 400 }, 3);
        else
            m_session.key("Escape");
        QCOMPARE(DesktopSession::finish(*command), 1);
        QVERIFY(command->readAllStandardError().contains("cancelled"));
        QVERIFY(m_session.waitUntilGone(waitsFor));
        QCOMPARE(tessaly({ "history", "list" }), before);
    }

    /// Nothing runs: the command becomes the program, and ends with its one capture.
    void worksWithoutARunningProgram()
    {
        m_session.writeSettings("{}");
        QVERIFY(m_session.start({ "capture", "region", "-o", file() }));
        QVERIFY(isShown("Select what to capture"));
        m_session.drag({ { 101, 203 }, { 332, 404 } });
        QCOMPARE(m_session.waitForEnd(), 0);
        QCOMPARE(read(file()), m_pattern.copy(101, 203, 231, 201));
    }

    void anInterruptedCommandTakesItsSelectionAlong()
    {
        const char *overlay = "Select what to capture";
        m_session.writeSettings("{}");
        QVERIFY(m_session.start({ "capture", "region", "-o", file("interrupted.png") }));
        QVERIFY(isShown(overlay));
        QCOMPARE(m_session.stop(), 1);
        QVERIFY(m_session.startResident("{}"));
        const auto command = m_session.command({ "capture", "region" });
        QVERIFY(isShown(overlay));
        command->terminate();
        QVERIFY(m_session.waitUntilGone(overlay));
    }

    /// A second one is not needed, nor could it be reached.
    void runsOnce()
    {
        QVERIFY(m_session.startResident("{}"));
        QProcess second;
        endWithThisProcess(second);
        second.start(TESSALY_BINARIES "/tessaly-desktop", { "--resident" });
        QCOMPARE(DesktopSession::finish(second), 0);
        QVERIFY(m_session.isRunning());
    }

    void aPickedWindowIsWhole()
    {
        m_pattern.copy(300, 200, 240, 160).save(file("small.png"));
        QProcess shown;
        endWithThisProcess(shown);
        shown.start("display", { "-geometry", "+500+300", file("small.png") });
        QJsonArray windows;
        QTRY_COMPARE((windows = QJsonDocument::fromJson(tessaly({ "windows", "--json" })).array()).size(), 1);
        const QJsonArray rect = windows[0].toObject()[u"layoutRect"].toArray();
        const QRect place(rect[0].toInt(), rect[1].toInt(), rect[2].toInt(), rect[3].toInt());
        QVERIFY(m_session.startResident(R"({"windowCaptureShadow":false,"windowCaptureTransparentBackground":false})"));
        tessaly({ "capture", "full-screen", "-o", file("screen.png") });
        const QImage expected = read(file("screen.png")).copy(place);
        const auto command = m_session.command({ "capture", "window", "-o", file() });
        QVERIFY(isShown("Select what to capture"));
        m_session.click(place.center());
        QCOMPARE(DesktopSession::finish(*command), 0);
        QCOMPARE(read(file()), expected);
        // The same by its number, without anything to click.
        const QString id = QString::number(windows[0].toObject()[u"id"].toInteger());
        QCOMPARE(commandLine({ "capture", "window", "--window", id, "-o", file("again.png") }), QByteArray("0"));
        QCOMPARE(read(file("again.png")), expected);
        shown.terminate();
        shown.waitForFinished(patience);
    }

    void capturesOfOneSecondHaveNamesOfTheirOwn()
    {
        QDir().mkpath(file("saved"));
        QVERIFY(m_session.startResident(
            QJsonDocument(QJsonObject { { "defaultSaveFolder", file("saved") } }).toJson(QJsonDocument::Compact)));
        const QList<QByteArray> answers { m_session.output("gdbus", toFile()), m_session.output("gdbus", toFile()) };
        const QStringList names = QDir(file("saved")).entryList(QDir::Files);
        QCOMPARE(names.size(), 2);
        const QStringList here { "capture", "full-screen", "--to", "file" };
        const std::array commands { m_session.command(here), m_session.command(here), m_session.command(here) };
        QSet<QByteArray> printed;
        for (const auto &command : commands) {
            QCOMPARE(DesktopSession::finish(*command), 0);
            printed += command->readAllStandardOutput();
        }
        QCOMPARE(printed.size(), 3);
        for (const QString &name : names) {
            QVERIFY(answers[0].contains(name.toUtf8()) || answers[1].contains(name.toUtf8()));
            QCOMPARE(read(file("saved/" + name)), m_pattern);
        }
    }

    void aFolderThatIsGoneIsAskedFor()
    {
        QVERIFY(m_session.startResident(
            QJsonDocument(QJsonObject { { "defaultSaveFolder", file("gone") } }).toJson(QJsonDocument::Compact)));
        QProcess request;
        request.start("gdbus", toFile());
        QVERIFY(m_session.tree().find("File name:"));
        m_session.key("Escape");
        QCOMPARE(DesktopSession::finish(request), 0);
        QVERIFY(!QDir(file("gone")).exists());
    }

    void thumbnailsPileUp()
    {
        QVERIFY(m_session.startResident(R"({"afterCaptureQuickAccess":true,"historyEnabled":false})"));
        for (int i = 0; i < 7; ++i)
            QCOMPARE(commandLine({ "capture", "full-screen", "--to", "editor" }), QByteArray("0"));
        QTRY_VERIFY(count("Screenshot taken") <= 6); // the oldest fades out
        // They go by themselves.
        QTRY_VERIFY(count("Screenshot taken") == 0);
    }

    void pinnedScreenshotsGrowFaintButStay()
    {
        QVERIFY(m_session.startResident("{}"));
        QCOMPARE(commandLine({ "capture", "region", "--rect", "100,100,240,160", "--to", "editor" }), QByteArray("0"));
        QVERIFY(isShown("Untitled"));
        QTRY_VERIFY(choose("Pin to Screen"));
        // A slow answer may have made the test pin a second time, over the first; the wheel turns the upper one.
        const auto pins = [&] {
            return m_session.output("xdotool", { "search", "--onlyvisible", "--name", "^Pinned screenshot" })
                .split('\n');
        };
        QTRY_VERIFY(!pins().first().isEmpty());
        const auto turnWheel = [&] {
            m_session.output("xdotool",
                { "mousemove", "--window", pins().first(), "60", "60", "click", "--repeat", "30", "--delay", "20",
                    "5" });
        };
        const auto isFaintest = [&](const QByteArray &pin) {
            const QByteArray answer = m_session.output("xprop", { "-id", pin, "_NET_WM_WINDOW_OPACITY" });
            return qRound(100 * answer.split('=').last().trimmed().toDouble() / 0xffffffff) == 20;
        };
        turnWheel();
        QTRY_VERIFY(std::ranges::any_of(pins(), isFaintest));
        turnWheel();
        QVERIFY(std::ranges::any_of(pins(), isFaintest));
        // It is no window of an editor: closing all of those leaves it.
        m_session.key("ctrl+w");
        QVERIFY(m_session.tree().find("Pinned screenshot"));
    }

    void aFileInPiecesIsOpenedWhenItIsWhole()
    {
        QDir().mkpath(file("watched"));
        QVERIFY(m_session.startResident(QJsonDocument(
            QJsonObject { { "watchSystemScreenshots", true }, { "systemScreenshotsFolderBookmark", file("watched") } })
                                            .toJson(QJsonDocument::Compact)));
        m_pattern.copy(0, 0, 320, 200).save(file("whole.png"));
        QFile whole(file("whole.png"));
        QVERIFY(whole.open(QIODevice::ReadOnly));
        QFile pieces(file("watched/Screen shot.png"));
        QVERIFY(pieces.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (!whole.atEnd()) {
            pieces.write(whole.read(whole.size() / 6 + 1));
            QTest::qWait(40); // as a slow tool writes
        }
        pieces.close();
        QVERIFY(isShown("Screenshot, 320 by 200 pixels"));
    }

private:
    static QStringList toFile()
    {
        return { "call", "--session", "--dest", "org.tessaly.Tessaly", "--object-path", "/org/tessaly/Tessaly",
            "--method", "org.tessaly.Automation1.Capture", "full-screen", "{'to':<'file'>}" };
    }
};

QTEST_GUILESS_MAIN(CaptureSessionTest)
#include "CaptureSessionTest.moc"
