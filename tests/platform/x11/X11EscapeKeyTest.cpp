// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11Layers.h"
#include "tests/support/PatientTest.h"
#include "tests/support/VirtualScreen.h"

#include <QGuiApplication>
#include <QTest>

using namespace tessaly;

/// Keys are pressed by another program on a server of the test's own, where nothing has the focus.
class X11EscapeKeyTest : public QObject {
    Q_OBJECT

public:
    explicit X11EscapeKeyTest(const test::VirtualScreen &screen) : m_screen(screen) { }

private:
    const test::VirtualScreen &m_screen;

    bool press(const QStringList &keys) const
    {
        return m_screen.run(QStringLiteral("xdotool"), QStringList(QStringLiteral("key")) + keys) == 0;
    }

private Q_SLOTS:
    void escapeIsHeardWithAnyLock()
    {
        X11Layers layers;
        int pressed = 0;
        layers.watchEscape([&] { ++pressed; });
        QVERIFY(press({ "a", "Escape" }));
        QTRY_COMPARE(pressed, 1);
        QVERIFY(press({ "Caps_Lock", "Escape", "Num_Lock", "Escape", "Caps_Lock", "Escape", "Num_Lock" }));
        QTRY_COMPARE(pressed, 4);
    }

    void itEndsInsideACall()
    {
        X11Layers layers;
        int pressed = 0;
        layers.watchEscape([&] {
            ++pressed;
            layers.watchEscape({});
        });
        QVERIFY(press({ "Escape", "Escape" }));
        QTRY_COMPARE(pressed, 1);
        int again = 0; // a key that was heard after the second one shows that the second one is not coming
        layers.watchEscape([&] { ++again; });
        QVERIFY(press({ "Escape" }));
        QTRY_COMPARE(again, 1);
        QCOMPARE(pressed, 1);
    }
};

int main(int argc, char **argv)
{
    const test::VirtualScreen screen(QStringLiteral("640x480x24"));
    qputenv("DISPLAY", screen.displayName().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication application(argc, argv);
    X11EscapeKeyTest test(screen);
    return QTest::qExec(&test, argc, argv);
}

#include "X11EscapeKeyTest.moc"
