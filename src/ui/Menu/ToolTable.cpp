// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/ToolTable.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace tessaly {

namespace {

constexpr auto rows = std::to_array<ToolRow>({
    { Tool::Select, QT_TRANSLATE_NOOP("Tools", "Select"), 'V', "select" },
    { Tool::Arrow, QT_TRANSLATE_NOOP("Tools", "Arrow"), 'A', "arrow" },
    { Tool::Text, QT_TRANSLATE_NOOP("Tools", "Text"), 'T', "text" },
    { Tool::Rectangle, QT_TRANSLATE_NOOP("Tools", "Rectangle"), 'R', "rectangle" },
    { Tool::Ellipse, QT_TRANSLATE_NOOP("Tools", "Ellipse"), 'O', "ellipse" },
    { Tool::Line, QT_TRANSLATE_NOOP("Tools", "Line"), 'L', "line" },
    { Tool::Highlight, QT_TRANSLATE_NOOP("Tools", "Highlight"), 'J', "highlight" },
    { Tool::Pixelate, QT_TRANSLATE_NOOP("Tools", "Pixelate"), 'B', "pixelate" },
    { Tool::Stamp, QT_TRANSLATE_NOOP("Tools", "Stamp"), 'S', "stamp" },
    { Tool::Pen, QT_TRANSLATE_NOOP("Tools", "Pen"), 'P', "pen" },
    { Tool::Spotlight, QT_TRANSLATE_NOOP("Tools", "Spotlight"), 'F', "spotlight" },
    { Tool::Sticker, QT_TRANSLATE_NOOP("Tools", "Sticker"), 'E', "sticker" },
    { Tool::ImageOverlay, QT_TRANSLATE_NOOP("Tools", "Image"), 'I', "image" },
    { Tool::Crop, QT_TRANSLATE_NOOP("Tools", "Crop"), 'K', "crop" },
    { Tool::Magnifier, QT_TRANSLATE_NOOP("Tools", "Magnifier"), 'G', "magnifier" },
    { Tool::Frame, QT_TRANSLATE_NOOP("Tools", "Frame"), 'Y', "frame" },
});

consteval bool inOrder()
{
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (rows[index].tool != static_cast<Tool>(index))
            return false;
    }
    return rows.size() == enumNames<Tool>.size();
}
static_assert(inOrder(), "toolRow() finds a row by its place");

} // namespace

std::span<const ToolRow> toolTable() { return rows; }
const ToolRow &toolRow(Tool tool) { return rows.at(static_cast<std::size_t>(tool)); }

QString toolLabel(const ToolRow &row) { return QCoreApplication::translate("Tools", row.label); }

QKeySequence toolKey(const ToolRow &row)
{
    return QKeySequence(QKeyCombination(Qt::ControlModifier | Qt::AltModifier, static_cast<Qt::Key>(row.letter)));
}

QString toolToolTip(const ToolRow &row)
{
    return QStringLiteral("%1 (%2)").arg(toolLabel(row), QChar::fromLatin1(row.letter));
}

std::optional<Tool> toolOfLetter(QChar letter)
{
    const auto row
        = std::ranges::find(rows, letter.toUpper(), [](const ToolRow &each) { return QChar::fromLatin1(each.letter); });
    return row == rows.end() ? std::nullopt : std::optional(row->tool);
}

} // namespace tessaly
