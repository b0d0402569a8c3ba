// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/SavedStylePresets.h"
#include "core/Annotation/SavedStyles.h"

namespace tessaly {

namespace {

constexpr std::tuple jsonFields {
    json::Field { "arrowHead", &SavedStyle::arrowHead },
    json::Field { "bold", &SavedStyle::bold },
    json::Field { "category", &SavedStyle::category },
    json::Field { "colorHex", &SavedStyle::colorHex },
    json::Field { "curved", &SavedStyle::curved },
    json::Field { "doubleHeaded", &SavedStyle::doubleHeaded },
    json::Field { "filled", &SavedStyle::filled },
    json::Field { "fontName", &SavedStyle::fontName },
    json::Field { "id", &SavedStyle::id },
    json::Field { "italic", &SavedStyle::italic },
    json::Field { "lineWidth", &SavedStyle::lineWidth },
    json::Field { "name", &SavedStyle::name },
    json::Field { "preset", &SavedStyle::preset },
    json::Field { "textSize", &SavedStyle::textSize },
};
static_assert(json::areSorted(jsonFields));

/// A set of categories, a bit each.
template <class... Categories>
constexpr unsigned categories(Categories... members)
{
    return ((1U << static_cast<unsigned>(members)) | ...);
}

template <class T>
struct SharedField {
    unsigned usedBy;
    T SavedStyle::*saved;
    T ToolStyle::*tool;
};
template <class T>
SharedField(unsigned, T SavedStyle::*, T ToolStyle::*) -> SharedField<T>;

using Category = StyleCategory;

/// What a style has in common with the settings of the tools. Fill is missing: it is one flag per shape there.
constexpr std::tuple sharedFields {
    SharedField {
        categories(Category::Arrow, Category::Text, Category::Shape), &SavedStyle::colorHex, &ToolStyle::colorHex },
    SharedField { categories(Category::Arrow, Category::Shape), &SavedStyle::lineWidth, &ToolStyle::lineWidth },
    SharedField { categories(Category::Arrow), &SavedStyle::arrowHead, &ToolStyle::arrowHead },
    SharedField { categories(Category::Arrow), &SavedStyle::doubleHeaded, &ToolStyle::arrowDoubleHeaded },
    SharedField { categories(Category::Arrow), &SavedStyle::curved, &ToolStyle::arrowCurved },
    SharedField { categories(Category::Text), &SavedStyle::textSize, &ToolStyle::textSize },
    SharedField { categories(Category::Text), &SavedStyle::bold, &ToolStyle::textBold },
    SharedField { categories(Category::Text), &SavedStyle::italic, &ToolStyle::textItalic },
    SharedField { categories(Category::Text), &SavedStyle::fontName, &ToolStyle::textFont },
};

void forSharedFields(const auto &visit)
{
    std::apply([&](const auto &...field) { (visit(field), ...); }, sharedFields);
}

/// Where the tools keep the fill of a shape; null for other tools.
bool ToolStyle::*fillOf(Tool tool)
{
    switch (tool) {
    case Tool::Rectangle:
        return &ToolStyle::rectFilled;
    case Tool::Ellipse:
        return &ToolStyle::ellipseFilled;
    default:
        return nullptr;
    }
}

} // namespace

std::optional<StyleCategory> styleCategory(Tool tool)
{
    switch (tool) {
    case Tool::Arrow:
        return StyleCategory::Arrow;
    case Tool::Text:
        return StyleCategory::Text;
    case Tool::Rectangle:
    case Tool::Ellipse:
        return StyleCategory::Shape;
    default:
        return std::nullopt;
    }
}

SavedStyle SavedStyle::capturing(const ToolStyle &style, Tool tool, const QString &name)
{
    SavedStyle saved { .category = styleCategory(tool).value_or(StyleCategory::Arrow), .name = name };
    forSharedFields([&](const auto &field) { saved.*field.saved = style.*field.tool; });
    if (const auto fill = fillOf(tool))
        saved.filled = style.*fill;
    return saved;
}

void SavedStyle::copyTo(ToolStyle &style, Tool tool) const
{
    forSharedFields([&](const auto &field) {
        if (field.usedBy & categories(category))
            style.*field.tool = this->*field.saved;
    });
    const auto fill = fillOf(tool);
    if (fill && category == StyleCategory::Shape)
        style.*fill = filled;
}

QString SavedStyle::displayName() const
{
    if (name && !name->isEmpty())
        return *name;
    return preset ? SavedStylePresets::displayName(*preset) : QString();
}

QJsonObject SavedStyle::toJson() const { return json::write(*this, jsonFields); }

std::optional<SavedStyle> SavedStyle::fromJson(const QJsonObject &object)
{
    SavedStyle style;
    const bool identified = object.contains(QLatin1StringView("id")) && object.contains(QLatin1StringView("category"));
    return identified && !json::readOver(style, object, jsonFields) ? std::optional(style) : std::nullopt;
}

} // namespace tessaly
