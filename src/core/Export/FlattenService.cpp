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

std::optional<RasterImage> flatten(const AnnotationStore &store, int threads)
{
    if (store.image().isEmpty())
        return std::nullopt;
    FrameComposition framed = composition(store);
    const double scale = store.pixelScale();
    const QSizeF pointSize = framed.layout.canvasSize;
    QImage pixels = framed.rendered(scale, threads > 0 ? threads : Parallel::defaultThreadCount());
    if (pixels.isNull())
        return std::nullopt;
    return RasterImage { std::move(pixels), pointSize };
}

std::optional<RasterImage> flattenOrAlert(const AnnotationStore &store, Alerts &alerts)
{
    auto image = flatten(store);
    if (!image) {
        alerts.warn(QCoreApplication::translate("FlattenService", "Couldn't prepare the image"),
            QCoreApplication::translate("FlattenService",
                "The image couldn't be rendered with its annotations, so nothing was exported. Your work is still "
                "open — try again, or crop the image to make it smaller."));
    }
    return image;
}

} // namespace tessaly::FlattenService
