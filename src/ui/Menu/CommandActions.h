// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/CommandTarget.h"
#include "ui/Menu/ToolTable.h"

#include <QList>
#include <QObject>

#include <functional>
#include <optional>
#include <vector>

class QAction;
class QWidget;

namespace tessaly {

struct ChoiceMenu {
    std::function<QList<MenuChoice>()> choices = {};
    std::function<void(const QString &value)> choose = {};
    std::function<void()> clear = {}; ///< with it, a separator and "Clear Menu" end the list
};

/// What the actions of a window ask. A function that is not given is answered as noted.
struct CommandHooks {
    std::function<CommandTarget *()> target; ///< asked each time; a null pointer disables everything
    std::function<bool(CommandId)> isOn = {}; ///< of the commands that switch something; off without
    std::function<bool(CommandId)> isOffered = {}; ///< whether this desktop has it at all; everything without
    std::function<std::optional<Tool>()> currentTool = {}; ///< empty while no editor is there; never without
    std::function<void(Tool)> chooseTool = {};
    ChoiceMenu openRecent = {};
    ChoiceMenu exportAs = {};
    ChoiceMenu fullScreenOn = {}; ///< of the target, without
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
    const CommandHooks &hooks() const { return m_hooks; }

    /// Asks again what can be done, what is on and which tool is active.
    void refresh();

private:
    void addCommand(const CommandRow &row);
    void addTool(const ToolRow &row);
    void perform(CommandId command);
    ChoiceMenu choicesOfTarget(CommandId command) const;

    QWidget *m_window;
    CommandHooks m_hooks;
    std::vector<QAction *> m_commands;
    std::vector<QAction *> m_tools;
};

} // namespace tessaly
