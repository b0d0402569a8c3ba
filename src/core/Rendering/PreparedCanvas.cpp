// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/PreparedCanvas.h"

#include "core/Annotation/MarkLimits.h"
#include "core/Rendering/AnnotationsCanvas.h"
#include "core/Rendering/ObscurePainter.h"

#include <QPainter>

#include <numeric>

namespace tessaly {

PreparedCanvas::PreparedCanvas(const AnnotationsCanvas &canvas, const PixelGrid &grid, QSize pixelSize, int threads) :
    m_grid(grid)
{
    QList<Annotation> spotlights;
    std::vector<CaptureSample::HiddenArea> hidden;
    for (const Annotation &stored : canvas.annotations) {
        const auto mark = MarkLimits::drawable(stored);
        if (!mark)
            continue;
        if (const auto color = hidingColor(*mark)) // stays hidden while it is being edited
            hidden.push_back({ grid.grownToPixels(mark->rect()), *color });
        if (canvas.editingID == mark->id)
            continue;
        if (mark->kind == AnnotationKind::Spotlight)
            spotlights += *mark;
        else
            m_marks.push_back({ *mark, {} });
    }
    if (canvas.source)
        m_sample = CaptureSample(*canvas.source, canvas.imageSize, std::move(hidden));
    MarkPreparation preparation({ grid, QRectF(QPointF(), canvas.imageSize), QRect(QPoint(), pixelSize),
                                    canvas.noiseSeed, canvas.overlayCache, canvas.obscuredCache, threads },
        m_sample);
    m_spotlights = preparation.spotlights(spotlights);
    std::vector<DrawnMark *> all;
    for (DrawnMark &mark : m_marks)
        all.push_back(&mark);
    std::vector<size_t> indices(all.size());
    std::iota(indices.begin(), indices.end(), size_t(0));
    preparation.prepare(all, indices);
}

void PreparedCanvas::paint(QImage &image, const QRect &clip) const
{
    const PixelTarget target { image, clip, m_grid };
    const auto paintOne = [&](const PreparedMark &mark) {
        if (!mark.steps.empty() && m_grid.touchedPixels(mark.bounds).adjusted(-1, -1, 1, 1).intersects(clip))
            tessaly::paint(mark, target);
    };
    paintOne(m_spotlights);
    for (const DrawnMark &mark : m_marks)
        paintOne(mark.prepared);
}

void PreparedCanvas::paint(QPainter &painter) const
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    tessaly::paint(m_spotlights, painter);
    for (const DrawnMark &mark : m_marks)
        tessaly::paint(mark.prepared, painter);
    painter.restore();
}

} // namespace tessaly
