// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationKinds.h"
#include "core/Base/JsonFields.h"

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QUuid>

namespace tessaly {

/// One mark on a capture: its kind, two anchor points, and every style field that any kind needs.
///
/// Positions and lengths are image points, origin top-left, y downwards. A field that a mark's kind does not use is
/// carried along unread. The defaults are those of a document written before the field existed; the editor fills
/// most of them from its tools.
struct Annotation {
    QUuid id = QUuid::createUuid();
    AnnotationKind kind = AnnotationKind::Arrow;
    QPointF p1; ///< an arrow's tail, one corner of a box, a text's origin
    QPointF p2; ///< an arrow's head, the opposite corner
    QString colorHex = QStringLiteral("#FF3366");
    double lineWidth = 4;
    QString text; ///< of a text mark or sticker; a number stamp's number
    double fontSize = 18;
    bool bold = false;
    bool italic = false;
    QString fontName; ///< family; empty is the system font
    bool filled = false; ///< rectangle, ellipse
    bool doubleHeaded = false;
    ArrowHeadStyle arrowHead = ArrowHeadStyle::Tapered;
    StampKind stamp = StampKind::Check;
    ObscureStyle obscure = ObscureStyle::Pixelate;
    double obscureStrength = 1; ///< multiplier; 1 is normal
    double highlightOpacity = 0.45;
    QList<QPointF> points; ///< a pen's path
    bool spotEllipse = true; ///< a spotlight's hole; else a rounded rectangle
    double spotDim = 0.5; ///< darkness outside a spotlight, 0 to 1
    std::optional<QByteArray> imageData; ///< an image mark's picture as the bytes of an image file
    std::optional<bool> disc; ///< a stamp's disc; absent gives one to number stamps only
    QString stampLabel; ///< caption beside a stamp
    std::optional<double> tailAngle; ///< radians; absent means no tail
    double tailLength = 34;
    bool curved = false;
    QPointF curveHandle { 0.5, -0.22 }; ///< x along p1→p2, y along the normal, both as fractions of the length
    double magnification = 2;
    bool magnifierRound = true; ///< else a rounded rectangle

    Annotation() = default;
    Annotation(AnnotationKind markKind, QPointF first, QPointF second) : kind(markKind), p1(first), p2(second) { }

    /// The defaults under an identity that is known already; a fresh one costs a call into the system.
    explicit Annotation(QUuid identity) : id(identity) { }

    /// The box of the two anchors, whichever way it was dragged.
    QRectF rect() const;

    /// Where a stamp's tail ends; only for a stamp with a tail.
    std::optional<QPointF> tailTip() const;

    /// The box of a stamp's caption; only for a stamp that has one.
    std::optional<QRectF> stampLabelRect() const;

    /// An estimate of the mark's extent. A text's box is guessed from its length and does not measure the font; a
    /// stroke's width is not included.
    QRectF boundingRect() const;

    /// `count` + 1 points of the arrow's curve from p1 to p2, at equal steps of its parameter.
    QList<QPointF> curveSamples(int count = 48) const;

    /// Whether a click at the point means this mark. Obscured areas and pen strokes are never hit.
    bool contains(QPointF point) const;

    QJsonObject toJson() const;

    /// The first field that JSON cannot hold, a number that is not finite; null when all can be written.
    const char *unwritableKey() const;

    /// "kind", "p1" and "p2" are required, any other key may be missing; a value of another type, or an unknown name
    /// of a case, fails the whole mark, and the sentence names the key.
    static Result<Annotation> fromJson(const QJsonObject &object);

    bool operator==(const Annotation &) const = default;
};

template <>
struct json::Codec<QPointF> {
    static bool read(const QJsonValue &value, QPointF &target);
    static bool writable(QPointF value) { return std::isfinite(value.x()) && std::isfinite(value.y()); }
    static QJsonValue write(QPointF value) { return QJsonArray { value.x() + 0.0, value.y() + 0.0 }; }
};

template <>
struct json::Codec<QUuid> {
    static bool read(const QJsonValue &value, QUuid &target);
    static QJsonValue write(const QUuid &value) { return value.toString(QUuid::WithoutBraces); }
};

} // namespace tessaly
