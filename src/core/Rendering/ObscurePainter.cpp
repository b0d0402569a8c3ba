// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/ObscurePainter.h"

#include "core/Rendering/MarkPainters.h"
#include "core/Rendering/Strokes.h"

#include <QDataStream>

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

// A hidden area is to look hidden and not like another mark, so it takes no part in the mark's colour.
const QColor solidColor(28, 28, 30);
const QColor stripesColor = QColor::fromRgbF(0.18f, 0.18f, 0.18f);
const QColor stripeColor = QColor::fromRgbF(0.34f, 0.34f, 0.34f);

/// Diagonal bands across the box, rising to the right. Only those that `visible` can show are made.
QPainterPath stripesAcross(const QRectF &box, const QRectF &visible)
{
    constexpr double spacing = 12, width = 6; // points, measured across the lines
    const double step = spacing * std::sqrt(2.0), halfReach = width * std::sqrt(2.0) / 2;
    const double height = visible.height();
    // A line meets the bottom of the visible part at x, and its top `height` further right.
    const double phase = box.left() + (box.bottom() - visible.bottom());
    const double first = phase + std::floor((visible.left() - height - halfReach - phase) / step) * step;
    QPainterPath bands;
    bands.setFillRule(Qt::WindingFill);
    for (double x = first; x - halfReach < visible.right(); x += step) {
        bands.addPath(Strokes::polygon({ { x - halfReach, visible.bottom() }, { x - halfReach + height, visible.top() },
            { x + halfReach + height, visible.top() }, { x + halfReach, visible.bottom() } }));
    }
    return bands;
}

QImage obscuredPicture(const Annotation &mark, const QRect &pixels, const MarkContext &context)
{
    const int strength = static_cast<int>(std::lround(mark.obscureStrength * 100));
    QByteArray key = context.sample.key(pixels);
    QDataStream(&key, QIODevice::Append) << int(mark.obscure) << strength << context.noiseSeed.value;
    return context.obscured.picture(key, [&] {
        const QImage region = context.sample.region(pixels);
        return mark.obscure == ObscureStyle::Blur
            ? ImageEffects::obscuringBlur(region, strength / 100.0)
            : ImageEffects::pixelated(region, strength / 100.0, context.sample.pixelsPerPoint(), context.noiseSeed);
    });
}

} // namespace

std::optional<QColor> hidingColor(const Annotation &mark)
{
    if (mark.kind != AnnotationKind::Pixelate)
        return std::nullopt;
    switch (mark.obscure) {
    case ObscureStyle::Solid:
        return solidColor;
    case ObscureStyle::Stripes:
        return stripesColor;
    case ObscureStyle::Pixelate:
    case ObscureStyle::Blur:
        break;
    }
    return std::nullopt;
}

void prepareObscured(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    const QRectF box = mark.rect();
    const QRectF area = context.grid.grownToPixels(box.intersected(context.paintable));
    if (area.isEmpty())
        return;
    if (const auto color = hidingColor(mark)) {
        out.add(CoverStep { area, *color });
        if (mark.obscure == ObscureStyle::Stripes)
            out.steps.emplace_back(FillStep { stripesAcross(box, area), stripeColor, area });
        return;
    }
    // Black stands in wherever no picture can be made.
    constexpr double smallestSide = 1; // points
    const QRect pixels = context.sample.isEmpty() ? QRect() : context.sample.touchedPixels(area);
    const bool tooSmall = box.width() < smallestSide || box.height() < smallestSide;
    const QImage picture = tooSmall || pixels.isEmpty() ? QImage() : obscuredPicture(mark, pixels, context);
    const QRectF target = context.sample.isEmpty() ? QRectF() : context.sample.pointsOf(pixels);
    if (picture.isNull() || !target.contains(area))
        out.add(CoverStep { area, Qt::black });
    if (!picture.isNull())
        out.add(PictureStep { picture, target, true });
}

} // namespace tessaly
