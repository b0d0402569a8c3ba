// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/Annotation.h"

#include "core/Annotation/AnnotationGeometry.h"

#include <QCoreApplication>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <cmath>

namespace tessaly {

static constexpr std::tuple fields {
    json::Field { "arrowHead", &Annotation::arrowHead },
    json::Field { "bold", &Annotation::bold },
    json::Field { "colorHex", &Annotation::colorHex },
    json::Field { "curveHandle", &Annotation::curveHandle },
    json::Field { "curved", &Annotation::curved },
    json::Field { "disc", &Annotation::disc },
    json::Field { "doubleHeaded", &Annotation::doubleHeaded },
    json::Field { "filled", &Annotation::filled },
    json::Field { "fontName", &Annotation::fontName },
    json::Field { "fontSize", &Annotation::fontSize },
    json::Field { "highlightOpacity", &Annotation::highlightOpacity },
    json::Field { "id", &Annotation::id },
    json::Field { "imageData", &Annotation::imageData },
    json::Field { "italic", &Annotation::italic },
    json::Field { "kind", &Annotation::kind },
    json::Field { "lineWidth", &Annotation::lineWidth },
    json::Field { "magnification", &Annotation::magnification },
    json::Field { "magnifierRound", &Annotation::magnifierRound },
    json::Field { "obscure", &Annotation::obscure },
    json::Field { "obscureStrength", &Annotation::obscureStrength },
    json::Field { "p1", &Annotation::p1 },
    json::Field { "p2", &Annotation::p2 },
    json::Field { "points", &Annotation::points },
    json::Field { "spotDim", &Annotation::spotDim },
    json::Field { "spotEllipse", &Annotation::spotEllipse },
    json::Field { "stamp", &Annotation::stamp },
    json::Field { "stampLabel", &Annotation::stampLabel },
    json::Field { "tailAngle", &Annotation::tailAngle },
    json::Field { "tailLength", &Annotation::tailLength },
    json::Field { "text", &Annotation::text },
};
static_assert(json::areSorted(fields));

bool json::Codec<QPointF>::read(const QJsonValue &value, QPointF &target)
{
    const QJsonArray pair = value.toArray();
    if (pair.size() != 2 || !pair[0].isDouble() || !pair[1].isDouble())
        return false;
    target = { pair[0].toDouble(), pair[1].toDouble() };
    return true;
}

bool json::Codec<QUuid>::read(const QJsonValue &value, QUuid &target)
{
    target = QUuid::fromString(value.toString());
    return value.isString() && !target.isNull();
}

QJsonObject Annotation::toJson() const { return json::write(*this, fields); }
const char *Annotation::unwritableKey() const { return json::firstUnwritable(*this, fields); }

Result<Annotation> Annotation::fromJson(const QJsonObject &object)
{
    for (const auto required : { QLatin1StringView("kind"), QLatin1StringView("p1"), QLatin1StringView("p2") }) {
        if (!object.contains(required))
            return Failure { QCoreApplication::translate("Annotation", "The mark has no “%1”.").arg(required) };
    }
    Annotation mark { QUuid() };
    if (const char *key = json::readOver(mark, object, fields)) {
        const QString sentence = QCoreApplication::translate("Annotation", "The mark's “%1” cannot be %2.");
        return Failure { sentence.arg(QLatin1StringView(key), json::excerpt(object[QLatin1StringView(key)])) };
    }
    if (mark.id.isNull())
        mark.id = QUuid::createUuid();
    return mark;
}

namespace {

/// The distance in points within which a click still means a line of this width.
double hitDistance(double lineWidth) { return std::max(lineWidth + 6, 8.0); }

/// What a user counts as characters: an emoji of five code points is one.
int characterCount(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int count = 0;
    while (finder.toNextBoundary() >= 0)
        ++count;
    return count;
}

/// QRectF::united leaves out a box without area; here its place counts.
QRectF including(const QRectF &box, const QRectF &other)
{
    return AnnotationGeometry::boundingBox({ box.topLeft(), box.bottomRight(), other.topLeft(), other.bottomRight() });
}

bool liesOnCurve(const Annotation &arrow, QPointF point)
{
    const QList<QPointF> curve = arrow.curveSamples();
    const double reach = hitDistance(arrow.lineWidth);
    for (qsizetype index = 1; index < curve.size(); ++index) {
        if (AnnotationGeometry::distance(point, curve[index - 1], curve[index]) <= reach)
            return true;
    }
    return false;
}

} // namespace

QRectF Annotation::rect() const { return QRectF(p1, p2).normalized(); }

std::optional<QPointF> Annotation::tailTip() const
{
    if (kind != AnnotationKind::Stamp || !tailAngle)
        return std::nullopt;
    const QRectF box = rect();
    const double radius = std::max(box.width(), 1.0) * 0.5;
    // The tail never ends inside 1.4 radii, where the disc would swallow it, nor beyond 3.
    const double length = std::min(radius * 3, std::max(radius * 1.4, tailLength));
    return box.center() + QPointF(std::cos(*tailAngle), std::sin(*tailAngle)) * length;
}

std::optional<QRectF> Annotation::stampLabelRect() const
{
    if (kind != AnnotationKind::Stamp || stampLabel.isEmpty())
        return std::nullopt;
    const QRectF box = rect();
    const double height = std::max(box.height() * 0.55, 16.0);
    const double width = height * 0.5 + std::max(height * characterCount(stampLabel) * 0.62, 14.0);
    return QRectF(box.right() + height * 0.22, box.center().y() - height * 0.5, width, height);
}

QRectF Annotation::boundingRect() const
{
    if (kind == AnnotationKind::Arrow && curved)
        return AnnotationGeometry::boundingBox(curveSamples());
    if (kind == AnnotationKind::Text)
        return { p1, QSizeF(std::max(fontSize * characterCount(text) * 0.6, 24.0), fontSize * 1.3) };
    QRectF box = rect();
    if (const auto label = stampLabelRect())
        box = including(box, *label);
    if (const auto tip = tailTip())
        box = including(box, { *tip, QSizeF(0, 0) });
    return box;
}

QList<QPointF> Annotation::curveSamples(int count) const
{
    return AnnotationGeometry::quadraticSamples(p1, AnnotationGeometry::controlPoint(p1, p2, curveHandle), p2, count);
}

bool Annotation::contains(QPointF point) const
{
    switch (kind) {
    case AnnotationKind::Pixelate:
    case AnnotationKind::Pen:
        return false;
    case AnnotationKind::Arrow:
        if (curved)
            return liesOnCurve(*this, point);
        [[fallthrough]];
    case AnnotationKind::Line:
        return AnnotationGeometry::distance(point, p1, p2) <= hitDistance(lineWidth);
    default:
        return boundingRect().adjusted(-6, -6, 6, 6).contains(point);
    }
}

} // namespace tessaly
