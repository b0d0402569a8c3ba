// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/ToolStyle.h"

#include "core/Preferences/Settings.h"

namespace tessaly {

namespace {

using Kind = AnnotationKind;

/// A set of kinds, a bit each.
template <class... Kinds>
constexpr unsigned kinds(Kinds... members)
{
    return ((1U << static_cast<unsigned>(members)) | ...);
}

template <class T>
struct StyleField {
    unsigned belongsTo;
    T ToolStyle::*tool;
    T Annotation::*mark;
};
template <class T>
StyleField(unsigned, T ToolStyle::*, T Annotation::*) -> StyleField<T>;

constexpr std::tuple styleFields {
    StyleField { kinds(Kind::Arrow, Kind::Text, Kind::Rectangle, Kind::Ellipse, Kind::Line, Kind::Highlight,
                     Kind::Stamp, Kind::Pen),
        &ToolStyle::colorHex, &Annotation::colorHex },
    StyleField { kinds(Kind::Arrow, Kind::Rectangle, Kind::Ellipse, Kind::Line, Kind::Pen), &ToolStyle::lineWidth,
        &Annotation::lineWidth },
    StyleField { kinds(Kind::Rectangle), &ToolStyle::rectFilled, &Annotation::filled },
    StyleField { kinds(Kind::Ellipse), &ToolStyle::ellipseFilled, &Annotation::filled },
    StyleField { kinds(Kind::Arrow), &ToolStyle::arrowDoubleHeaded, &Annotation::doubleHeaded },
    StyleField { kinds(Kind::Arrow), &ToolStyle::arrowHead, &Annotation::arrowHead },
    StyleField { kinds(Kind::Arrow), &ToolStyle::arrowCurved, &Annotation::curved },
    StyleField { kinds(Kind::Text), &ToolStyle::textSize, &Annotation::fontSize },
    StyleField { kinds(Kind::Text), &ToolStyle::textBold, &Annotation::bold },
    StyleField { kinds(Kind::Text), &ToolStyle::textItalic, &Annotation::italic },
    StyleField { kinds(Kind::Text), &ToolStyle::textFont, &Annotation::fontName },
    StyleField { kinds(Kind::Stamp), &ToolStyle::stampKind, &Annotation::stamp },
    StyleField { kinds(Kind::Spotlight), &ToolStyle::spotEllipse, &Annotation::spotEllipse },
    StyleField { kinds(Kind::Spotlight), &ToolStyle::spotDim, &Annotation::spotDim },
    StyleField { kinds(Kind::Sticker), &ToolStyle::stickerEmoji, &Annotation::text },
    StyleField { kinds(Kind::Pixelate), &ToolStyle::obscureStyle, &Annotation::obscure },
    StyleField { kinds(Kind::Pixelate), &ToolStyle::obscureStrength, &Annotation::obscureStrength },
    StyleField { kinds(Kind::Highlight), &ToolStyle::highlightOpacity, &Annotation::highlightOpacity },
    StyleField { kinds(Kind::Magnifier), &ToolStyle::magnifierZoom, &Annotation::magnification },
    StyleField { kinds(Kind::Magnifier), &ToolStyle::magnifierRound, &Annotation::magnifierRound },
};

/// Calls `visit` with each field of the table that belongs to the kind.
void forFieldsOf(Kind kind, const auto &visit)
{
    const auto visitOne = [&](const auto &field) {
        if (field.belongsTo & kinds(kind))
            visit(field);
    };
    std::apply([&](const auto &...field) { (visitOne(field), ...); }, styleFields);
}

template <class Enum>
Enum storedCase(const Settings &settings, const SettingKey<const char *> &key, Enum fallback)
{
    return enumFromRaw<Enum>(settings.value(key)).value_or(fallback);
}

} // namespace

ToolStyle ToolStyle::fromSettings(const Settings &settings)
{
    ToolStyle style;
    style.colorHex = settings.value(SettingKeys::defaultColor);
    style.lineWidth = settings.value(SettingKeys::defaultLineWidth);
    style.arrowHead = storedCase(settings, SettingKeys::defaultArrowHead, style.arrowHead);
    style.textSize = settings.value(SettingKeys::defaultTextSize);
    style.obscureStyle = storedCase(settings, SettingKeys::defaultObscureStyle, style.obscureStyle);
    style.obscureStrength = settings.value(SettingKeys::defaultObscureStrength);
    style.highlightOpacity = settings.value(SettingKeys::defaultHighlightOpacity);
    style.spotDim = settings.value(SettingKeys::defaultSpotlightDim);
    style.spotEllipse = settings.value(SettingKeys::defaultSpotlightEllipse);
    style.stampKind = storedCase(settings, SettingKeys::defaultStampKind, style.stampKind);
    return style;
}

void ToolStyle::adopt(const Annotation &mark)
{
    forFieldsOf(mark.kind, [&](const auto &field) { this->*field.tool = mark.*field.mark; });
}

void ToolStyle::applyTo(Annotation &mark) const
{
    forFieldsOf(mark.kind, [&](const auto &field) { mark.*field.mark = this->*field.tool; });
}

} // namespace tessaly
