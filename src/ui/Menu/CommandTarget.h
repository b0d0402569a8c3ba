// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/Commands.h"

#include <QList>

namespace tessaly {

/// One row of a submenu that is filled each time it opens.
struct MenuChoice {
    QString title;
    QString value; ///< what choosing the row hands back: a path, a format, a display's id
};

/// Something that commands act on: a canvas, an editor, a window.
class CommandTarget {
public:
    virtual ~CommandTarget();

    /// Whether this target knows the command at all; others pass it on or leave it disabled.
    virtual bool knows(CommandId command) const = 0;
    /// Whether it could be done now. Only asked for what is known.
    virtual bool canPerform(CommandId command) const = 0;
    virtual void perform(CommandId command) = 0;

    /// The rows of a command that is a submenu, and choosing one of them. Of the others there are none.
    virtual QList<MenuChoice> choices(CommandId) const { return {}; }
    virtual void choose(CommandId, const QString &) { }
    /// Whether the list of rows is one that the user may empty, and emptying it.
    virtual bool canClear(CommandId) const { return false; }
    virtual void clear(CommandId) { }
};

} // namespace tessaly
