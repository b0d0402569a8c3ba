// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/CommandActions.h"
#include "ui/Menu/ContextMenu.h"
#include "ui/Menu/MenuBar.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

using namespace tessaly;

namespace {

/// Can do what the test lets it, and remembers what it was told.
class RecordingTarget : public CommandTarget {
public:
    QList<CommandId> known;
    QList<CommandId> possible;
    QList<CommandId> performed;

    bool knows(CommandId command) const override { return known.contains(command); }
    bool canPerform(CommandId command) const override { return possible.contains(command); }
    void perform(CommandId command) override { performed += command; }
    QList<MenuChoice> choices(CommandId command) const override
    {
        return command == CommandId::FullScreenOn ? QList<MenuChoice> { { "DP-1", "17" } } : QList<MenuChoice>();
    }
    void choose(CommandId, const QString &value) override { chosen += value; }
    QStringList chosen;
};

} // namespace

class CommandActionsTest : public QObject {
    Q_OBJECT

    RecordingTarget m_target;
    CommandTarget *m_current = &m_target;
    bool m_optionsBarIsOn = true;
    std::optional<Tool> m_tool = Tool::Arrow;
    QList<MenuChoice> m_recents;
    QStringList m_log;

    CommandHooks hooks()
    {
        return {
            .target = [this] { return m_current; },
            .isOn = [this](CommandId id) { return id == CommandId::ToggleOptionsBar && m_optionsBarIsOn; },
            .isOffered = [](CommandId id) { return id != CommandId::Share; },
            .currentTool = [this] { return m_tool; },
            .chooseTool = [this](Tool tool) { m_tool = tool; },
            .openRecent = { .choices = [this] { return m_recents; },
                .choose = [this](const QString &path) { m_log += path; },
                .clear = [this] { m_recents.clear(); } },
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
        m_current = &m_target;
        m_optionsBarIsOn = true;
        m_tool = Tool::Arrow;
        m_recents = { { "a&b.png", "/x/a&b.png" } };
        m_log.clear();
    }

    void followsWhatCanBeDone()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        m_target.known = { CommandId::Undo, CommandId::Redo };
        m_target.possible = { CommandId::Undo, CommandId::Save }; // Save is not its own
        actions.refresh();
        QVERIFY(actions.action(CommandId::Undo)->isEnabled());
        QVERIFY(!actions.action(CommandId::Redo)->isEnabled());
        QVERIFY(!actions.action(CommandId::Save)->isEnabled());
        QVERIFY(!actions.action(CommandId::Share)->isVisible());

        m_target.possible.clear(); // what was possible when the key was pressed may be so no more
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

    void fillsTheMenuBar()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        fillMenuBar(*window.menuBar(), actions);
        const auto bar = window.menuBar()->actions();
        QCOMPARE(textsOf(*menuCalled(bar, "&File")),
            QStringList({ "New Blank Canvas", "New from Clipboard", "Open…", "Open Recent", "New Tab", "Close Tab", "-",
                "Save…", "Save as Tessaly Document…", "Export As…", "-", "Quit Tessaly" }));
        QCOMPARE(textsOf(*menuCalled(menuCalled(bar, "&Edit")->actions(), "Order")),
            QStringList({ "Bring Forward", "Send Backward", "Bring to Front", "Send to Back" }));
        const QAction *order = menuCalled(menuCalled(bar, "&Edit")->actions(), "Order")->menuAction();
        QVERIFY(!order->isEnabled());
        m_target.known = m_target.possible = { CommandId::BringForward };
        actions.refresh();
        QVERIFY(order->isEnabled());
        QCOMPARE(menuCalled(bar, "&Tools")->actions().size(), 16);
        for (const CommandRow &row : commandTable()) {
            const auto places = actions.action(row.id)->associatedObjects().size();
            const int expected = row.id == CommandId::Share ? 1 : 2; // the window and, of what is offered, one menu
            const bool isSubmenu = row.id == CommandId::OpenRecent || row.id == CommandId::FullScreenOn;
            QVERIFY2(places == expected || isSubmenu, row.title);
        }
    }

    void fillsOpenRecentWhenItOpens()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        fillMenuBar(*window.menuBar(), actions);
        m_target.known = m_target.possible = { CommandId::OpenRecent };
        QMenu *file = menuCalled(window.menuBar()->actions(), "&File");
        Q_EMIT file->aboutToShow();
        QMenu *recent = menuCalled(file->actions(), "Open Recent");
        QVERIFY(recent->menuAction()->isEnabled());
        Q_EMIT recent->aboutToShow();
        QCOMPARE(textsOf(*recent), QStringList({ "a&&b.png", "-", "Clear Menu" }));
        recent->actions().first()->trigger();
        QCOMPARE(m_log, QStringList("/x/a&b.png"));
        recent->actions().last()->trigger();
        Q_EMIT recent->aboutToShow();
        QVERIFY(m_recents.isEmpty() && !recent->actions().last()->isEnabled());
    }

    void displaysAreThoseOfTheTarget()
    {
        QMainWindow window;
        CommandActions actions(&window, hooks());
        fillMenuBar(*window.menuBar(), actions);
        m_target.known = m_target.possible = { CommandId::FullScreenOn };
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
        m_target.known = { CommandId::Copy, CommandId::Cut };
        m_target.possible = { CommandId::Copy };
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
