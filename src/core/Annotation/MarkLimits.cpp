// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/MarkLimits.h"

#include "core/Annotation/AnnotationGeometry.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace tessaly::MarkLimits {

namespace {

struct NumberLimit {
    const char *name;
    double Annotation::*member;
    double least;
    double most;
    double fallback; ///< for what is no number at all
};

constexpr std::array numberLimits {
    NumberLimit { "lineWidth", &Annotation::lineWidth, 0, 1e4, 4 },
    NumberLimit { "fontSize", &Annotation::fontSize, 0.1, 1e4, 18 },
    NumberLimit { "obscureStrength", &Annotation::obscureStrength, 0, 100, 1 },
    NumberLimit { "highlightOpacity", &Annotation::highlightOpacity, 0, 1, 0.45 },
    NumberLimit { "spotDim", &Annotation::spotDim, 0, 1, 0.5 },
    NumberLimit { "tailLength", &Annotation::tailLength, 0, 1e4, 34 },
    NumberLimit { "magnification", &Annotation::magnification, 0.1, 100, 2 },
};

struct TextLimit {
    const char *name;
    QString Annotation::*member;
};

constexpr std::array textLimits {
    TextLimit { "text", &Annotation::text },
    TextLimit { "stampLabel", &Annotation::stampLabel },
};

bool isReachable(QPointF point) { return std::abs(point.x()) <= maxCoordinate && std::abs(point.y()) <= maxCoordinate; }

QString placeProblem(const char *name, QPointF point)
{
    return QCoreApplication::translate("MarkLimits", "its %1 lies at (%2, %3)")
        .arg(QLatin1StringView(name), QString::number(point.x()), QString::number(point.y()));
}

QString countProblem(const char *name, qsizetype count)
{
    return QCoreApplication::translate("MarkLimits", "its %1 has %2 elements")
        .arg(QLatin1StringView(name), QString::number(count));
}

/// Where a curve is bent to; a straight mark's handle is not drawn.
QPointF bend(const Annotation &mark)
{
    const bool bent = mark.kind == AnnotationKind::Arrow && mark.curved;
    return bent ? AnnotationGeometry::handlePoint(mark.p1, mark.p2, mark.curveHandle) : QPointF();
}

std::optional<QString> problemOfPlaces(const Annotation &mark)
{
    if (!isReachable(mark.p1))
        return placeProblem("p1", mark.p1);
    if (!isReachable(mark.p2))
        return placeProblem("p2", mark.p2);
    if (!isReachable(bend(mark)))
        return placeProblem("curveHandle", mark.curveHandle);
    const auto far = std::ranges::find_if_not(mark.points, isReachable);
    if (far != mark.points.end())
        return placeProblem("points", *far);
    return std::nullopt;
}

/// Every n-th point and the last.
QList<QPointF> thinned(const QList<QPointF> &points)
{
    const qsizetype step = (points.size() + maxPathPoints - 1) / maxPathPoints;
    QList<QPointF> kept;
    for (qsizetype index = 0; index < points.size() - 1; index += step)
        kept += points[index];
    kept += points.last();
    return kept;
}

QPointF pulledIn(QPointF point)
{
    return { std::clamp(point.x(), -maxCoordinate, maxCoordinate),
        std::clamp(point.y(), -maxCoordinate, maxCoordinate) };
}

QString shortened(const QString &text)
{
    const bool splitsPair = text[maxTextLength - 1].isHighSurrogate();
    return text.left(splitsPair ? maxTextLength - 1 : maxTextLength);
}

} // namespace

std::optional<QString> problem(const Annotation &mark)
{
    if (const auto place = problemOfPlaces(mark))
        return place;
    if (mark.points.size() > maxPathPoints)
        return countProblem("points", mark.points.size());
    for (const NumberLimit &limit : numberLimits) {
        const double number = mark.*limit.member;
        if (!(number >= limit.least && number <= limit.most))
            return QCoreApplication::translate("MarkLimits", "its %1 is %2")
                .arg(QLatin1StringView(limit.name), QString::number(number));
    }
    if (mark.tailAngle && !std::isfinite(*mark.tailAngle))
        return QCoreApplication::translate("MarkLimits", "its tailAngle is not a number");
    for (const TextLimit &limit : textLimits) {
        if ((mark.*limit.member).size() > maxTextLength)
            return countProblem(limit.name, (mark.*limit.member).size());
    }
    return std::nullopt;
}

std::optional<Annotation> drawable(const Annotation &mark)
{
    Annotation tamed = mark;
    // An area that hides must not vanish because it reaches too far: it hides as far as there can be a picture.
    if (mark.kind == AnnotationKind::Pixelate) {
        tamed.p1 = pulledIn(mark.p1);
        tamed.p2 = pulledIn(mark.p2);
    }
    if (mark.kind != AnnotationKind::Pen)
        tamed.points.clear();
    if (problemOfPlaces(tamed))
        return std::nullopt;
    if (tamed.points.size() > maxPathPoints)
        tamed.points = thinned(tamed.points);
    for (const NumberLimit &limit : numberLimits) {
        double &number = tamed.*limit.member;
        number = std::isnan(number) ? limit.fallback : std::clamp(number, limit.least, limit.most);
    }
    if (tamed.tailAngle && !std::isfinite(*tamed.tailAngle))
        tamed.tailAngle.reset();
    for (const TextLimit &limit : textLimits) {
        QString &text = tamed.*limit.member;
        if (text.size() > maxTextLength)
            text = shortened(text);
    }
    return tamed;
}

} // namespace tessaly::MarkLimits
