// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/ProgramKeys.h"

#include "ui/Menu/CommandTarget.h"

#include <QShortcut>

namespace tessaly {

static constexpr CommandId programCommands[] = { CommandId::NewBlankCanvas, CommandId::NewFromClipboard,
    CommandId::Open, CommandId::Settings, CommandId::Quit };

void addProgramKeys(QWidget &window, CommandTarget &program)
{
    for (const CommandId id : programCommands) {
        if (!program.knows(id))
            continue;
        auto *shortcut = new QShortcut(&window);
        shortcut->setKeys(commandKeys(command(id)));
        QObject::connect(shortcut, &QShortcut::activated, &window, [&program, id] {
            if (program.canPerform(id))
                program.perform(id);
        });
    }
}

} // namespace tessaly
