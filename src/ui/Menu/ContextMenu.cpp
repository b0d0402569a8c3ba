// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/ContextMenu.h"

#include "ui/Style/Icons.h"

#include <QMenu>

namespace tessaly {

QAction *addCommand(QMenu &menu, CommandId command, CommandTarget &target)
{
    const CommandRow &row = tessaly::command(command);
    const QString key = commandKeyText(row);
    QAction *action = menu.addAction(key.isEmpty() ? commandTitle(row) : commandTitle(row) + u'\t' + key);
    if (*row.icon)
        action->setIcon(Icons::icon(QLatin1StringView(row.icon)));
    action->setEnabled(target.knows(command) && target.canPerform(command));
    QObject::connect(action, &QAction::triggered, &menu, [command, &target] { target.perform(command); });
    return action;
}

} // namespace tessaly
