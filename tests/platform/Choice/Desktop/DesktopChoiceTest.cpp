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

    void withoutWaylandQtsClipboardDoes()
    {
        QVERIFY(!DesktopChoice::ownClipboard());
        QVERIFY(DesktopChoice::windowLayers()->canPlace());
    }
};

QTEST_MAIN(DesktopChoiceTest)
#include "DesktopChoiceTest.moc"
