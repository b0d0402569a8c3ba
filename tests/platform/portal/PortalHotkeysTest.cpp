// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalHotkeys.h"

#include "tests/platform/portal/FakeShortcutsPortal.h"

#include <QTest>

using namespace tessaly;
using enum CaptureAction;
using Ability = HotkeyBackend::Ability;

class PortalHotkeysTest : public QObject {
    Q_OBJECT

    static constexpr quint32 key4 = 21, key5 = 23, ctrlAlt = 2304;

    test::FakeShortcutsPortal m_portal;
    QTemporaryDir m_folder;

    /// As the service does: everything anew on every change.
    struct Follower {
        PortalHotkeys hotkeys;
        QList<quint32> pressed;
        int changes = 0;
        quint32 number = 0;

        Follower()
        {
            hotkeys.changed = [this] {
                ++changes;
                takeAll(key5);
            };
            hotkeys.pressed = [this](quint32 identifier) { pressed += identifier; };
        }
        void takeAll(quint32 secondKey)
        {
            if (hotkeys.ability() == Ability::None)
                return;
            hotkeys.remove(number - 1);
            hotkeys.remove(number);
            QVERIFY(hotkeys.add(++number, Region, key4, ctrlAlt));
            QVERIFY(hotkeys.add(++number, FrontWindow, secondKey, ctrlAlt | 512));
        }
    };

private Q_SLOTS:
    void initTestCase()
    {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toLocal8Bit());
        PortalHotkeys hotkeys; // no bus, and none is started
        QCOMPARE(hotkeys.ability(), Ability::None);
        QVERIFY(!hotkeys.add(1, Region, key4, ctrlAlt));
        hotkeys.remove(1);
        QVERIFY(m_portal.startBus());
    }

    void init()
    {
        m_portal.offersShortcuts = true;
        m_portal.answer = m_portal.granted;
        m_portal.triggers = { { "region", "Press Ctrl+Alt+4" } };
        m_portal.asked.clear();
        QVERIFY(m_portal.appear());
    }

    void cleanup() { m_portal.leave(); }
    void cleanupTestCase() { m_portal.stopBus(); }

    void theDesktopIsAskedOnce()
    {
        Follower follower;
        QCOMPARE(follower.hotkeys.ability(), Ability::None); // the start does not wait
        QTRY_VERIFY(follower.hotkeys.given(Region));
        QCOMPARE(follower.hotkeys.ability(), Ability::Asks);
        QCOMPARE(m_portal.asked.size(), 1);
        const auto wanted = m_portal.asked.first();
        QCOMPARE(wanted.size(), 2);
        QCOMPARE(wanted.at(1).id, "frontWindow");
        QCOMPARE(wanted.at(1).properties.value("description"), "Capture Front Window");
        QCOMPARE(wanted.at(1).properties.value("preferred_trigger"), "CTRL+ALT+SHIFT+5");
        QCOMPARE(follower.hotkeys.given(Region).value_or("none"), "Press Ctrl+Alt+4");
        QCOMPARE(follower.hotkeys.given(FrontWindow).value_or("none"), ""); // the user gave it none
        follower.takeAll(key5); // the same again: nobody is asked
        m_portal.activate(m_portal.sessions.last(), "region");
        QTRY_COMPARE(follower.pressed, QList<quint32> { follower.number - 1 });
        QCOMPARE(m_portal.asked.size(), 1);
        m_portal.activate(m_portal.sessions.last() + "x", "region"); // of another session
        m_portal.activate(m_portal.sessions.last(), "unknown");
        m_portal.activate(m_portal.sessions.last(), "frontWindow");
        QTRY_COMPARE(follower.pressed.size(), 2);
        QCOMPARE(follower.pressed.last(), follower.number);
    }

    void otherKeysNeedAnotherSession()
    {
        Follower follower;
        QTRY_VERIFY(follower.hotkeys.given(Region));
        m_portal.triggers = { { "frontWindow", "F6" } };
        follower.hotkeys.changed = nullptr;
        follower.takeAll(key4);
        QTRY_COMPARE(m_portal.asked.size(), 2);
        QTRY_COMPARE(follower.hotkeys.given(FrontWindow).value_or("none"), "F6");
        QCOMPARE(m_portal.sessions.size(), 1);
    }

    void theUserMayChangeThemLater()
    {
        Follower follower;
        QTRY_VERIFY(follower.hotkeys.given(Region));
        const int changes = follower.changes;
        m_portal.changeTriggers({ { "region", "Super+R" } });
        QTRY_COMPARE(follower.hotkeys.given(Region).value_or("none"), "Super+R");
        QTRY_VERIFY(follower.changes > changes);
        QCOMPARE(m_portal.asked.size(), 1);
    }

    void whoeverDeclinesIsNotAskedAgain()
    {
        m_portal.answer = m_portal.cancelled;
        Follower follower;
        QTRY_COMPARE(follower.hotkeys.given(Region).value_or("none"), "");
        QCoreApplication::processEvents();
        QCOMPARE(m_portal.asked.size(), 1);
        QCOMPARE(follower.hotkeys.ability(), Ability::Asks);
    }

    void aPortalWithoutTheInterfaceOffersNothing()
    {
        m_portal.offersShortcuts = false;
        Follower follower;
        // A portal that starts later, as at the beginning of a session, is asked then.
        m_portal.leave();
        m_portal.offersShortcuts = true;
        QVERIFY(m_portal.appear());
        QTRY_VERIFY(follower.hotkeys.given(Region));
        m_portal.leave();
        QTRY_COMPARE(follower.hotkeys.ability(), Ability::None);
        m_portal.offersShortcuts = false;
        m_portal.asked.clear();
        QVERIFY(m_portal.appear());
        QTest::qWait(0);
        QCOMPARE(follower.hotkeys.ability(), Ability::None);
        QVERIFY(m_portal.asked.isEmpty());
    }

    void theSessionEndsWithTheProgram()
    {
        {
            Follower follower;
            QTRY_VERIFY(follower.hotkeys.given(Region));
            QCOMPARE(m_portal.sessions.size(), 1);
        }
        QTRY_COMPARE(m_portal.sessions.size(), 0);
    }
};

QTEST_GUILESS_MAIN(PortalHotkeysTest)
#include "PortalHotkeysTest.moc"
