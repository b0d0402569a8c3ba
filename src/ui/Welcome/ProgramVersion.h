// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tessaly {

/// "0.1.0"
QString programVersion();

} // namespace tessaly
