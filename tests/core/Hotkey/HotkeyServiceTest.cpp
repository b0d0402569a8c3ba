// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Hotkey/HotkeyService.h"

#include "core/Hotkey/CaptureHotKey.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeHotkeyBackend.h"

#include <QSignalSpy>
#include <QTest>

using namespace tessaly;
using enum CaptureAction;
using State = HotkeyService::State;

class HotkeyServiceTest : public QObject {
    Q_OBJECT

    struct Fixture {
        Settings settings { QString() };
        test::FakeHotkeyBackend backend;
        QList<CaptureAction> started;
        HotkeyService service { settings, backend, [this](CaptureAction action) { started += action; } };
        QSignalSpy reloaded { &service, &HotkeyService::reloaded };

        void store(CaptureAction action, const CaptureHotKey &hotKey) { QVERIFY(hotKey.save(settings, action)); }
    };
    static inline const QList<CaptureAction> all { Region, Window, FrontWindow, FullScreen, LastRegion, CopyText };

private Q_SLOTS:
    void registersTheDefaultsInTheirOrder()
    {
        Fixture f;
        QVERIFY(f.backend.active.isEmpty());
        f.service.reload();
        QCOMPARE(f.backend.actions(), all);
        QCOMPARE(f.backend.active.at(2).keyCode, 23u);
        QCOMPARE(f.backend.active.at(2).modifiers, 2816u);
        QCOMPARE(f.service.stateOf(CopyText), State::Active);
        QCOMPARE(f.reloaded.size(), 1);
    }

    void numbersAreNeverUsedTwice()
    {
        Fixture f;
        f.backend.heldElsewhere = { { 23, 2304 } };
        for (int i = 0; i < 3; ++i)
            f.service.reload();
        QList<quint32> expected(18);
        std::iota(expected.begin(), expected.end(), 1u);
        QCOMPARE(f.backend.tried, expected);
        QCOMPARE(f.backend.active.size(), 5); // the others are released
    }

    void whatIsRefusedOrDoubledKeepsNoOtherBack()
    {
        Fixture f;
        f.backend.heldElsewhere = { { 20, 2304 } };
        f.store(LastRegion, CaptureHotKey::defaultOf(Region));
        f.store(CopyText, { 23, 2304, "relabelled" }); // the keys of Window
        f.service.reload();
        QCOMPARE(f.backend.actions(), (QList { Region, Window, FrontWindow }));
        QCOMPARE(f.service.stateOf(FullScreen), State::Refused);
        QCOMPARE(f.service.stateOf(LastRegion), State::Doubled);
        QCOMPARE(f.service.stateOf(CopyText), State::Doubled);
        QCOMPARE(f.service.stateOf(Region), State::Active);
    }

    void aPressGoesThroughTheEventQueue()
    {
        Fixture f;
        f.service.reload();
        f.backend.pressed(f.backend.active.at(4).identifier);
        f.backend.pressed(77);
        QVERIFY(f.started.isEmpty());
        QTRY_COMPARE(f.started, QList { LastRegion });
        // Released meanwhile: its number means nothing any more.
        f.backend.pressed(f.backend.active.at(0).identifier);
        f.service.reload();
        f.backend.pressed(f.backend.active.at(1).identifier);
        QTRY_COMPARE(f.started.size(), 2);
        QCOMPARE(f.started.last(), Window);
    }

    void anActionMayReload()
    {
        Settings settings { QString() };
        test::FakeHotkeyBackend backend;
        int runs = 0;
        std::unique_ptr<HotkeyService> service;
        service = std::make_unique<HotkeyService>(settings, backend, [&](CaptureAction) {
            service->reload();
            ++runs;
        });
        service->reload();
        backend.pressed(1);
        QTRY_COMPARE(runs, 1);
    }

    void changesReloadOnce_data()
    {
        QTest::addColumn<bool>("isHotKey");
        QTest::newRow("a combination") << true;
        QTest::newRow("another setting") << false;
    }

    void changesReloadOnce()
    {
        QFETCH(bool, isHotKey);
        Fixture f;
        f.store(Window, { 36, 256, "↩" });
        QCoreApplication::processEvents();
        QCOMPARE(f.reloaded.size(), 0); // nothing before the first time
        f.service.reload();
        if (isHotKey)
            f.store(Region, { 48, 4608, "⇥" }); // three settings
        else
            QVERIFY(f.settings.set(SettingKeys::captureDelay, 3.0));
        QCoreApplication::processEvents();
        QCOMPARE(f.reloaded.size(), isHotKey ? 2 : 1);
        QCOMPARE(f.backend.active.at(0).modifiers, isHotKey ? 4608u : 2304u);
        f.backend.changed();
        f.backend.changed();
        QCoreApplication::processEvents();
        QCOMPARE(f.reloaded.size(), isHotKey ? 3 : 2);
    }

    void whileRecordingNothingIsTaken()
    {
        Fixture f;
        f.service.reload();
        const quint32 pressedBefore = f.backend.active.at(0).identifier;
        f.backend.pressed(pressedBefore);
        f.service.pause();
        QVERIFY(f.backend.active.isEmpty());
        QCOMPARE(f.service.stateOf(Region), State::Active);
        f.store(Region, { 36, 256, "↩" });
        f.service.reload();
        QCoreApplication::processEvents();
        QVERIFY(f.backend.active.isEmpty());
        QVERIFY(f.started.isEmpty());
        f.service.resume();
        QCOMPARE(f.backend.actions(), all);
        QCOMPARE(f.backend.active.at(0).keyCode, 36u);
        f.service.resume();
        QCOMPARE(f.reloaded.size(), 2);
    }

    void aDesktopThatIsAskedKeepsItsShortcutsWhileRecording()
    {
        Fixture f;
        f.backend.offered = HotkeyBackend::Ability::Asks;
        f.service.reload();
        QCOMPARE(f.service.stateOf(Window), State::Active); // it has not answered yet
        f.backend.hasAnswered = true;
        f.backend.granted = { { Region, "Super+R" } };
        QCOMPARE(f.service.stateOf(Region), State::Active);
        QCOMPARE(f.service.given(Region).value_or("none"), "Super+R");
        QCOMPARE(f.service.stateOf(Window), State::Refused);
        f.service.pause();
        QCOMPARE(f.backend.actions(), all);
        f.backend.pressed(1);
        QCoreApplication::processEvents();
        QVERIFY(f.started.isEmpty());
    }

    void aDesktopWithoutHotKeysIsNotBothered()
    {
        Fixture f;
        f.backend.offered = HotkeyBackend::Ability::None;
        f.service.reload();
        QVERIFY(f.backend.tried.isEmpty());
        QCOMPARE(f.service.stateOf(Region), State::NotOffered);
        QCOMPARE(f.reloaded.size(), 1);
    }
};

QTEST_GUILESS_MAIN(HotkeyServiceTest)
#include "HotkeyServiceTest.moc"
