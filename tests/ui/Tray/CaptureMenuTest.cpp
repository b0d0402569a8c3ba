// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tray/CaptureMenu.h"

#include "core/Preferences/Settings.h"
#include "tests/support/RecordingTarget.h"

#include <QTest>

using namespace tessaly;
using namespace tessaly::test;

class CaptureMenuTest : public QObject {
    Q_OBJECT

    Settings m_settings { QString() };
    RecordingTarget m_program;

    /// Titles of what is to be seen, with keys in brackets, "-" for a separator.
    static QStringList shown(const QMenu &menu)
    {
        QStringList texts;
        for (const QAction *action : menu.actions()) {
            if (!action->isVisible())
                continue;
            const QString key = action->shortcut().toString();
            texts += action->isSeparator() ? QStringLiteral("-")
                : key.isEmpty()            ? action->text()
                                           : QStringLiteral("%1 (%2)").arg(action->text(), key);
        }
        return texts;
    }

    static QAction *find(const QMenu &menu, const QString &title)
    {
        for (QAction *action : menu.actions()) {
            if (action->text() == title)
                return action;
        }
        return nullptr;
    }

    static QMenu &submenu(const QMenu &menu, const QString &title) { return *find(menu, title)->menu(); }

private Q_SLOTS:
    void init()
    {
        m_program = {};
        m_program.rows[CommandId::FullScreenOn] = { { "DP-1 & co", "17" }, { "DP-2", "18" } };
        QVERIFY(m_settings.set(SettingKeys::captureDelay, 0));
    }

    void hasItsGroupsInOrder_data()
    {
        QTest::addColumn<bool>("pinned");
        QTest::addColumn<QStringList>("pins");
        QTest::newRow("with pins") << true
                                   << QStringList { "-", "Unlock Pinned Screenshots", "Close Pinned Screenshots" };
        QTest::newRow("without") << false << QStringList();
    }

    void hasItsGroupsInOrder()
    {
        QFETCH(bool, pinned);
        QFETCH(QStringList, pins);
        if (!pinned) {
            m_program.possible.emplace();
            for (const CommandRow &row : commandTable()) {
                if (row.id != CommandId::UnlockPinnedScreenshots && row.id != CommandId::ClosePinnedScreenshots)
                    *m_program.possible += row.id;
            }
        }
        CaptureMenu menu(m_settings, m_program);
        Q_EMIT menu.aboutToShow();
        QCOMPARE(shown(menu),
            QStringList({ "Open Tessaly", "Start Window", "-", "Capture Region (Ctrl+Alt+4)",
                "Capture Window (Ctrl+Alt+5)", "Capture Front Window", "Full Screen (Ctrl+Alt+3)", "Full Screen on…",
                "Recapture Last Region (Ctrl+Alt+Shift+4)", "Copy Text from Region (Ctrl+Alt+7)", "Quick Capture",
                "Capture Timer", "Open Image…", "Open Last Capture", "New Collage…" })
                + pins
                + QStringList({ "-", "Settings… (Ctrl+,)", "About Tessaly", "-", "What’s New in Tessaly", "-",
                    "Quit Tessaly (Ctrl+Q)" }));
        QCOMPARE(shown(submenu(menu, "Quick Capture")),
            QStringList(
                { "Region to Clipboard", "Region to File", "Full Screen to Clipboard", "Full Screen to File" }));
        QCOMPARE(shown(submenu(menu, "New Collage…")), QStringList({ "Side by side", "Stacked" }));
    }

    void whatIsChosenIsDone()
    {
        CaptureMenu menu(m_settings, m_program);
        find(menu, "Full Screen")->trigger();
        find(menu, "Open Image…")->trigger();
        find(submenu(menu, "Quick Capture"), "Region to File")->trigger();
        QCOMPARE(
            m_program.performed, QList({ CommandId::CaptureFullScreen, CommandId::Open, CommandId::RegionToFile }));
    }

    void followsWhatCanBeDone()
    {
        m_program.known = QList { CommandId::CaptureRegion, CommandId::RecaptureLastRegion, CommandId::Quit };
        m_program.possible = QList { CommandId::CaptureRegion, CommandId::Quit };
        CaptureMenu menu(m_settings, m_program);
        QVERIFY(!find(menu, "Recapture Last Region")->isEnabled());
        QVERIFY(!find(menu, "Capture Window")->isVisible()); // this desktop does not have it
        m_program.possible->append(CommandId::RecaptureLastRegion);
        Q_EMIT menu.aboutToShow();
        QVERIFY(find(menu, "Recapture Last Region")->isEnabled());
        m_program.possible->clear(); // the panel still shows it
        find(menu, "Capture Region")->trigger();
        QVERIFY(m_program.performed.isEmpty());
    }

    void displaysAreAskedWhenItOpens()
    {
        CaptureMenu menu(m_settings, m_program);
        QMenu &displays = submenu(menu, "Full Screen on…");
        QVERIFY(displays.isEmpty());
        Q_EMIT menu.aboutToShow();
        QCOMPARE(shown(displays), QStringList({ "DP-1 && co", "DP-2" }));
        const QAction *second = displays.actions().last();
        Q_EMIT displays.aboutToShow();
        QCOMPARE(displays.actions().last(), second); // a panel knows it by its number
        displays.actions().first()->trigger();
        QCOMPARE(m_program.chosen, QStringList("17"));
        m_program.rows[CommandId::FullScreenOn] = { { "eDP-1", "3" } };
        Q_EMIT menu.aboutToShow();
        QCOMPARE(shown(displays), QStringList("eDP-1"));
    }

    void timerIsTheSetting()
    {
        QVERIFY(m_settings.set(SettingKeys::captureDelay, 5));
        CaptureMenu menu(m_settings, m_program);
        const QMenu &timer = submenu(menu, "Capture Timer");
        QCOMPARE(shown(timer), QStringList({ "Off", "3 seconds", "5 seconds", "10 seconds" }));
        QVERIFY(find(timer, "5 seconds")->isChecked());
        find(timer, "10 seconds")->trigger();
        QCOMPARE(int(m_settings.value(SettingKeys::captureDelay)), 10);
        find(timer, "Off")->trigger();
        QCOMPARE(int(m_settings.value(SettingKeys::captureDelay)), 0);
        QVERIFY(m_settings.set(SettingKeys::captureDelay, 3)); // by another hand
        QVERIFY(find(timer, "3 seconds")->isChecked() && !find(timer, "Off")->isChecked());
    }
};

QTEST_MAIN(CaptureMenuTest)
#include "CaptureMenuTest.moc"
