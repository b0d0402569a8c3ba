// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/SavedStylePresets.h"

#include "core/Annotation/AnnotationLabels.h"

namespace tessaly::SavedStylePresets {

namespace {

struct Preset {
    const char *key;
    OptionText name;
    StyleCategory category;
    const char *colorHex;
    double lineWidth = 4;
    ArrowHeadStyle arrowHead = ArrowHeadStyle::Tapered;
    bool curved = false;
    double textSize = 18;
    bool bold = false;
};

constexpr std::array<Preset, 8> presets { {
    { .key = "classic",
        .name = QT_TRANSLATE_NOOP3("Options", "Classic", "style.preset.classic"),
        .category = StyleCategory::Arrow,
        .colorHex = "#FF3366",
        .lineWidth = 14 },
    { .key = "thinBlue",
        .name = QT_TRANSLATE_NOOP3("Options", "Thin Blue", "style.preset.thinBlue"),
        .category = StyleCategory::Arrow,
        .colorHex = "#2E7DF6",
        .arrowHead = ArrowHeadStyle::Open },
    { .key = "curvedOrange",
        .name = QT_TRANSLATE_NOOP3("Options", "Curved Orange", "style.preset.curvedOrange"),
        .category = StyleCategory::Arrow,
        .colorHex = "#FF9500",
        .lineWidth = 8,
        .arrowHead = ArrowHeadStyle::Filled,
        .curved = true },
    { .key = "title",
        .name = QT_TRANSLATE_NOOP3("Options", "Title", "style.preset.title"),
        .category = StyleCategory::Text,
        .colorHex = "#FF3366",
        .textSize = 36,
        .bold = true },
    { .key = "note",
        .name = QT_TRANSLATE_NOOP3("Options", "Note", "style.preset.note"),
        .category = StyleCategory::Text,
        .colorHex = "#1D1D1F" },
    { .key = "onDark",
        .name = QT_TRANSLATE_NOOP3("Options", "On Dark Background", "style.preset.onDark"),
        .category = StyleCategory::Text,
        .colorHex = "#FFFFFF",
        .textSize = 24,
        .bold = true },
    { .key = "pinkFrame",
        .name = QT_TRANSLATE_NOOP3("Options", "Pink Frame", "style.preset.pinkFrame"),
        .category = StyleCategory::Shape,
        .colorHex = "#FF3366",
        .lineWidth = 6 },
    { .key = "thinBlueFrame",
        .name = QT_TRANSLATE_NOOP3("Options", "Thin Blue Frame", "style.preset.thinBlueFrame"),
        .category = StyleCategory::Shape,
        .colorHex = "#2E7DF6",
        .lineWidth = 2 },
} };

} // namespace

QList<SavedStyle> make()
{
    QList<SavedStyle> styles;
    for (const Preset &preset : presets) {
        styles += SavedStyle { .category = preset.category,
            .preset = QLatin1StringView(preset.key),
            .colorHex = QLatin1StringView(preset.colorHex),
            .lineWidth = preset.lineWidth,
            .arrowHead = preset.arrowHead,
            .curved = preset.curved,
            .textSize = preset.textSize,
            .bold = preset.bold };
    }
    return styles;
}

QString displayName(const QString &preset)
{
    const auto found
        = std::ranges::find_if(presets, [&](const Preset &row) { return preset == QLatin1StringView(row.key); });
    return found == presets.end() ? QString()
                                  : QCoreApplication::translate("Options", found->name.english, found->name.key);
}

} // namespace tessaly::SavedStylePresets
