// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Welcome/SmallWindow.h"

namespace tessaly {

/// What this version brings.
class WhatsNewSheet : public SmallWindow {
    Q_OBJECT

public:
    WhatsNewSheet();
};

} // namespace tessaly
