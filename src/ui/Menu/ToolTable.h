// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Tool.h"

#include <QKeySequence>
#include <QString>

#include <optional>
#include <span>

namespace tessaly {

/// How a tool is shown and reached.
struct ToolRow {
    Tool tool;
    const char *label; ///< English; translated in the context "Tools"
    char letter; ///< upper case; alone on the canvas, with Ctrl+Alt everywhere
    const char *icon; ///< name in Icons
};

/// In the order of the tool sidebar and of the Tools menu.
std::span<const ToolRow> toolTable();
const ToolRow &toolRow(Tool tool);

/// The label as the user reads it.
QString toolLabel(const ToolRow &row);
/// What selects the tool wherever the focus is.
QKeySequence toolKey(const ToolRow &row);
/// The label with the letter in brackets: "Arrow (A)".
QString toolToolTip(const ToolRow &row);
/// The tool of a letter of either case; empty for a letter without one.
std::optional<Tool> toolOfLetter(QChar letter);

} // namespace tessaly
