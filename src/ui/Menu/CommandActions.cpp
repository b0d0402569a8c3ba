// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/CommandActions.h"

#include "ui/Style/Icons.h"

#include <QAction>
#include <QActionGroup>
#include <QWidget>

namespace tessaly {

namespace {

void setTitle(QAction &action, const CommandRow &row, bool on)
{
    const QString tip = commandToolTip(row, on);
    action.setToolTip(tip);
    action.setStatusTip(tip);
    action.setIconText(commandTitle(row, on).remove(u'…'));
    // A key that the canvas listens for is shown as one, but must not be taken from whatever else has the focus.
    const bool shownOnly = row.scope == KeyScope::Canvas;
    action.setText(shownOnly ? commandTitle(row, on) + u'\t' + commandKeyText(row) : commandTitle(row, on));
}

} // namespace

CommandActions::CommandActions(QWidget *window, CommandHooks hooks) :
    QObject(window),
    m_window(window),
    m_hooks(std::move(hooks))
{
    for (const CommandId command : { CommandId::OpenRecent, CommandId::FullScreenOn, CommandId::CaptureTimer })
        addChoices(command);
    if (m_hooks.exportAs.choices)
        m_choices[CommandId::ExportAs] = m_hooks.exportAs;
    for (const CommandRow &row : commandTable())
        addCommand(row);
    for (const ToolRow &row : toolTable())
        addTool(row);
    auto *tools = new QActionGroup(this);
    tools->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (QAction *tool : m_tools)
        tools->addAction(tool);
    refresh();
}

CommandActions::~CommandActions() = default;

void CommandActions::addChoices(CommandId command)
{
    ChoiceMenu &menu = m_choices[command];
    menu.choices = [this, command] {
        const CommandTarget *target = m_hooks.target();
        return target ? target->choices(command) : QList<MenuChoice>();
    };
    menu.choose = [this, command](const QString &value) {
        if (CommandTarget *target = m_hooks.target())
            target->choose(command, value);
    };
    menu.canClear = [this, command] {
        const CommandTarget *target = m_hooks.target();
        return target && target->canClear(command);
    };
    menu.clear = [this, command] {
        if (CommandTarget *target = m_hooks.target())
            target->clear(command);
    };
}

const ChoiceMenu *CommandActions::choiceMenu(CommandId command) const
{
    const auto found = m_choices.find(command);
    return found == m_choices.end() ? nullptr : &found->second;
}

void CommandActions::addCommand(const CommandRow &row)
{
    auto *action = new QAction(this);
    action->setObjectName(QLatin1StringView(row.title));
    if (*row.icon)
        action->setIcon(Icons::icon(QLatin1StringView(row.icon)));
    if (row.scope == KeyScope::Window)
        action->setShortcuts(commandKeys(row));
    action->setIconVisibleInMenu(false);
    action->setMenuRole(QAction::NoRole);
    setTitle(*action, row, false);
    connect(action, &QAction::triggered, this, [this, id = row.id] { perform(id); });
    m_commands.push_back(action);
    m_window->addAction(action);
}

void CommandActions::addTool(const ToolRow &row)
{
    auto *action = new QAction(Icons::icon(QLatin1StringView(row.icon)), toolLabel(row), this);
    action->setObjectName(rawValue(row.tool));
    action->setShortcut(toolKey(row));
    action->setToolTip(toolToolTip(row));
    action->setStatusTip(toolToolTip(row));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, tool = row.tool] {
        if (m_hooks.chooseTool)
            m_hooks.chooseTool(tool);
        refresh();
    });
    m_tools.push_back(action);
    m_window->addAction(action);
}

QAction *CommandActions::action(CommandId command) const { return m_commands.at(static_cast<std::size_t>(command)); }
QAction *CommandActions::toolAction(Tool tool) const { return m_tools.at(static_cast<std::size_t>(tool)); }

void CommandActions::perform(CommandId command)
{
    CommandTarget *target = m_hooks.target();
    if (target && target->knows(command) && target->canPerform(command))
        target->perform(command);
    refresh();
}

void CommandActions::refresh()
{
    const CommandTarget *target = m_hooks.target();
    for (const CommandRow &row : commandTable()) {
        QAction *each = action(row.id);
        each->setEnabled(target && target->knows(row.id) && target->canPerform(row.id));
        each->setVisible(!m_hooks.isOffered || m_hooks.isOffered(row.id));
        if (*row.titleWhenOn)
            setTitle(*each, row, m_hooks.isOn && m_hooks.isOn(row.id));
    }
    const std::optional<Tool> current = m_hooks.currentTool ? m_hooks.currentTool() : std::nullopt;
    for (const ToolRow &row : toolTable()) {
        toolAction(row.tool)->setEnabled(current.has_value());
        toolAction(row.tool)->setChecked(current == row.tool);
    }
}

} // namespace tessaly
