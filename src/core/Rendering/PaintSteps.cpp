// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/PaintSteps.h"

#include "core/Rendering/PixelBlend.h"

#include <QPainter>

namespace tessaly {

void PreparedMark::fill(QPainterPath outline, const QColor &color)
{
    if (outline.isEmpty() || color.alpha() == 0)
        return;
    touch(outline.controlPointRect());
    steps.emplace_back(FillStep { std::move(outline), color });
}

void PreparedMark::add(PictureStep step)
{
    if (step.picture.isNull() || step.target.isEmpty() || step.opacity <= 0)
        return;
    if (step.picture.format() != QImage::Format_RGB32)
        step.picture.convertTo(QImage::Format_ARGB32_Premultiplied);
    touch(step.placement.mapRect(step.target));
    steps.emplace_back(std::move(step));
}

void PreparedMark::add(MultiplyStep step)
{
    if (step.area.isEmpty())
        return;
    touch(step.area);
    steps.emplace_back(std::move(step));
}

void PreparedMark::add(CoverStep step)
{
    touch(step.area);
    steps.emplace_back(std::move(step));
}

void PreparedMark::add(LensStep step)
{
    if (step.picture.isNull())
        return;
    touch(step.outline.controlPointRect());
    steps.emplace_back(std::move(step));
}

namespace {

QRect clipOn(const PixelGrid &grid, const std::optional<QRectF> &points, const QRect &pixels)
{
    return points ? grid.touchedPixels(*points).intersected(pixels) : pixels;
}

QRectF targetOn(const PixelGrid &grid, const PictureStep &step)
{
    const QRectF pixels = grid.toPixels.mapRect(step.target);
    return step.wholePixels ? QRectF(outwardRect(pixels)) : pixels;
}

void drawWith(QPainter &painter, const PixelGrid &grid, const PictureStep &step)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setOpacity(step.opacity);
    if (!step.placement.isIdentity()) {
        painter.setTransform(step.placement * grid.toPixels, true);
        painter.drawImage(step.target, step.picture);
        return;
    }
    const QRectF target = targetOn(grid, step);
    const QRect whole = target.toRect();
    const bool pixelByPixel = whole.size() == step.picture.size() && whole == outwardRect(target);
    if (pixelByPixel)
        painter.drawImage(whole.topLeft(), step.picture);
    else
        painter.drawImage(target, step.picture);
}

/// The step's pixels on the grid, with their place; the picture itself where its pixels are those of the grid.
void fitPicture(PictureStep &step, const PixelGrid &grid, const QRect &pixels, qint64 &budget)
{
    const QRectF target = targetOn(grid, step);
    const QRect place = outwardRect((step.placement * grid.toPixels).mapRect(step.target)).intersected(pixels);
    const bool pixelByPixel = step.placement.isIdentity() && step.opacity == 1
        && outwardRect(target).size() == step.picture.size() && target.toRect() == outwardRect(target);
    if (pixelByPixel) {
        step.fittedPicture = step.picture;
        step.fittedPosition = outwardRect(target).topLeft();
        return;
    }
    const qint64 size = qint64(place.width()) * place.height();
    if (place.isEmpty() || size > budget)
        return;
    budget -= size;
    step.fittedPicture = QImage(place.size(), QImage::Format_ARGB32_Premultiplied);
    step.fittedPicture.fill(Qt::transparent);
    step.fittedPosition = place.topLeft();
    QPainter painter(&step.fittedPicture);
    painter.translate(-place.topLeft());
    drawWith(painter, grid, step);
}

/// Paints each kind of step into memory.
struct InMemory {
    const PixelTarget &target;

    void operator()(const FillStep &step) const
    {
        const QRect clip = clipOn(target.grid, step.clip, target.clip);
        if (target.fitted)
            PixelBlend::fill(target.pixels, clip, step.fittedMask, step.color, target.origin);
        else
            PixelBlend::fill(target.pixels, clip, CoverageMask(target.grid.toPixels.map(step.outline), clip),
                step.color, target.origin);
    }

    void operator()(const PictureStep &step) const
    {
        if (target.fitted && !step.fittedPicture.isNull()) {
            PixelBlend::draw(target.pixels, target.clip, step.fittedPicture, step.fittedPosition, target.origin);
            return;
        }
        QPainter painter(&target.pixels);
        painter.translate(-target.origin);
        painter.setClipRect(target.clip);
        drawWith(painter, target.grid, step);
    }

    void operator()(const MultiplyStep &step) const
    {
        PixelBlend::multiply(
            target.pixels, target.clip, target.grid.toPixels.mapRect(step.area), step.color, target.origin);
    }

    void operator()(const CoverStep &step) const
    {
        QPainterPath whole;
        whole.addRect(target.grid.touchedPixels(step.area).intersected(target.clip));
        PixelBlend::fill(target.pixels, target.clip, CoverageMask(whole, target.clip), step.color, target.origin);
    }

    void operator()(const LensStep &step) const
    {
        const auto mode = step.picture.hasAlphaChannel() ? PixelBlend::Mode::Instead : PixelBlend::Mode::Over;
        PixelBlend::fill(
            target.pixels, target.clip, step.fittedMask, step.picture, step.pixelPosition, mode, target.origin);
    }
};

/// Paints each kind of step with a painter.
struct WithPainter {
    QPainter &painter;
    PixelGrid grid;

    void operator()(const FillStep &step) const
    {
        if (step.clip)
            painter.setClipRect(grid.grownToPixels(*step.clip), Qt::IntersectClip);
        painter.fillPath(step.outline, step.color);
    }

    void operator()(const PictureStep &step) const
    {
        const bool upright = grid.isUpright() && grid.toPixels.isInvertible();
        if (upright)
            painter.setTransform(grid.toPixels.inverted(), true);
        drawWith(painter, upright ? grid : PixelGrid(), step);
    }

    void operator()(const MultiplyStep &step) const
    {
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        painter.fillRect(step.area, step.color);
    }

    void operator()(const CoverStep &step) const { painter.fillRect(grid.grownToPixels(step.area), step.color); }

    void operator()(const LensStep &step) const
    {
        QBrush brush(step.picture);
        const double perPixel = 1 / grid.scale();
        brush.setTransform(QTransform::fromTranslate(step.pixelPosition.x(), step.pixelPosition.y())
            * (grid.isUpright() ? grid.toPixels.inverted() : QTransform::fromScale(perPixel, perPixel)));
        painter.fillPath(step.outline, brush);
    }
};

} // namespace

void PreparedMark::fitPictures(const PixelGrid &grid, const QRect &pixels, qint64 &budget)
{
    for (PaintStep &step : steps) {
        if (auto *picture = std::get_if<PictureStep>(&step))
            fitPicture(*picture, grid, pixels, budget);
    }
}

void PreparedMark::fitShapes(const PixelGrid &grid, const QRect &pixels)
{
    for (PaintStep &step : steps) {
        if (auto *fill = std::get_if<FillStep>(&step))
            fill->fittedMask = CoverageMask(grid.toPixels.map(fill->outline), clipOn(grid, fill->clip, pixels));
        else if (auto *lens = std::get_if<LensStep>(&step))
            lens->fittedMask = CoverageMask(grid.toPixels.map(lens->outline), pixels);
    }
}

void paint(const PreparedMark &mark, const PixelTarget &target)
{
    for (const PaintStep &step : mark.steps)
        std::visit(InMemory { target }, step);
}

void paint(const PreparedMark &mark, QPainter &painter)
{
    for (const PaintStep &step : mark.steps) {
        painter.save();
        std::visit(WithPainter { painter, { painter.deviceTransform() } }, step);
        painter.restore();
    }
}

} // namespace tessaly
