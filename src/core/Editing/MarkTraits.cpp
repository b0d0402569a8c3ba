// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkTraits.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

using Kind = AnnotationKind;

constexpr WheelField strokeWidth { &Annotation::lineWidth, 1, 1, 200 };
constexpr bool placed = true, proportional = true;

constexpr std::array traits {
    MarkTraits { Kind::Arrow, Tool::Arrow, MarkForm::Line, strokeWidth },
    MarkTraits { Kind::Text, Tool::Text, MarkForm::Text, { &Annotation::fontSize, 1, 6, 400 }, placed },
    MarkTraits { Kind::Rectangle, Tool::Rectangle, MarkForm::Box, strokeWidth },
    MarkTraits { Kind::Ellipse, Tool::Ellipse, MarkForm::Box, strokeWidth },
    MarkTraits { Kind::Line, Tool::Line, MarkForm::Line, strokeWidth },
    MarkTraits { Kind::Highlight, Tool::Highlight, MarkForm::Box, { &Annotation::highlightOpacity, 0.05, 0.05, 1 } },
    MarkTraits { Kind::Pixelate, Tool::Pixelate, MarkForm::Box, { &Annotation::obscureStrength, 0.1, 0.1, 5 } },
    MarkTraits { Kind::Stamp, Tool::Stamp, MarkForm::Box, {}, placed, proportional, 40 },
    MarkTraits { Kind::Pen, Tool::Pen, MarkForm::Path, strokeWidth, placed },
    MarkTraits { Kind::Spotlight, Tool::Spotlight, MarkForm::Box, { &Annotation::spotDim, 0.05, 0, 1 } },
    MarkTraits { Kind::Sticker, Tool::Sticker, MarkForm::Box, {}, placed, proportional, 64 },
    MarkTraits { Kind::ImageOverlay, Tool::ImageOverlay, MarkForm::Box, {}, placed, proportional },
    MarkTraits { Kind::Magnifier, Tool::Magnifier, MarkForm::Box, { &Annotation::magnification, 0.25, 1, 10 } },
};

struct KindName {
    Kind kind;
    const char *english;
};

constexpr std::array kindNames {
    KindName { Kind::Arrow, QT_TRANSLATE_NOOP("MarkNames", "Arrow") },
    KindName { Kind::Text, QT_TRANSLATE_NOOP("MarkNames", "Text") },
    KindName { Kind::Rectangle, QT_TRANSLATE_NOOP("MarkNames", "Rectangle") },
    KindName { Kind::Ellipse, QT_TRANSLATE_NOOP("MarkNames", "Ellipse") },
    KindName { Kind::Line, QT_TRANSLATE_NOOP("MarkNames", "Line") },
    KindName { Kind::Highlight, QT_TRANSLATE_NOOP("MarkNames", "Highlight") },
    KindName { Kind::Pixelate, QT_TRANSLATE_NOOP("MarkNames", "Obscured area") },
    KindName { Kind::Stamp, QT_TRANSLATE_NOOP("MarkNames", "Stamp") },
    KindName { Kind::Pen, QT_TRANSLATE_NOOP("MarkNames", "Pen stroke") },
    KindName { Kind::Spotlight, QT_TRANSLATE_NOOP("MarkNames", "Spotlight") },
    KindName { Kind::Sticker, QT_TRANSLATE_NOOP("MarkNames", "Sticker") },
    KindName { Kind::ImageOverlay, QT_TRANSLATE_NOOP("MarkNames", "Image") },
    KindName { Kind::Magnifier, QT_TRANSLATE_NOOP("MarkNames", "Loupe") },
};

/// A mark without a field of its own for the wheel grows or shrinks about its centre.
void grow(Annotation &mark, int notches)
{
    constexpr double share = 1.1;
    const QPointF centre = (mark.p1 + mark.p2) / 2;
    const QRectF box = mark.rect();
    const double least = 1 / std::max(std::min(box.width(), box.height()), 1.0); // not below 1 point
    const double factor = std::max(std::pow(share, notches), least);
    mark.p1 = centre + (mark.p1 - centre) * factor;
    mark.p2 = centre + (mark.p2 - centre) * factor;
}

} // namespace

const MarkTraits &traitsOf(Kind kind) { return *std::ranges::find(traits, kind, &MarkTraits::kind); }

const MarkTraits *traitsMadeBy(Tool tool)
{
    const auto *found = std::ranges::find(traits, tool, &MarkTraits::tool);
    return found == traits.end() ? nullptr : found;
}

Annotation afterWheel(Annotation mark, int notches)
{
    const WheelField &field = traitsOf(mark.kind).wheel;
    if (!field.member) {
        grow(mark, notches);
        return mark;
    }
    double &value = mark.*field.member;
    const double wanted = std::clamp(value + notches * field.step, field.least, field.most);
    // A value that a file brought from beyond the range is not pulled back against the wheel's direction.
    value = notches > 0 ? std::max(value, wanted) : std::min(value, wanted);
    return mark;
}

QString spokenName(const Annotation &mark)
{
    const char *english = std::ranges::find(kindNames, mark.kind, &KindName::kind)->english;
    const QString name = QCoreApplication::translate("MarkNames", english);
    const bool isRead = mark.kind == Kind::Text || mark.kind == Kind::Sticker || !mark.stampLabel.isEmpty()
        || (mark.kind == Kind::Stamp && mark.stamp == StampKind::Number);
    const QString content = mark.stampLabel.isEmpty() ? mark.text : mark.stampLabel;
    if (!isRead || content.isEmpty())
        return name;
    //: A mark's kind and the text in it
    return QCoreApplication::translate("MarkNames", "%1 “%2”").arg(name, content);
}

} // namespace tessaly
