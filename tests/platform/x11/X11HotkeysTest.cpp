// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11Hotkeys.h"

#include "core/Hotkey/CaptureHotKey.h"
#include "tests/support/VirtualScreen.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QRasterWindow>
#include <QTest>

using namespace tessaly;
using enum CaptureAction;

/// Keys are pressed by another program on a server of the test's own.
class X11HotkeysTest : public QObject {
    Q_OBJECT

public:
    explicit X11HotkeysTest(const test::VirtualScreen &screen) : m_screen(screen) { }

private:
    static constexpr quint32 key4 = 21, key5 = 23, keyPrint = 105;
    static constexpr quint32 ctrlAlt = CaptureHotKey::command | CaptureHotKey::option;

    const test::VirtualScreen &m_screen;
    QList<quint32> m_pressed;

    void listen(X11Hotkeys &hotkeys)
    {
        m_pressed.clear();
        hotkeys.pressed = [this](quint32 identifier) { m_pressed += identifier; };
    }
    /// As soon as the server has heard that another program let go.
    static bool takes(X11Hotkeys &hotkeys, quint32 identifier)
    {
        return QTest::qWaitFor([&] { return hotkeys.add(identifier, Region, key4, ctrlAlt); });
    }
    void type(const QStringList &keys) const { xdotool(QStringList("key") + keys); }
    void xdotool(const QStringList &arguments) const { QCOMPARE(m_screen.run("xdotool", arguments), 0); }

private Q_SLOTS:
    void combinationsAreHeardWithAnyLock()
    {
        X11Hotkeys hotkeys;
        listen(hotkeys);
        QCOMPARE(hotkeys.ability(), HotkeyBackend::Ability::Grabs);
        QVERIFY(hotkeys.add(1, Region, key4, ctrlAlt));
        QVERIFY(hotkeys.add(2, LastRegion, key4, ctrlAlt | CaptureHotKey::shift));
        QVERIFY(hotkeys.add(3, Window, key5, CaptureHotKey::control));
        QVERIFY(m_pressed.isEmpty());
        type({ "ctrl+alt+4", "4", "ctrl+4", "ctrl+alt+5", "ctrl+alt+shift+4", "super+5" });
        QTRY_COMPARE(m_pressed, (QList<quint32> { 1, 2, 3 }));
        type({ "Caps_Lock", "ctrl+alt+4", "Num_Lock", "ctrl+alt+4", "Caps_Lock", "ctrl+alt+4", "Num_Lock" });
        QTRY_COMPARE(m_pressed, (QList<quint32> { 1, 2, 3, 1, 1, 1 }));
        hotkeys.remove(1);
        type({ "ctrl+alt+4", "super+5" });
        QTRY_COMPARE(m_pressed.size(), 7);
        QCOMPARE(m_pressed.last(), 3u);
    }

    void aHeldKeyIsPressedOnce()
    {
        X11Hotkeys hotkeys;
        listen(hotkeys);
        QVERIFY(hotkeys.add(1, Region, key4, ctrlAlt));
        QVERIFY(hotkeys.add(2, Window, key5, ctrlAlt));
        QCOMPARE(m_screen.run("xset", { "r", "rate", "100", "50" }), 0);
        xdotool({ "keydown", "ctrl", "keydown", "alt", "keydown", "4", "sleep", "0.6", "keyup", "4", "key", "5", "key",
            "4", "keyup", "alt", "keyup", "ctrl" });
        QTRY_COMPARE(m_pressed.size(), 3);
        QCOMPARE(m_pressed, (QList<quint32> { 1, 2, 1 }));
    }

    void oneOfAnotherProgramIsRefusedWhole()
    {
        X11Hotkeys other;
        QVERIFY(other.add(1, Region, key4, ctrlAlt));
        X11Hotkeys hotkeys;
        listen(hotkeys);
        QVERIFY(!hotkeys.add(1, Region, key4, ctrlAlt));
        QVERIFY(hotkeys.add(2, Window, key5, ctrlAlt));
        QVERIFY(!hotkeys.add(3, FullScreen, key5, ctrlAlt)); // nor twice by ourselves
        QVERIFY(!hotkeys.add(4, FullScreen, 9999, ctrlAlt)); // no key
        type({ "ctrl+alt+4", "ctrl+alt+5" });
        QTRY_COMPARE(m_pressed, QList<quint32> { 2 });
        other.remove(1);
        QVERIFY(takes(hotkeys, 5)); // nothing was left of the refused one, either
        type({ "ctrl+alt+4" });
        QTRY_COMPARE(m_pressed, (QList<quint32> { 2, 5 }));
    }

    /// Another program holds those without Num Lock: the two with it, which were granted, are given back.
    void aRefusalLeavesNothingBehind()
    {
        X11Hotkeys first;
        QCOMPARE(m_screen.run("xmodmap", { "-e", "clear mod2" }), 0);
        X11Hotkeys withoutNumLock;
        QVERIFY(withoutNumLock.add(1, Region, key4, ctrlAlt));
        QCOMPARE(m_screen.run("xmodmap", { "-e", "add mod2 = Num_Lock" }), 0);
        X11Hotkeys second;
        QVERIFY(!second.add(1, Region, key4, ctrlAlt));
        withoutNumLock.remove(1);
        QVERIFY(takes(first, 1));
    }

    void severalKeysOfOneNameAreAllHeard()
    {
        X11Hotkeys hotkeys;
        listen(hotkeys);
        QVERIFY(hotkeys.add(1, Region, keyPrint, CaptureHotKey::shift));
        type({ "shift+107", "shift+218" });
        QTRY_COMPARE(m_pressed, (QList<quint32> { 1, 1 }));
    }

    void itFollowsTheKeyboard()
    {
        X11Hotkeys hotkeys;
        listen(hotkeys);
        int changes = 0;
        const auto take = [&] {
            hotkeys.remove(1);
            QVERIFY(hotkeys.add(1, Region, key4, ctrlAlt));
        };
        hotkeys.changed = [&] {
            ++changes;
            take();
        };
        take();
        QCOMPARE(m_screen.run("setxkbmap", { "fr" }), 0);
        type({ "ctrl+alt+13" }); // the key, whatever it writes
        QTRY_COMPARE(m_pressed.size(), 1);
        QCOMPARE(m_screen.run("setxkbmap", { "us" }), 0);
        changes = 0;
        QCOMPARE(m_screen.run("xmodmap", { "-e", "clear mod2", "-e", "clear mod3", "-e", "add mod3 = Num_Lock" }), 0);
        QTRY_VERIFY(changes > 0);
        type({ "Num_Lock", "ctrl+alt+4", "Num_Lock", "ctrl+alt+4" });
        QTRY_COMPARE(m_pressed.size(), 3);
        QCOMPARE(m_screen.run("setxkbmap", { "us" }), 0);
    }

    /// A window with all keys hears nothing else, but the hot keys of its own program.
    void theSelectionDoesNotKeepThem()
    {
        X11Hotkeys hotkeys;
        listen(hotkeys);
        QVERIFY(hotkeys.add(1, Region, key4, ctrlAlt));
        class : public QRasterWindow {
        public:
            QString keys;

        private:
            void keyPressEvent(QKeyEvent *event) override { keys += event->text(); }
        } window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(window.setKeyboardGrabEnabled(true));
        type({ "ctrl+alt+4", "a" });
        QTRY_COMPARE(window.keys, "a");
        QCOMPARE(m_pressed, QList<quint32> { 1 });
        window.setKeyboardGrabEnabled(false);
        type({ "ctrl+alt+4" });
        QTRY_COMPARE(m_pressed.size(), 2);
    }

    void withoutAServerNothingIsOffered()
    {
        X11Hotkeys none(":3999");
        QCOMPARE(none.ability(), HotkeyBackend::Ability::None);
        QVERIFY(!none.add(1, Region, key4, ctrlAlt));
        none.remove(1);
    }

    void aServerMayGo()
    {
        auto server = std::make_unique<test::VirtualScreen>("320x200x24");
        X11Hotkeys hotkeys(server->displayName());
        QVERIFY(hotkeys.add(1, Region, key4, ctrlAlt));
        server.reset();
        QTRY_VERIFY(!hotkeys.add(2, Window, key5, ctrlAlt));
        hotkeys.remove(1);
    }
};

int main(int argc, char **argv)
{
    const test::VirtualScreen screen(QStringLiteral("640x480x24"));
    qputenv("DISPLAY", screen.displayName().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication application(argc, argv);
    X11HotkeysTest test(screen);
    return QTest::qExec(&test, argc, argv);
}

#include "X11HotkeysTest.moc"
