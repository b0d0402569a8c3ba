// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/DesktopSession.h"
#include "tests/support/PatientTest.h"

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>

#include <array>
#include <csignal>

using namespace tessaly::test;

/// One Tessaly a session: how it is started, started again, asked from outside and ended.
class InstanceSessionTest : public QObject {
    Q_OBJECT

    DesktopSession m_session { QStringLiteral("1280x900x24") };
    const QString m_newCapture = QStringLiteral("Capture Region"); ///< of the start window

    QString file(const QString &name) const { return m_session.path(name); }
    static QString canvas(int width) { return QStringLiteral("Screenshot, %1 by 40 pixels").arg(width); }

    QByteArray ask(const QStringList &methodAndArguments) const { return m_session.ask(methodAndArguments); }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_session.isReady());
        m_session.writeSettings("{\"historyEnabled\":false}");
        for (const int width : { 60, 70, 80 }) {
            QImage picture(width, 40, QImage::Format_RGB32);
            picture.fill(Qt::darkCyan);
            QVERIFY(picture.save(file(QStringLiteral("%1.png").arg(width))));
        }
        QFile broken(file(QStringLiteral("broken.png")));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
    }

    void ofSeveralStartsAtOnceOneRemains()
    {
        std::vector<std::unique_ptr<QProcess>> others;
        QVERIFY(m_session.start({ file("60.png") }));
        for (const char *name : { "70.png", "80.png" })
            others.push_back(m_session.command({ file(name) }));
        for (const int width : { 60, 70, 80 })
            QVERIFY(m_session.tree().find(canvas(width)));
        QTRY_COMPARE_WITH_TIMEOUT(
            std::ranges::count_if(others, [](auto &other) { return other->state() == QProcess::NotRunning; })
                + (m_session.isRunning() ? 0 : 1),
            2, patience);
        for (const auto &other : others)
            QCOMPARE(other->exitCode(), 0);
        ask({ "org.tessaly.Automation1.Quit" });
        QTRY_VERIFY(!m_session.isRunning());
        for (const auto &other : others)
            QTRY_COMPARE_WITH_TIMEOUT(other->state(), QProcess::NotRunning, patience);
    }

    void withoutATrayItSaysHowItIsReached()
    {
        QVERIFY(m_session.start({}));
        QVERIFY(m_session.tree().find(m_newCapture));
        QVERIFY(m_session.tree().find(QStringLiteral("This desktop has no tray.")));
    }

    void itRunsWithoutItsWindowUntilItIsStartedAgain()
    {
        m_session.key(QStringLiteral("alt+F4"));
        QVERIFY(m_session.waitUntilGone(m_newCapture));
        QVERIFY(m_session.isRunning());
        const auto again = m_session.command({});
        QCOMPARE(DesktopSession::finish(*again), 0);
        QVERIFY(m_session.tree().find(m_newCapture));
    }

    void aFileThatCannotBeReadKeepsNoOtherAway()
    {
        const auto second = m_session.command({ file("broken.png"), file("70.png") });
        QCOMPARE(DesktopSession::finish(*second), 0);
        QVERIFY(m_session.click(QStringLiteral("OK")));
        QVERIFY(m_session.tree().find(canvas(70)));
    }

    void operationsAreCalledFromOutside()
    {
        QVERIFY(
            ask({ "org.tessaly.Automation1.OpenLastCapture" }).contains("There are no captures in the history yet."));
        QVERIFY(ask({ "org.tessaly.Automation1.CaptureWindow", "nowhere" }).contains("InvalidArgs"));
        QCOMPARE(ask({ "org.tessaly.Automation1.CaptureFullScreen", "" }), "()\n");
        QVERIFY(m_session.tree().find(QStringLiteral("Screenshot, 1280 by 900 pixels")));
        QCOMPARE(ask({ "org.tessaly.Automation1.CaptureRegion", "clipboard" }), "()\n");
        QVERIFY(m_session.tree().find(QStringLiteral("Select what to capture")));
        m_session.drag({ { 101, 203 }, { 332, 404 } });
        QTRY_COMPARE_WITH_TIMEOUT(m_session.clipboardPicture().size(), QSize(231, 201), patience);
    }

    /// Nobody is asked, and nobody is waited for.
    void theEndOfTheSessionIsItsEnd()
    {
        QCOMPARE(m_session.stop(), 0);
        QVERIFY(ask({ "org.tessaly.Automation1.Stay" }).contains("ServiceUnknown"));
    }

    /// The one that has the name is stopped: after some seconds the second one goes on by itself.
    void oneThatHangsIsNotWaitedForForever()
    {
        QVERIFY(m_session.startResident("{}"));
        const auto process = static_cast<pid_t>(m_session.processId());
        QCOMPARE(::kill(process, SIGSTOP), 0);
        const auto second = m_session.command({ file("80.png") });
        // Not by the accessible tree, in which the one that hangs does not answer.
        QTRY_VERIFY(!m_session.output("xdotool", { "search", "--onlyvisible", "--name", "80.png" }).isEmpty());
        QCOMPARE(::kill(process, SIGCONT), 0);
        second->terminate();
        QCOMPARE(DesktopSession::finish(*second), 0);
    }
};

QTEST_GUILESS_MAIN(InstanceSessionTest)
#include "InstanceSessionTest.moc"
