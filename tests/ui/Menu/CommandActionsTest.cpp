// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/CommandActions.h"
#include "tests/support/RecordingTarget.h"
#include "ui/Menu/ContextMenu.h"
#include "ui/Menu/MenuBar.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

using namespace tessaly;
using namespace tessaly::test;

class CommandActionsTest : public QObject {
    Q_OBJECT

    RecordingTarget m_target;
    CommandTarget *m_current = &m_target;
    bool m_optionsBarIsOn = true;
    std::optional<Tool> m_tool = Tool::Arrow;

    CommandHooks hooks()
    {
        return {
            .target = [this] { return m_current; },
            .isOn = [this](CommandId id) { return id == CommandId::ToggleOptionsBar && m_optionsBarIsOn; },
            .isOffered = [](CommandId id) { return id != CommandId::Share; },
            .currentTool = [this] { return m_tool; },
            .chooseTool = [this](Tool tool) { m_tool = tool; },
        };
    }

    static QMenu *menuCalled(const QList<QAction *> &actions, const QString &title)
    {
        for (QAction *action : actions) {
            if (action->text() == title)
                return action->menu();
        }
        return nullptr;
    }

    static QStringList textsOf(const QMenu &menu)
    {
        QStringList texts;
        for (const QAction *action : menu.actions())
            texts += action->isSeparator() ? QStringLiteral("-") : action->text().section(u'\t', 0, 0);
        return texts;
    }

private Q_SLOTS:
    void init()
    {
        m_target = {};
        m_target.known.emplace();
        m_target.possible.emplace();
        m_target.rows[CommandId::OpenRecent] = { { "a&b.png", "/x/a&b.png" } };
        m_target.rows[CommandId::FullScreenOn] = { { "DP-1", "17" } };
        m_target.clears = true;
        m_current = &m_target;
        m_optionsBarIsOn = true;
        m_tool = Tool::Arrow;
    }

    void followsWhatCanBeDone()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        m_target.known = QList { CommandId::Undo, CommandId::Redo };
        m_target.possible = QList { CommandId::Undo, CommandId::Save }; // Save is not its own
        actions.refresh();
        QVERIFY(actions.action(CommandId::Undo)->isEnabled());
        QVERIFY(!actions.action(CommandId::Redo)->isEnabled());
        QVERIFY(!actions.action(CommandId::Save)->isEnabled());
        QVERIFY(!actions.action(CommandId::Share)->isVisible());

        m_target.possible->clear(); // what was possible when the key was pressed may be so no more
        actions.action(CommandId::Undo)->trigger();
        QVERIFY(m_target.performed.isEmpty());
        m_current = nullptr;
        actions.refresh();
        QVERIFY(!actions.action(CommandId::Undo)->isEnabled());
    }

    void followsTheSwitchesAndTheTool()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        QCOMPARE(actions.action(CommandId::ToggleOptionsBar)->text(), "Hide Options Bar");
        QVERIFY(actions.toolAction(Tool::Arrow)->isChecked());
        m_optionsBarIsOn = false;
        actions.toolAction(Tool::Pen)->trigger();
        QCOMPARE(m_tool, Tool::Pen);
        QCOMPARE(actions.action(CommandId::ToggleOptionsBar)->text(), "Show Options Bar");
        QVERIFY(actions.toolAction(Tool::Pen)->isChecked() && !actions.toolAction(Tool::Arrow)->isChecked());
        actions.toolAction(Tool::Pen)->trigger(); // choosing it again does not switch it off
        QVERIFY(actions.toolAction(Tool::Pen)->isChecked());
        m_tool.reset();
        actions.refresh();
        QVERIFY(!actions.toolAction(Tool::Pen)->isEnabled() && !actions.toolAction(Tool::Pen)->isChecked());
    }

    /// Delete, Tab, arrows and the like belong to whatever has the focus.
    void takesNoKeyOfTheCanvas()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        const QAction *trash = actions.action(CommandId::Delete);
        QVERIFY(trash->shortcuts().isEmpty());
        QCOMPARE(trash->text(), "Delete\tDel");
        QCOMPARE(trash->toolTip(), "Delete (Del)");
        QCOMPARE(actions.action(CommandId::Redo)->shortcuts().size(), 2);
    }

    /// Groups and order as the user finds them; what every menu has beyond is in the table.
    void fillsTheMenuBar_data()
    {
        QTest::addColumn<QString>("menu");
        QTest::addColumn<QString>("titles");
        QTest::newRow("file") << "&File"
                              << "New Blank Canvas|New from Clipboard|Open…|Open Recent|New Tab|Close Tab|-|Save…|Save "
                                 "as Tessaly Document…|Export As…|-|Settings…|-|Quit Tessaly";
        QTest::newRow("edit") << "&Edit"
                              << "Undo|Redo|-|Cut|Copy|Paste|Delete|Duplicate|-|Copy Image|Copy Text from Image|-|Copy "
                                 "Style|Paste Style|Save Style|-|Edit Text|Order|-|Select Next|Select "
                                 "Previous|Deselect|-|Turn On Snapping";
        QTest::newRow("view") << "&View"
                              << "Zoom In|Zoom Out|Actual Size|Zoom to Fit|-|Customize Toolbar…|Hide Options "
                                 "Bar|Show Live Text";
        QTest::newRow("tools") << "&Tools"
                               << "Select|Arrow|Text|Rectangle|Ellipse|Line|Highlight|Pixelate|Stamp|Pen|Spotlight|"
                                  "Sticker|Image|Crop|Magnifier|Frame";
        QTest::newRow("image") << "&Image"
                               << "Rotate Counterclockwise|Rotate Clockwise|Flip Horizontal|Flip Vertical|-|Resize "
                                  "Image…|Sharpen…|Crop…|-|Pin to Screen|Unlock Pinned Screenshots|Close Pinned "
                                  "Screenshots";
        QTest::newRow("capture")
            << "&Capture"
            << "Capture Region|Capture Window|Capture Front Window|Capture Full Screen|Full Screen "
               "on…|Recapture Last Region|Copy Text from Region|-|Quick Capture|-|New Collage — "
               "Side by side|New Collage — Stacked";
        QTest::newRow("window") << "&Window"
                                << "Start Window";
        QTest::newRow("help") << "&Help"
                              << "Tessaly Help|Keyboard Shortcuts|Command Palette…|-|Welcome Guide|What’s New in "
                                 "Tessaly|-|About Tessaly";
    }

    void fillsTheMenuBar()
    {
        QFETCH(QString, menu);
        QMainWindow window;
        CommandActions actions(&window, hooks());
        fillMenuBar(*window.menuBar(), actions);
        QCOMPARE(window.menuBar()->actions().size(), 8);
        QTEST(textsOf(*menuCalled(window.menuBar()->actions(), menu)).join(u'|'), "titles");
    }

    void everyCommandIsInOneMenu()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        fillMenuBar(*window.menuBar(), actions);
        for (const CommandRow &row : commandTable()) {
            const auto places = actions.action(row.id)->associatedObjects().size();
            const bool isAbsent = row.id == CommandId::Share || row.menu == CommandMenu::Tray;
            const bool isSubmenu = row.id == CommandId::OpenRecent || row.id == CommandId::FullScreenOn;
            QVERIFY2(places == (isAbsent || isSubmenu ? 1 : 2), row.title); // the window is one
        }
    }

    void aSubmenuOpensWhileSomethingInItCanBeDone()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        fillMenuBar(*window.menuBar(), actions);
        const QMenu *order = menuCalled(menuCalled(window.menuBar()->actions(), "&Edit")->actions(), "Order");
        QCOMPARE(textsOf(*order), QStringList({ "Bring Forward", "Send Backward", "Bring to Front", "Send to Back" }));
        QVERIFY(!order->menuAction()->isEnabled());
        m_target.known = m_target.possible = QList { CommandId::BringForward };
        actions.refresh();
        QVERIFY(order->menuAction()->isEnabled());
    }

    void fillsOpenRecentWhenItOpens()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        fillMenuBar(*window.menuBar(), actions);
        m_target.known = m_target.possible = QList { CommandId::OpenRecent };
        QMenu *file = menuCalled(window.menuBar()->actions(), "&File");
        Q_EMIT file->aboutToShow();
        QMenu *recent = menuCalled(file->actions(), "Open Recent");
        QVERIFY(recent->menuAction()->isEnabled());
        Q_EMIT recent->aboutToShow();
        QCOMPARE(textsOf(*recent), QStringList({ "a&&b.png", "-", "Clear Menu" }));
        recent->actions().first()->trigger();
        QCOMPARE(m_target.chosen, QStringList("/x/a&b.png"));
        recent->actions().last()->trigger();
        Q_EMIT recent->aboutToShow();
        QCOMPARE(textsOf(*recent), QStringList({ "-", "Clear Menu" }));
        QVERIFY(!recent->actions().last()->isEnabled());
    }

    void displaysAreThoseOfTheTarget()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        fillMenuBar(*window.menuBar(), actions);
        m_target.known = m_target.possible = QList { CommandId::FullScreenOn };
        actions.refresh();
        QMenu *displays = menuCalled(menuCalled(window.menuBar()->actions(), "&Capture")->actions(), "Full Screen on…");
        QVERIFY(displays && displays->menuAction()->isEnabled());
        Q_EMIT displays->aboutToShow();
        QCOMPARE(textsOf(*displays), QStringList("DP-1"));
        displays->actions().first()->trigger();
        QCOMPARE(m_target.chosen, QStringList("17"));
    }

    void contextMenusAskTheirTarget()
    {
        m_target.known = QList { CommandId::Copy, CommandId::Cut };
        m_target.possible = QList { CommandId::Copy };
        QMenu menu;
        QAction *copy = addCommand(menu, CommandId::Copy, m_target);
        QVERIFY(copy->isEnabled() && copy->shortcuts().isEmpty());
        QCOMPARE(copy->text(), "Copy\tCtrl+C");
        QVERIFY(!addCommand(menu, CommandId::Cut, m_target)->isEnabled());
        copy->trigger();
        QCOMPARE(m_target.performed, QList<CommandId>({ CommandId::Copy }));
    }
};

QTEST_MAIN(CommandActionsTest)
#include "CommandActionsTest.moc"
