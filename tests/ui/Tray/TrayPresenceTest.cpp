// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tray/TrayPresence.h"

#include "core/Preferences/Settings.h"
#include "tests/support/QuietBus.h"
#include "tests/support/RecordingTarget.h"
#include "tests/support/TrayHost.h"
#include "tests/support/VirtualScreen.h"
#include "ui/Tray/CaptureMenu.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

using namespace tessaly;
using namespace tessaly::test;

/// In the order of a session: the tests share one process, in which Qt looks for a tray once.
class TrayPresenceTest : public QObject {
    Q_OBJECT

    Settings m_settings { QString() };
    RecordingTarget m_program;
    int m_menusMade = 0;
    TrayPresence m_presence { [this] {
        ++m_menusMade;
        return std::make_unique<CaptureMenu>(m_settings, m_program);
    } };
    TrayHost m_host { QDBusConnection::connectToBus(
        QString::fromLocal8Bit(qgetenv("DBUS_SESSION_BUS_ADDRESS")), "trayHost") };

    using State = TrayPresence::State;

private Q_SLOTS:
    void isNothingUntilItIsWanted()
    {
        m_program.rows[CommandId::FullScreenOn] = { { "DP-1", "17" } };
        QCOMPARE(m_presence.state(), State::Off);
        QCOMPARE(m_menusMade, 0);
    }

    /// The program is there before the panel.
    void waitsForATray()
    {
        m_presence.setWanted(true);
        QCOMPARE(m_presence.state(), State::Waiting);
        QTRY_COMPARE_WITH_TIMEOUT(m_presence.state(), State::NoTray, 20'000);
        QVERIFY(m_host.start(TrayHost::Panel::Absent));
        QTest::qWait(0);
        QCOMPARE(m_presence.state(), State::NoTray);
        QCOMPARE(m_menusMade, 0);
        m_host.addPanel();
        QTRY_COMPARE(m_presence.state(), State::Shown);
        QTRY_COMPARE(m_host.items().size(), 1);
        QCOMPARE(m_menusMade, 1);
    }

    void isAnItemOfThePanel()
    {
        QCOMPARE(m_host.property("Status").toString(), "Active");
        QCOMPARE(m_host.property("Title").toString().isEmpty(), false);
        const QList<QSize> sizes = m_host.iconSizes();
        for (const int side : { 16, 22, 24, 32, 48 })
            QVERIFY2(sizes.contains(QSize(side, side)), qPrintable(QString::number(side)));
        const QSignalSpy activated(&m_presence, &TrayPresence::activated);
        QVERIFY(m_host.activate());
        QTRY_COMPARE(activated.size(), 1);
    }

    void menuIsOperatedOverTheBus()
    {
        const TrayEntry menu = m_host.openMenu();
        QCOMPARE(menu.labels().first(3), QStringList({ "Open Tessaly", "Start Window", "-" }));
        QCOMPARE(menu.labels().last(), "Quit Tessaly");
        QVERIFY(m_host.click({ "Capture Region" }));
        QTRY_COMPARE(m_program.performed, QList { CommandId::CaptureRegion });
        QVERIFY(m_host.click({ "Full Screen on…", "DP-1" }));
        QTRY_COMPARE(m_program.chosen, QStringList("17"));
        QVERIFY(m_host.click({ "Capture Timer", "10 seconds" }));
        QTRY_COMPARE(int(m_settings.value(SettingKeys::captureDelay)), 10);
        const auto chosen = m_host.openMenu().find({ "Capture Timer", "10 seconds" });
        QVERIFY(chosen && chosen->isChecked());
        m_program.possible = QList { CommandId::Quit };
        QVERIFY(!m_host.click({ "Capture Region" }));
        QVERIFY(!m_host.openMenu().find({ "Close Pinned Screenshots" }));
        m_program.possible.reset();
        QVERIFY(m_host.openMenu().find({ "Close Pinned Screenshots" }));
    }

    void aPanelMayDieAndComeBack()
    {
        m_host.stop();
        QTRY_COMPARE(m_presence.state(), State::Waiting);
        QVERIFY(m_host.start());
        QTRY_COMPARE(m_presence.state(), State::Shown);
        QTRY_COMPARE(m_host.items().size(), 1);
        m_program.performed.clear();
        QVERIFY(m_host.click({ "Quit Tessaly" }));
        QTRY_COMPARE(m_program.performed, QList { CommandId::Quit });
    }

    void goesWhenItIsNoLongerWanted()
    {
        const QSignalSpy changed(&m_presence, &TrayPresence::stateChanged);
        m_presence.setWanted(false);
        QCOMPARE(m_presence.state(), State::Off);
        QTRY_VERIFY(m_host.items().isEmpty());
        m_presence.setWanted(true);
        QTRY_COMPARE(m_presence.state(), State::Shown);
        QTRY_COMPARE(m_host.items().size(), 1);
        QCOMPARE(changed.size(), 2);
        QCOMPARE(m_menusMade, 1);
    }
};

int main(int argc, char **argv)
{
    const VirtualScreen server(QStringLiteral("640x480x24"));
    qputenv("DISPLAY", server.displayName().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("WAYLAND_DISPLAY");
    QProcess bus;
    endWithThisProcess(bus);
    const QTemporaryDir folder;
    qputenv("DBUS_SESSION_BUS_ADDRESS", startQuietBus(bus, folder));
    int result = 0;
    {
        QApplication application(argc, argv);
        TrayPresenceTest test;
        result = QTest::qExec(&test, argc, argv);
    }
    bus.terminate();
    bus.waitForFinished();
    return result;
}

#include "TrayPresenceTest.moc"
