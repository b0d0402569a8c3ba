// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/EntryPicture.h"

#include "core/Document/TessalyDocument.h"
#include "core/Export/DragFile.h"
#include "core/Export/DraggedPicture.h"
#include "core/Export/FlattenService.h"

#include <QCoreApplication>

#include <future>

namespace tessaly {

EntryPicture::~EntryPicture() { m_pool.waitForDone(); }

Result<RasterImage> EntryPicture::flattened(const QString &packagePath)
{
    auto contents = TessalyDocument::contents(packagePath);
    if (!contents)
        return Failure { contents.failure().description() };
    AnnotationDocument &document = contents->document;
    const RasterImage &image = contents->image;
    FrameComposition composition;
    composition.layout = FrameLayout(image.pointSize, document.frame, image.pixelScale());
    composition.frame = std::move(document.frame);
    composition.watermark = std::move(document.watermark);
    composition.content.annotations = std::move(document.annotations);
    composition.content.imageSize = image.pointSize;
    composition.content.source = image;
    composition.image = image;
    auto picture = FlattenService::flatten(composition);
    if (!picture)
        return Failure { QCoreApplication::translate("FlattenService", "Couldn't prepare the image") };
    return std::move(*picture);
}

void EntryPicture::make(const QString &packagePath, std::function<void(Result<RasterImage>)> taken)
{
    const quint64 number = ++m_wanted;
    m_pool.start([this, packagePath, number, taken = std::move(taken)] {
        const auto deliver = [this, number, taken, picture = flattened(packagePath)] {
            if (number == m_wanted)
                taken(picture);
        };
        QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
    });
}

std::unique_ptr<QMimeData> EntryPicture::dragData(const QString &packagePath, const QString &fileName)
{
    // On the program's own pool: the receiver may come for it when the window is gone.
    const auto task = std::make_shared<std::packaged_task<std::optional<RasterImage>()>>([packagePath] {
        auto picture = flattened(packagePath);
        return picture ? std::optional(std::move(*picture)) : std::nullopt;
    });
    const auto future = task->get_future().share();
    QThreadPool::globalInstance()->start([task] { (*task)(); });
    return std::make_unique<DraggedPicture>([future] { return future.get(); }, fileName, privateTemporaryFolder());
}

} // namespace tessaly
