// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/FlattenService.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Base/Parallel.h"
#include "core/Desktop/Alerts.h"

#include <QCoreApplication>

namespace tessaly::FlattenService {

FrameComposition composition(const AnnotationStore &store)
{
    FrameComposition composition;
    composition.layout = store.frameLayout();
    composition.frame = store.frame();
    composition.watermark = store.watermark();
    composition.image = store.image();
    composition.content.annotations = store.annotations();
    composition.content.imageSize = store.image().pointSize;
    composition.content.source = store.image();
    return composition;
}

std::optional<RasterImage> flatten(const FrameComposition &framed, int threads)
{
    if (framed.image.isEmpty())
        return std::nullopt;
    const double scale = framed.image.pixelScale();
    QImage pixels = framed.rendered(scale, threads > 0 ? threads : Parallel::defaultThreadCount());
    if (pixels.isNull())
        return std::nullopt;
    return RasterImage { std::move(pixels), framed.layout.canvasSize };
}

std::optional<RasterImage> flatten(const AnnotationStore &store, int threads)
{
    return flatten(composition(store), threads);
}

std::optional<RasterImage> flattenOrAlert(const AnnotationStore &store, Alerts &alerts)
{
    auto image = flatten(store);
    if (!image)
        alertOfFailure(alerts);
    return image;
}

void alertOfFailure(Alerts &alerts)
{
    alerts.warn(QCoreApplication::translate("FlattenService", "Couldn't prepare the image"),
        QCoreApplication::translate("FlattenService",
            "The image couldn't be rendered with its annotations, so nothing was exported. Your work is still "
            "open — try again, or crop the image to make it smaller."));
}

} // namespace tessaly::FlattenService
