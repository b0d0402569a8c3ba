// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace tessaly {

/// The help as one page of rich text: short sections, then every command with its menu and key, and every tool with its
/// letter, from the same tables as the menus. The links of its first lines lead to its sections.
QString helpPage();

} // namespace tessaly
