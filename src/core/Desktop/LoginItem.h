// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

namespace tessaly {

/// Whether the desktop starts Tessaly when the user logs in.
class LoginItem {
public:
    virtual ~LoginItem();

    virtual bool isOn() const = 0;
    virtual Outcome setOn(bool on) = 0;
};

} // namespace tessaly
