// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Links.h"

namespace tessaly {

/// Links by the desktop's own choice of programs.
class DesktopLinks final : public Links {
public:
    bool open(const QUrl &url) override;
    bool reveal(const QString &path) override;
};

} // namespace tessaly
