// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ColorHex.h"
#include "core/Imaging/ContinuousCorners.h"
#include "core/Rendering/Contrast.h"
#include "core/Rendering/StampGlyphs.h"
#include "core/Rendering/Strokes.h"
#include "core/Rendering/TextPainter.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

/// The pointer from the stamp to its tip, as far as it shows.
QPainterPath tailShape(const Annotation &mark, QPointF tip)
{
    const QPointF centre = mark.rect().center();
    const double radius = mark.rect().width() * 0.5;
    const double distance = std::max(std::hypot(tip.x() - centre.x(), tip.y() - centre.y()), 0.001);
    const QPointF direction = (tip - centre) / distance, normal(-direction.y(), direction.x());
    const double base = std::min(distance * 0.9, radius * 0.8);
    const double halfWidth
        = distance - base > 1 ? std::min((distance - base) * 0.75, radius * 0.62) : std::min(radius * 0.62, 0.75);
    const QPointF middle = centre + direction * base;
    return Strokes::polygon({ middle + normal * halfWidth, tip, middle - normal * halfWidth });
}

/// How a stamp's glyph is painted: plainly on its disc, or with a halo over whatever is below.
struct GlyphInk {
    QColor color;
    double haloWidth = 0;
    QColor haloColor = {};
};

GlyphInk inkFor(const Annotation &mark, bool onDisc)
{
    const QColor markColor = ColorHex::toColor(mark.colorHex);
    if (onDisc)
        return { Contrast::textOn(markColor) };
    return { markColor, std::max(mark.rect().width() * 0.035, 0.75), Contrast::opposite(markColor) };
}

void addGlyph(const QPainterPath &glyph, const GlyphInk &ink, const MarkContext &context, PreparedMark &out)
{
    const QPainterPath visible = Strokes::within(glyph, context.paintable);
    if (ink.haloWidth > 0) {
        QPainterPath halo = Strokes::outline(visible, { 2 * ink.haloWidth });
        halo.addPath(visible);
        out.fill(halo, ink.haloColor);
    }
    out.fill(visible, ink.color);
}

/// A text centred by its ink in the stamp; made smaller where it would leave the inscribed circle.
void addCentredText(const Annotation &mark, const QString &text, double fontSize, const GlyphInk &ink,
    const MarkContext &context, PreparedMark &out)
{
    constexpr double roomInHalves = 0.8; // of the ink's diagonal, of the box's shorter side
    const QRectF box = mark.rect();
    const TextShape &shape = context.text.shape(text, { .weight = QFont::Bold });
    const double diagonal = std::hypot(shape.ink.width(), shape.ink.height());
    if (diagonal <= 0)
        return;
    const double size = std::min(fontSize, roomInHalves * std::min(box.width(), box.height()) / diagonal);
    addText(shape, { cornerForInkCentre(shape, size, box.center()), size, ink.color, ink.haloWidth, ink.haloColor },
        context, out);
}

void addSymbol(const Annotation &mark, bool onDisc, const MarkContext &context, PreparedMark &out)
{
    using namespace StampGlyphs;
    const QRectF box = mark.rect();
    const Room room = onDisc ? Room::OnDisc : Room::WholeBox;
    const GlyphInk ink = inkFor(mark, onDisc);
    // A flat box must not drown its glyph in the stroke.
    const double stroke = std::max(std::min(box.width() * 0.14, box.height() * 0.28), 2.0);
    const double letterSize = std::max(box.height() * 0.52, 8.0);
    switch (mark.stamp) {
    case StampKind::Check:
        return addGlyph(check(box, stroke, room), ink, context, out);
    case StampKind::Cross:
        return addGlyph(cross(box, stroke, room), ink, context, out);
    case StampKind::Star:
        return addGlyph(starPath(box, room), ink, context, out);
    case StampKind::Dot:
        return addGlyph(dot(box, room), ink, context, out);
    case StampKind::Exclamation:
        return addCentredText(mark, QStringLiteral("!"), letterSize, ink, context, out);
    case StampKind::Question:
        return addCentredText(mark, QStringLiteral("?"), letterSize, ink, context, out);
    case StampKind::Number:
        return addCentredText(mark, mark.text.trimmed(), box.height() * 0.58, ink, context, out);
    }
}

/// The caption: its letters stand on one line whatever they are, so it is centred by the height of capitals.
void addLabel(const Annotation &mark, const QRectF &box, const MarkContext &context, PreparedMark &out)
{
    const QColor color = ColorHex::toColor(mark.colorHex);
    out.fill(Strokes::within(continuousCornerPath(box, box.height() * 0.28), context.paintable), color);
    const TextShape &shape = context.text.shape(mark.stampLabel, { .weight = QFont::DemiBold });
    const double wanted = std::max(box.height() * 0.62, 8.0), room = box.width() - box.height() * 0.3;
    const double size = shape.size.width() * wanted > room ? room / shape.size.width() : wanted;
    const QPointF corner(box.center().x() - shape.size.width() * size / 2,
        box.center().y() + (shape.capHeight / 2 - shape.ascent) * size);
    addText(shape, { corner, size, Contrast::textOn(color) }, context, out);
}

} // namespace

void prepareStamp(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    const QRectF box = mark.rect();
    const bool onDisc = mark.disc.value_or(mark.stamp == StampKind::Number);
    QPainterPath ground;
    if (const auto tip = mark.tailTip())
        ground = tailShape(mark, *tip);
    if (onDisc) {
        QPainterPath disc;
        disc.addEllipse(box);
        Strokes::unite(ground, disc);
    }
    out.fill(Strokes::within(ground, context.paintable), ColorHex::toColor(mark.colorHex));
    if (!box.isEmpty())
        addSymbol(mark, onDisc, context, out);
    if (const auto labelBox = mark.stampLabelRect())
        addLabel(mark, *labelBox, context, out);
}

} // namespace tessaly
