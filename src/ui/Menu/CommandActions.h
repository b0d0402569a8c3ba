// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/CommandTarget.h"
#include "ui/Menu/ToolTable.h"

#include <QList>
#include <QObject>

#include <functional>
#include <map>
#include <optional>
#include <vector>

class QAction;
class QWidget;

namespace tessaly {

/// A submenu whose rows are found out when it opens.
struct ChoiceMenu {
    std::function<QList<MenuChoice>()> choices = {};
    std::function<void(const QString &value)> choose = {};
    std::function<bool()> canClear = {}; ///< then a separator and "Clear Menu" end the list
    std::function<void()> clear = {};
};

/// What the actions of a window ask. A function that is not given is answered as noted.
struct CommandHooks {
    std::function<CommandTarget *()> target; ///< asked each time; a null pointer disables everything
    std::function<bool(CommandId)> isOn = {}; ///< of the commands that switch something; off without
    std::function<bool(CommandId)> isOffered = {}; ///< whether this desktop has it at all; everything without
    std::function<std::optional<Tool>()> currentTool = {}; ///< empty while no editor is there; never without
    std::function<void(Tool)> chooseTool = {};
    ChoiceMenu exportAs = {};
};

/// The QActions of one window: one for each command and each tool, shared by its menus and tool bars, so that state,
/// title and key are right in all of them at once. The keys of the window's scope work as long as this lives.
class CommandActions : public QObject {
    Q_OBJECT

public:
    /// The actions belong to this object, which belongs to `window`.
    CommandActions(QWidget *window, CommandHooks hooks);
    ~CommandActions() override;

    QAction *action(CommandId command) const;
    QAction *toolAction(Tool tool) const;
    /// The rows of a command that is a submenu: of the target, but for those that the hooks give. Null for the others.
    const ChoiceMenu *choiceMenu(CommandId command) const;
    const CommandHooks &hooks() const { return m_hooks; }

    /// Asks again what can be done, what is on and which tool is active.
    void refresh();

private:
    void addCommand(const CommandRow &row);
    void addTool(const ToolRow &row);
    void perform(CommandId command);
    void addChoices(CommandId command);

    QWidget *m_window;
    CommandHooks m_hooks;
    std::vector<QAction *> m_commands;
    std::vector<QAction *> m_tools;
    std::map<CommandId, ChoiceMenu> m_choices;
};

} // namespace tessaly
