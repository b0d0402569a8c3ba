// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationKinds.h"
#include "core/Imaging/CropAspect.h"

#include <QCoreApplication>
#include <QString>

/// What pickers show for the options of marks.
namespace tessaly {

/// One case of an option with its text in menus. `key` tells translators apart texts that are the same in English; a
/// case without a key reads the same in every language.
template <class Enum>
struct OptionLabel {
    Enum value;
    const char *text;
    const char *key;
    const char *symbol = ""; ///< name of the icon, where the option has icons
};

/// The labels of an option in the order in which they are offered.
template <class Enum>
inline constexpr std::array<OptionLabel<Enum>, 0> optionLabels {};

template <>
inline constexpr auto optionLabels<ArrowHeadStyle> = std::to_array<OptionLabel<ArrowHeadStyle>>({
    //: An arrow whose stroke tapers to a sharp head
    { ArrowHeadStyle::Tapered, "Tapered", "arrowhead.tapered" },
    //: An arrow head that is a solid, filled triangle
    { ArrowHeadStyle::Filled, "Filled", "arrowhead.filled" },
    //: An arrow head of two open strokes that form a V
    { ArrowHeadStyle::Open, "Open", "arrowhead.open" },
    //: An arrow head that is a triangle with a concave back edge
    { ArrowHeadStyle::Concave, "Concave", "arrowhead.concave" },
});

template <>
inline constexpr auto optionLabels<StampKind> = std::to_array<OptionLabel<StampKind>>({
    { StampKind::Check, "Check", "Check", "checkmark" },
    { StampKind::Cross, "Cross", "Cross", "xmark" },
    { StampKind::Exclamation, "Exclamation mark", "stamp.exclamation", "exclamationmark" },
    { StampKind::Question, "Question mark", "stamp.question", "questionmark" },
    { StampKind::Star, "Star", "Star", "star.fill" },
    { StampKind::Dot, "Dot", "Dot", "circle.fill" },
    { StampKind::Number, "Number", "Number", "1.circle.fill" },
});

template <>
inline constexpr auto optionLabels<ObscureStyle> = std::to_array<OptionLabel<ObscureStyle>>({
    { ObscureStyle::Pixelate, "Pixelate", "Pixelate" },
    { ObscureStyle::Blur, "Blur", "Blur" },
    { ObscureStyle::Solid, "Solid", "Solid" },
    { ObscureStyle::Stripes, "Stripes", "Stripes" },
});

template <>
inline constexpr auto optionLabels<CropAspect> = std::to_array<OptionLabel<CropAspect>>({
    { CropAspect::Free, "Free", "Free" },
    { CropAspect::Square, "1:1", nullptr },
    { CropAspect::R4x3, "4:3", nullptr },
    { CropAspect::R3x4, "3:4", nullptr },
    { CropAspect::R16x9, "16:9", nullptr },
    { CropAspect::R9x16, "9:16", nullptr },
});

/// The text of a case in the user's language.
template <class Enum>
QString label(Enum value)
{
    for (const auto &row : optionLabels<Enum>) {
        if (row.value == value)
            return row.key ? QCoreApplication::translate("Options", row.text, row.key) : QLatin1StringView(row.text);
    }
    return {};
}

} // namespace tessaly
