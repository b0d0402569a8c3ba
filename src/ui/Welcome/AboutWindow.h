// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Welcome/SmallWindow.h"

namespace tessaly {

/// Name, version and licence.
class AboutWindow : public SmallWindow {
    Q_OBJECT

public:
    AboutWindow();
};

} // namespace tessaly
