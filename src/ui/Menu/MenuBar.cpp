// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/MenuBar.h"

#include "ui/Menu/CommandActions.h"
#include "ui/Menu/RecentPictures.h"

#include <QCoreApplication>
#include <QHash>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace tessaly {

namespace {

struct MenuTitle {
    CommandMenu menu;
    const char *title;
};

constexpr MenuTitle titles[] = {
    { CommandMenu::File, QT_TRANSLATE_NOOP("Menus", "&File") },
    { CommandMenu::Edit, QT_TRANSLATE_NOOP("Menus", "&Edit") },
    { CommandMenu::View, QT_TRANSLATE_NOOP("Menus", "&View") },
    { CommandMenu::Tools, QT_TRANSLATE_NOOP("Menus", "&Tools") },
    { CommandMenu::Image, QT_TRANSLATE_NOOP("Menus", "&Image") },
    { CommandMenu::Capture, QT_TRANSLATE_NOOP("Menus", "&Capture") },
    { CommandMenu::Window, QT_TRANSLATE_NOOP("Menus", "&Window") },
    { CommandMenu::Help, QT_TRANSLATE_NOOP("Menus", "&Help") },
};

void fillChoices(QMenu &menu, const ChoiceMenu &source)
{
    menu.clear();
    const QList<MenuChoice> choices = source.choices();
    for (const MenuChoice &choice : choices) {
        // A file's own "&" is no mnemonic.
        QAction *action = menu.addAction(QString(choice.title).replace(u'&', QStringLiteral("&&")));
        action->setToolTip(choice.value);
        action->setData(choice.value);
        QObject::connect(action, &QAction::triggered, &menu, [&source, value = choice.value] { source.choose(value); });
    }
    if (!source.canClear || !source.canClear())
        return;
    menu.addSeparator();
    QAction *clear = menu.addAction(QCoreApplication::translate("Commands", "Clear Menu"), source.clear);
    clear->setEnabled(!choices.isEmpty());
}

void addChoices(QMenu &menu, CommandActions &actions, const CommandRow &row, const ChoiceMenu &source)
{
    auto *choices = new QMenu(commandTitle(row), &menu);
    choices->setObjectName(QLatin1StringView(row.title));
    choices->setToolTipsVisible(row.id == CommandId::OpenRecent);
    QObject::connect(choices, &QMenu::aboutToShow, choices, [choices, &source] { fillChoices(*choices, source); });
    if (row.id == CommandId::OpenRecent)
        new RecentPictures(*choices);
    // The action of the command says when its choices may be made.
    QAction *command = actions.action(row.id);
    const auto follow = [choices, command] {
        choices->menuAction()->setEnabled(command->isEnabled());
        choices->menuAction()->setVisible(command->isVisible());
    };
    QObject::connect(command, &QAction::changed, choices, follow);
    follow();
    menu.addMenu(choices);
}

QMenu &submenu(QMenu &menu, const char *title)
{
    const QLatin1StringView name(title);
    if (auto *existing = menu.findChild<QMenu *>(name, Qt::FindDirectChildrenOnly))
        return *existing;
    QMenu *created = menu.addMenu(QCoreApplication::translate("Commands", title));
    created->setObjectName(name);
    return *created;
}

/// The submenu opens while something in it can be done.
void addToSubmenu(QMenu &menu, QAction &action)
{
    menu.addAction(&action);
    const auto follow
        = [&menu] { menu.menuAction()->setEnabled(std::ranges::any_of(menu.actions(), &QAction::isEnabled)); };
    QObject::connect(&action, &QAction::enabledChanged, &menu, follow);
    follow();
}

void addCommands(QMenu &menu, CommandActions &actions, CommandMenu which)
{
    int group = menu.isEmpty() ? 0 : -1;
    const auto &isOffered = actions.hooks().isOffered;
    for (const CommandRow &row : commandTable()) {
        if (row.menu != which || (isOffered && !isOffered(row.id)))
            continue;
        if (row.group != group && !menu.isEmpty())
            menu.addSeparator();
        group = row.group;
        if (const ChoiceMenu *choices = actions.choiceMenu(row.id))
            addChoices(menu, actions, row, *choices);
        else if (*row.submenu)
            addToSubmenu(submenu(menu, row.submenu), *actions.action(row.id));
        else
            menu.addAction(actions.action(row.id));
    }
}

} // namespace

QString menuTitle(CommandMenu menu)
{
    if (menu == CommandMenu::Tray)
        return QCoreApplication::translate("Menus", "Tray");
    const CommandMenu shown = menu == CommandMenu::Application ? CommandMenu::File : menu;
    const auto row = std::ranges::find(titles, shown, &MenuTitle::menu);
    return QCoreApplication::translate("Menus", row->title).remove(u'&');
}

void fillMenuBar(QMenuBar &bar, CommandActions &actions)
{
    for (const auto &[which, title] : titles) {
        auto menu = std::make_unique<QMenu>(QCoreApplication::translate("Menus", title), &bar);
        addCommands(*menu, actions, which);
        if (which == CommandMenu::File)
            addCommands(*menu, actions, CommandMenu::Application);
        if (which == CommandMenu::Tools && actions.hooks().currentTool) {
            for (const ToolRow &row : toolTable())
                menu->addAction(actions.toolAction(row.tool));
        }
        if (menu->isEmpty())
            continue;
        QObject::connect(menu.get(), &QMenu::aboutToShow, &actions, &CommandActions::refresh);
        bar.addMenu(menu.release());
    }
}

} // namespace tessaly
