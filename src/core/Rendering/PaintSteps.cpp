// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/PaintSteps.h"

#include "core/Rendering/MultiplyBlend.h"
#include "core/Rendering/PixelGrid.h"

#include <QPainter>

#include <cmath>

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

/// The painter with pixels as its units, until the end of the scope.
class InPixels {
public:
    explicit InPixels(QPainter &painter) : m_painter(painter)
    {
        m_painter.save();
        const QTransform toPixels = m_painter.deviceTransform();
        if (toPixels == m_painter.worldTransform())
            m_painter.resetTransform(); // the inverse would leave a scale of almost 1
        else
            m_painter.setTransform(toPixels.inverted(), true);
    }
    ~InPixels() { m_painter.restore(); }
    Q_DISABLE_COPY_MOVE(InPixels)

private:
    QPainter &m_painter;
};

PixelGrid gridOf(const QPainter &painter) { return { painter.deviceTransform() }; }

/// The pixel at which the picture can be copied as it is, where its pixels and those below fall together.
std::optional<QPoint> copyPosition(const QRectF &pixelTarget, QSize pictureSize)
{
    constexpr double noise = 1e-6;
    const QRect whole = pixelTarget.toRect();
    const auto same = [](double a, double b) { return std::abs(a - b) < noise; };
    const bool fits = whole.size() == pictureSize && same(pixelTarget.x(), whole.x())
        && same(pixelTarget.y(), whole.y()) && same(pixelTarget.width(), whole.width())
        && same(pixelTarget.height(), whole.height());
    return fits ? std::optional(whole.topLeft()) : std::nullopt;
}

} // namespace

/// Paints each kind of step.
class StepPainter {
public:
    explicit StepPainter(const PaintTarget &target) : m_target(target), m_painter(target.painter) { }

    void operator()(const FillStep &step) const
    {
        if (!step.clip) {
            m_painter.fillPath(step.outline, step.color);
            return;
        }
        m_painter.save();
        m_painter.setClipRect(gridOf(m_painter).grownToPixels(*step.clip), Qt::IntersectClip);
        m_painter.fillPath(step.outline, step.color);
        m_painter.restore();
    }

    void operator()(const PictureStep &step) const
    {
        if (!step.placement.isIdentity() || step.opacity < 1) {
            m_painter.save();
            m_painter.setTransform(step.placement, true);
            m_painter.setOpacity(step.opacity);
            m_painter.drawImage(step.target, step.picture);
            m_painter.restore();
            return;
        }
        const PixelGrid grid = gridOf(m_painter);
        if (!grid.isUpright()) {
            m_painter.drawImage(step.target, step.picture);
            return;
        }
        QRectF pixels = grid.toPixels.mapRect(step.target);
        if (step.wholePixels)
            pixels = outwardRect(pixels);
        const InPixels inPixels(m_painter);
        if (const auto position = copyPosition(pixels, step.picture.size()))
            m_painter.drawImage(*position, step.picture);
        else
            m_painter.drawImage(pixels, step.picture);
    }

    void operator()(const MultiplyStep &step) const
    {
        const PixelGrid grid = gridOf(m_painter);
        if (m_target.pixels && grid.isUpright()) {
            multiply(*m_target.pixels, m_target.clip, grid.toPixels.mapRect(step.area), step.color);
            return;
        }
        m_painter.save();
        m_painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        m_painter.fillRect(step.area, step.color);
        m_painter.restore();
    }

    void operator()(const CoverStep &step) const
    {
        const PixelGrid grid = gridOf(m_painter);
        if (!grid.isUpright()) {
            m_painter.fillRect(step.area, step.color);
            return;
        }
        const QRect pixels = grid.touchedPixels(step.area);
        const InPixels inPixels(m_painter);
        m_painter.fillRect(pixels, step.color);
    }

    void operator()(const LensStep &step) const
    {
        m_painter.save();
        const bool replaces = m_target.pixels && m_target.pixels->hasAlphaChannel() && step.picture.hasAlphaChannel();
        if (replaces) { // what is magnified stands instead of what lies below, also where it is transparent
            m_painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
            m_painter.fillPath(step.outline, Qt::black);
            m_painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        }
        QBrush brush(step.picture);
        brush.setTransform(QTransform::fromScale(
                               step.target.width() / step.picture.width(), step.target.height() / step.picture.height())
            * QTransform::fromTranslate(step.target.x(), step.target.y()));
        m_painter.fillPath(step.outline, brush);
        m_painter.restore();
    }

private:
    const PaintTarget &m_target;
    QPainter &m_painter;
};

void paint(const PreparedMark &mark, const PaintTarget &target)
{
    const StepPainter painter(target);
    for (const PaintStep &step : mark.steps)
        std::visit(painter, step);
}

} // namespace tessaly
