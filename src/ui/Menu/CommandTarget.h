// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/Commands.h"

namespace tessaly {

/// Something that commands act on: a canvas, an editor, a window.
class CommandTarget {
public:
    virtual ~CommandTarget();

    /// Whether this target knows the command at all; others pass it on or leave it disabled.
    virtual bool knows(CommandId command) const = 0;
    /// Whether it could be done now. Only asked for what is known.
    virtual bool canPerform(CommandId command) const = 0;
    virtual void perform(CommandId command) = 0;
};

} // namespace tessaly
