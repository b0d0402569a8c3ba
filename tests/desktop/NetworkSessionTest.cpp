// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/SampleDesktop.h"
#include "tests/desktop/TrayPanel.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using namespace tessaly::test;

/// Nothing that Tessaly does opens a socket of a network: not the program, not its worker, not its command.
class NetworkSessionTest : public QObject {
    Q_OBJECT

    DesktopSession m_session { QStringLiteral("1280x900x24") };
    SampleDesktop m_desktop { m_session };
    TrayPanel m_panel;
    const QString m_regionTitle = QStringLiteral("Untitled"), m_screenTitle = QStringLiteral("Display");

    QString record() const { return m_session.path(QStringLiteral("sockets.txt")); }

    /// Notes every socket of a program and of those that it starts. The program stays the child of who starts it.
    QStringList tracer() const
    {
        return { "strace", "-D", "-f", "--seccomp-bpf", "-A", "-e", "trace=socket,connect", "-o", record() };
    }

    /// What has been noted.
    QByteArray read() const
    {
        QFile file(record());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The calls that open or use a socket that leaves the machine's own programs.
    static QStringList networkCalls(const QByteArray &record)
    {
        static const QRegularExpression family(QStringLiteral("\\b(AF|PF)_([A-Z0-9]+)\\b"));
        const QStringList local { "UNIX", "LOCAL", "NETLINK", "UNSPEC" };
        QStringList calls;
        for (const QByteArray &line : record.split('\n')) {
            const QString call = QString::fromUtf8(line);
            auto families = family.globalMatch(call);
            while (families.hasNext()) {
                if (!local.contains(families.next().captured(2)))
                    calls += call;
            }
        }
        return calls;
    }

    bool shows(const QString &name) const { return m_session.tree().find(name).has_value(); }

    bool select(const QList<QPoint> &way) const
    {
        const QString overlay = QStringLiteral("Select what to capture");
        const bool there = shows(overlay);
        m_session.drag(way);
        return there && m_session.waitUntilGone(overlay);
    }

    /// Opens a window by the tray's menu, and closes it.
    bool visit(const char *entry, const char *window)
    {
        const QString title = QString::fromUtf8(window);
        const bool opened = m_panel.click({ QString::fromUtf8(entry) }) && m_session.tree().waitUntilActive(title);
        m_session.key(QStringLiteral("Escape"));
        return opened && m_session.waitUntilGone(title);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_session.isReady() && m_desktop.isReady() && m_panel.start());
        for (const char *folder : { "saved", "watched" })
            QVERIFY(QDir().mkpath(m_session.path(QLatin1StringView(folder))));
        // The checks of memory that tests are built with look at the program the same way, and only one can.
        const QByteArray checks = qgetenv("ASAN_OPTIONS");
        qputenv("ASAN_OPTIONS", checks.isEmpty() ? "detect_leaks=0" : checks + ":detect_leaks=0");
    }

    void anySocketOfANetworkIsFound_data()
    {
        columns<QString>("script");
        row("the program's", QStringLiteral(": < /dev/tcp/127.0.0.1/1"));
        row("a datagram", QStringLiteral(": < /dev/udp/127.0.0.1/1"));
        row("of the sixth version", QStringLiteral(": < /dev/tcp/::1/1"));
        row("a worker's", QStringLiteral("bash -c 'bash -c \": < /dev/tcp/127.0.0.1/1\" & wait' & wait"));
    }

    void anySocketOfANetworkIsFound()
    {
        QFETCH(QString, script);
        QProcess program;
        program.setStandardErrorFile(QProcess::nullDevice());
        program.start(tracer().first(), tracer().mid(1) + QStringList { "bash", "-c", script });
        QVERIFY(program.waitForFinished(patience));
        QTRY_VERIFY(!networkCalls(read()).isEmpty());
        QVERIFY(QFile::remove(record()));
    }

    // From here on a session of all that it does.

    void starts()
    {
        m_session.startThrough(tracer());
        QVERIFY(m_session.startResident(
            QJsonDocument(QJsonObject { { "defaultSaveFolder", m_session.path(QStringLiteral("saved")) },
                              { "captureSound", true }, { "watchSystemScreenshots", true },
                              { "systemScreenshotsFolderBookmark", m_session.path(QStringLiteral("watched")) } })
                .toJson()));
        QTRY_COMPARE(m_panel.iconCount(), 1);
    }

    void captures()
    {
        m_session.key(QStringLiteral("ctrl+alt+4"));
        QVERIFY(select(SampleDesktop::regionWay()));
        QVERIFY(shows(QStringLiteral("Screenshot, 231 by 201 pixels")));
        QVERIFY(m_session.tree().waitUntilActive(m_regionTitle));
    }

    /// A mark, the finished picture on the clipboard, in a file and on the screen.
    void edits()
    {
        const auto canvas = m_session.tree().find(QStringLiteral("Screenshot, 231 by 201 pixels"));
        QVERIFY(canvas);
        m_session.key(QStringLiteral("r"));
        m_session.drag({ canvas->rect.center() - QPoint(30, 30), canvas->rect.center() + QPoint(30, 30) });
        m_session.key(QStringLiteral("ctrl+shift+c"));
        QTRY_COMPARE(m_session.clipboardPicture().size(), QSize(231, 201));
        m_session.key(QStringLiteral("ctrl+s"));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Save Image")));
        QVERIFY(m_session.click(QStringLiteral("File name:"), QStringLiteral("text")));
        m_session.key(QStringLiteral("ctrl+a"));
        m_session.type(m_session.path(QStringLiteral("finished.png")));
        m_session.key(QStringLiteral("Return"));
        QTRY_VERIFY(QFile::exists(m_session.path(QStringLiteral("finished.png"))));
        QVERIFY(m_session.tree().waitUntilActive(m_regionTitle));
        m_session.key(QStringLiteral("ctrl+w"));
        QVERIFY(m_session.waitUntilGone(QStringLiteral("Screenshot, 231")));
    }

    void readsAndFinds()
    {
        m_session.key(QStringLiteral("ctrl+alt+7"));
        QVERIFY(select(SampleDesktop::textWay()));
        QTRY_COMPARE(m_session.clipboardText().trimmed(), SampleDesktop::words());
        QCOMPARE(m_session.ask({ "org.tessaly.Automation1.CaptureFullScreen", "file" }), "()\n");
        QVERIFY(m_panel.click({ "Start Window" }));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Tessaly")));
        QVERIFY(m_session.click(QStringLiteral("Search Captures")));
        m_session.type(QStringLiteral("display"));
        QVERIFY(m_session.waitUntilGone(m_regionTitle));
        QVERIFY(shows(m_screenTitle));
    }

    void visitsItsWindows()
    {
        QVERIFY(m_panel.click({ "Settings…" }));
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("Settings")));
        for (const char *tab : { "1", "2", "3", "4", "5" })
            m_session.key(QStringLiteral("ctrl+") + QLatin1StringView(tab));
        QVERIFY(shows(QStringLiteral("Keep a history of captures")));
        m_session.key(QStringLiteral("Escape"));
        QVERIFY(m_session.waitUntilGone(QStringLiteral("Keep a history of captures")));
        QVERIFY(visit("About Tessaly", "About Tessaly"));
        QVERIFY(visit("What’s New in Tessaly", "What’s New"));
    }

    void answersOthers()
    {
        QCOMPARE(m_session.ask({ "org.tessaly.Automation1.OpenLastCapture" }), "()\n");
        QVERIFY(m_session.tree().waitUntilActive(m_screenTitle));
        QCOMPARE(m_session.ask({ "org.tessaly.Automation1.CaptureRegion", "clipboard" }), "()\n");
        QVERIFY(select(SampleDesktop::regionWay()));
        // The command looks for the running one, and hands over.
        const QStringList commands[] { { "capture", "full-screen", "--to", "clipboard" }, { "history", "list" },
            { "settings", "set", "captureSound", "false" }, { "text", m_session.path(QStringLiteral("sample.png")) },
            { m_session.path(QStringLiteral("small.png")) } };
        for (const QStringList &arguments : commands)
            QCOMPARE(DesktopSession::finish(*m_session.command(arguments)), 0);
        QVERIFY(m_session.tree().waitUntilActive(QStringLiteral("small.png")));
    }

    void opensNoSocketOfANetwork()
    {
        // Short numbers of processes are filled with blanks.
        const QByteArray end = QByteArray::number(m_session.processId()).leftJustified(5) + " +++ exited with 0";
        QVERIFY(m_panel.click({ "Quit Tessaly" }));
        QCOMPARE(m_session.waitForEnd(), 0);
        QTRY_VERIFY(read().contains(end));
        const QByteArray all = read();
        QVERIFY2(all.count("AF_UNIX") > 5, all.left(1000)); // the display, the bus: it has been looked at
        QCOMPARE(networkCalls(all), QStringList());
    }
};

QTEST_GUILESS_MAIN(NetworkSessionTest)
#include "NetworkSessionTest.moc"
