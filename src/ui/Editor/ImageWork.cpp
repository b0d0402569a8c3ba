// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/ImageWork.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Base/LongWork.h"
#include "core/Desktop/Alerts.h"

#include <QCoreApplication>

#include <memory>

namespace tessaly {

namespace {

QString titleOf(ImageEdit::Kind kind)
{
    switch (kind) {
    case ImageEdit::Kind::Resize:
        return QCoreApplication::translate("ImageWork", "Resizing…");
    case ImageEdit::Kind::Sharpen:
        return QCoreApplication::translate("ImageWork", "Sharpening…");
    case ImageEdit::Kind::Crop:
        return QCoreApplication::translate("ImageWork", "Cropping…");
    case ImageEdit::Kind::RotateClockwise:
    case ImageEdit::Kind::RotateCounterclockwise:
        return QCoreApplication::translate("ImageWork", "Rotating…");
    case ImageEdit::Kind::FlipHorizontal:
    case ImageEdit::Kind::FlipVertical:
        return QCoreApplication::translate("ImageWork", "Flipping…");
    }
    return {};
}

} // namespace

void ImageWork::run(const ImageEdit &edit, AnnotationStore &store, const EditorServices &services)
{
    // Shared with the worker, which may outlive this call when the user cancels.
    const auto result = std::make_shared<std::optional<RasterImage>>();
    const bool finished = services.work.run(
        titleOf(edit.kind), [result, edit, image = store.image()](const Cancellation &cancellation) {
            *result = applied(image, edit, 0, cancellation);
        });
    if (!finished)
        return;
    if (*result) {
        store.commit(edit, std::move(**result));
        return;
    }
    services.alerts.warn(QCoreApplication::translate("ImageWork", "Couldn't change the image"),
        QCoreApplication::translate(
            "ImageWork", "There isn't enough memory for the new picture. Your work is unchanged."));
}

} // namespace tessaly
