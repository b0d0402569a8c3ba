// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/CaptureDelivery.h"

#include "core/Capture/PostCaptureRouter.h"
#include "core/Desktop/Toasts.h"
#include "core/Export/ExportService.h"
#include "core/Export/PictureTitle.h"
#include "core/Text/TextCopier.h"

#include <QCoreApplication>

namespace tessaly::CaptureDelivery {

namespace {

void toClipboard(const CaptureService::Surroundings &with, const RasterImage &image, const QString &title)
{
    with.router.record(image, title);
    with.exports.copy(image, true);
    with.toasts.show(QCoreApplication::translate("CaptureService", "Copied to clipboard"));
}

CaptureOutcome toFile(const CaptureService::Surroundings &with, const CaptureRequest &request, const RasterImage &image,
    const QString &title)
{
    with.router.record(image, title);
    auto path = request.outputPath ? with.router.saveTo(*request.outputPath, image) : with.router.saveToDisk(image);
    if (!path)
        return path.failure();
    if (path->isEmpty())
        return CaptureCancelled {};
    return Captured { std::move(*path) };
}

CaptureOutcome route(const CaptureService::Surroundings &with, const CaptureRequest &request, const RasterImage &image,
    const QString &title)
{
    switch (request.sink) {
    case CaptureSink::Editor:
        with.router.handleCapturedImage(image, PictureTitle::untitled(), title);
        break;
    case CaptureSink::Clipboard:
        toClipboard(with, image, title);
        break;
    case CaptureSink::File:
        return toFile(with, request, image, title);
    case CaptureSink::Text:
        with.textCopier.copyText(image);
        break;
    }
    return Captured {};
}

} // namespace

CaptureOutcome deliver(const CaptureService::Surroundings &with, const CaptureRequest &request,
    const RasterImage &image, const QString &sourceName)
{
    return route(with, request, image,
        sourceName.isEmpty() ? QCoreApplication::translate("CaptureService", "Screenshot") : sourceName);
}

} // namespace tessaly::CaptureDelivery
