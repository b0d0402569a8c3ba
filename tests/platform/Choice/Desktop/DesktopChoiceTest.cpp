// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Choice/Desktop/DesktopChoice.h"

#include <QTest>

using namespace tessaly;

class DesktopChoiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Qt's switch for windows without its roles, which only its Wayland platform reads.
    void theSwitchIsSetWhereQtWillUseWayland_data()
    {
        QTest::addColumn<QByteArray>("platform");
        QTest::addColumn<QByteArray>("wayland");
        QTest::addColumn<bool>("set");
        QTest::newRow("X11") << QByteArray() << QByteArray() << false;
        QTest::newRow("Wayland") << QByteArray() << QByteArray("wayland-1") << true;
        QTest::newRow("Wayland asked for") << QByteArray("wayland-egl;xcb") << QByteArray() << true;
        QTest::newRow("X11 asked for") << QByteArray("xcb") << QByteArray("wayland-1") << false;
    }

    void theSwitchIsSetWhereQtWillUseWayland()
    {
        QFETCH(QByteArray, platform);
        QFETCH(QByteArray, wayland);
        constexpr auto variable = "QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT";
        const QByteArray own = qgetenv("QT_QPA_PLATFORM");
        qunsetenv(variable);
        qputenv("QT_QPA_PLATFORM", platform);
        qputenv("WAYLAND_DISPLAY", wayland);
        DesktopChoice::prepareEnvironment();
        qputenv("QT_QPA_PLATFORM", own);
        QTEST(qEnvironmentVariableIsSet(variable), "set");
    }

    /// Without a display or a bus none offers anything; the type tells what was chosen.
    void hotKeysComeFromTheSession_data()
    {
        QTest::addColumn<QByteArray>("forced");
        QTest::addColumn<QByteArray>("wayland");
        QTest::addColumn<QByteArray>("type");
        QTest::newRow("nobody sees the windows") << QByteArray() << QByteArray() << QByteArray("Missing");
        QTest::newRow("X11") << QByteArray("x11") << QByteArray("wayland-1") << QByteArray("X11");
        QTest::newRow("Wayland") << QByteArray("wayland") << QByteArray() << QByteArray("Portal");
        QTest::newRow("the portal") << QByteArray("portal") << QByteArray() << QByteArray("Portal");
        QTest::newRow("none") << QByteArray("none") << QByteArray("wayland-1") << QByteArray("Missing");
    }

    void hotKeysComeFromTheSession()
    {
        QFETCH(QByteArray, forced);
        QFETCH(QByteArray, wayland);
        QFETCH(QByteArray, type);
        qputenv("TESSALY_PLATFORM", forced);
        qputenv("WAYLAND_DISPLAY", wayland);
        qputenv("DISPLAY", ":3999");
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qunsetenv("XDG_RUNTIME_DIR");
        const auto hotkeys = DesktopChoice::hotkeys();
        const HotkeyBackend &chosen = *hotkeys;
        QVERIFY2(QByteArray(typeid(chosen).name()).contains(type + "Hotkeys"), typeid(chosen).name());
        QCOMPARE(chosen.ability(), HotkeyBackend::Ability::None);
        qunsetenv("TESSALY_PLATFORM");
        qunsetenv("WAYLAND_DISPLAY");
    }

    void withoutWaylandQtsClipboardDoes()
    {
        QVERIFY(!DesktopChoice::ownClipboard());
        QVERIFY(DesktopChoice::windowLayers()->canPlace());
    }
};

QTEST_MAIN(DesktopChoiceTest)
#include "DesktopChoiceTest.moc"
