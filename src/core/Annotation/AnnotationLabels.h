// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationKinds.h"
#include "core/Imaging/CropAspect.h"

#include <QCoreApplication>
#include <QString>

/// What pickers show for the options of marks.
namespace tessaly {

/// A text of a menu in English. `key` tells apart for translators what is the same in English; a text without a key
/// reads the same in every language.
struct OptionText {
    const char *english;
    const char *key = nullptr;
};

template <class Enum>
struct OptionLabel {
    Enum value;
    OptionText text;
    const char *symbol = ""; ///< name of the icon, where the option has icons
};

/// The labels of an option in the order in which they are offered.
template <class Enum>
inline constexpr std::array<OptionLabel<Enum>, 0> optionLabels {};

template <>
inline constexpr auto optionLabels<ArrowHeadStyle> = std::to_array<OptionLabel<ArrowHeadStyle>>({
    //: An arrow whose stroke tapers to a sharp head
    { ArrowHeadStyle::Tapered, QT_TRANSLATE_NOOP3("Options", "Tapered", "arrowhead.tapered") },
    //: An arrow head that is a solid, filled triangle
    { ArrowHeadStyle::Filled, QT_TRANSLATE_NOOP3("Options", "Filled", "arrowhead.filled") },
    //: An arrow head of two open strokes that form a V
    { ArrowHeadStyle::Open, QT_TRANSLATE_NOOP3("Options", "Open", "arrowhead.open") },
    //: An arrow head that is a triangle with a concave back edge
    { ArrowHeadStyle::Concave, QT_TRANSLATE_NOOP3("Options", "Concave", "arrowhead.concave") },
});

template <>
inline constexpr auto optionLabels<StampKind> = std::to_array<OptionLabel<StampKind>>({
    { StampKind::Check, QT_TRANSLATE_NOOP3("Options", "Check", "Check"), "checkmark" },
    { StampKind::Cross, QT_TRANSLATE_NOOP3("Options", "Cross", "Cross"), "xmark" },
    { StampKind::Exclamation, QT_TRANSLATE_NOOP3("Options", "Exclamation mark", "stamp.exclamation"),
        "exclamationmark" },
    { StampKind::Question, QT_TRANSLATE_NOOP3("Options", "Question mark", "stamp.question"), "questionmark" },
    { StampKind::Star, QT_TRANSLATE_NOOP3("Options", "Star", "Star"), "star.fill" },
    { StampKind::Dot, QT_TRANSLATE_NOOP3("Options", "Dot", "Dot"), "circle.fill" },
    { StampKind::Number, QT_TRANSLATE_NOOP3("Options", "Number", "Number"), "1.circle.fill" },
});

template <>
inline constexpr auto optionLabels<ObscureStyle> = std::to_array<OptionLabel<ObscureStyle>>({
    { ObscureStyle::Pixelate, QT_TRANSLATE_NOOP3("Options", "Pixelate", "Pixelate") },
    { ObscureStyle::Blur, QT_TRANSLATE_NOOP3("Options", "Blur", "Blur") },
    { ObscureStyle::Solid, QT_TRANSLATE_NOOP3("Options", "Solid", "Solid") },
    { ObscureStyle::Stripes, QT_TRANSLATE_NOOP3("Options", "Stripes", "Stripes") },
});

template <>
inline constexpr auto optionLabels<CropAspect> = std::to_array<OptionLabel<CropAspect>>({
    { CropAspect::Free, QT_TRANSLATE_NOOP3("Options", "Free", "Free") },
    { CropAspect::Square, { "1:1" } },
    { CropAspect::R4x3, { "4:3" } },
    { CropAspect::R3x4, { "3:4" } },
    { CropAspect::R16x9, { "16:9" } },
    { CropAspect::R9x16, { "9:16" } },
});

/// The text of a case in the user's language.
template <class Enum>
QString label(Enum value)
{
    for (const auto &row : optionLabels<Enum>) {
        if (row.value == value)
            return row.text.key ? QCoreApplication::translate("Options", row.text.english, row.text.key)
                                : QLatin1StringView(row.text.english);
    }
    return {};
}

} // namespace tessaly
