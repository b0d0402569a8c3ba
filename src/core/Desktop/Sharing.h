// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

namespace tessaly {

/// The desktop's way to hand a file to another program that the user picks.
class Sharing {
public:
    virtual ~Sharing();

    /// Whether this desktop has such a way; commands that need it are left out of menus otherwise.
    virtual bool isAvailable() const = 0;

    /// Lets the user pick a program for the file, which must stay readable while it is open there.
    virtual Outcome share(const QString &path) = 0;
};

} // namespace tessaly
