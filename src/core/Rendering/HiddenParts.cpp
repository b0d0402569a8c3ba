// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/HiddenParts.h"

#include "core/Base/Parallel.h"
#include "core/Rendering/AnnotationsCanvas.h"

#include <algorithm>

namespace tessaly::HiddenParts {

namespace {

bool hides(const Annotation &mark)
{
    switch (mark.kind) {
    case AnnotationKind::Pixelate:
    case AnnotationKind::ImageOverlay:
    case AnnotationKind::Sticker:
        return true;
    case AnnotationKind::Rectangle:
    case AnnotationKind::Ellipse:
        return mark.filled;
    default:
        return false;
    }
}

} // namespace

QList<QRectF> areas(const QList<Annotation> &marks)
{
    QList<QRectF> areas;
    for (const Annotation &mark : marks)
        if (hides(mark))
            areas += mark.boundingRect();
    return areas;
}

std::optional<RasterImage> painted(const RasterImage &capture, const QList<Annotation> &marks, int threads)
{
    AnnotationsCanvas canvas;
    std::ranges::copy_if(marks, std::back_inserter(canvas.annotations), hides);
    if (canvas.annotations.isEmpty())
        return capture;
    canvas.imageSize = capture.pointSize;
    canvas.source = capture;
    QImage pixels = canvas.drawnOver(
        capture, capture.pixelSize(), capture.pixelScale(), threads > 0 ? threads : Parallel::defaultThreadCount());
    if (pixels.isNull())
        return std::nullopt;
    return RasterImage { std::move(pixels), capture.pointSize };
}

} // namespace tessaly::HiddenParts
