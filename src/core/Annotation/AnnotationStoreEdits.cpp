// SPDX-License-Identifier: GPL-3.0-or-later
// The store's changes of the picture itself.
#include "core/Annotation/AnnotationStore.h"
#include "core/Annotation/AnnotationTransform.h"
#include "core/Imaging/CropGeometry.h"

#include <QCoreApplication>

namespace tessaly {

void AnnotationStore::beginCrop()
{
    m_isCropping = true;
    m_cropAspect = CropAspect::Free;
    m_lockedCropRatio.reset();
    cropWholePicture();
    Q_EMIT changed();
}

void AnnotationStore::cropWholePicture()
{
    m_cropRect = QRectF({ 0, 0 }, m_content.image.pointSize);
    fitCropToRatio();
}

void AnnotationStore::fitCropToRatio()
{
    const QRectF picture({ 0, 0 }, m_content.image.pointSize);
    if (const auto wanted = cropRatio())
        m_cropRect = CropGeometry::onPixels(
            CropGeometry::withRatio(m_cropRect, *wanted, picture), pixelScale(), pixelDimensions());
}

std::optional<double> AnnotationStore::cropRatio() const
{
    const auto fixed = ratio(m_cropAspect);
    return fixed ? fixed : m_lockedCropRatio;
}

void AnnotationStore::setCropAspect(CropAspect aspect)
{
    if (aspect == m_cropAspect)
        return;
    m_cropAspect = aspect;
    if (ratio(aspect))
        fitCropToRatio();
    if (m_lockedCropRatio)
        m_lockedCropRatio = m_cropRect.width() / m_cropRect.height();
    Q_EMIT changed();
}

void AnnotationStore::setCropLock(bool locked)
{
    if (locked == cropLock() || m_cropRect.isEmpty())
        return;
    m_lockedCropRatio.reset();
    if (locked)
        m_lockedCropRatio = m_cropRect.width() / m_cropRect.height();
    Q_EMIT changed();
}

void AnnotationStore::setCropWidth(int pixels)
{
    const double width = pixels / pixelScale();
    const auto kept = cropRatio();
    resizeCrop({ width, kept ? width / *kept : m_cropRect.height() });
}

void AnnotationStore::setCropHeight(int pixels)
{
    const double height = pixels / pixelScale();
    const auto kept = cropRatio();
    resizeCrop({ kept ? height * *kept : m_cropRect.width(), height });
}

void AnnotationStore::resizeCrop(QSizeF size)
{
    const QSizeF picture = m_content.image.pointSize;
    if (size.width() > picture.width() || size.height() > picture.height())
        size = cropRatio() ? size.scaled(picture, Qt::KeepAspectRatio) : size.boundedTo(picture);
    m_cropRect = CropGeometry::onPixels({ m_cropRect.topLeft(), size }, pixelScale(), pixelDimensions());
    Q_EMIT changed();
}

void AnnotationStore::leaveCrop()
{
    m_isCropping = false;
    m_tool = Tool::Select;
}

Outcome AnnotationStore::applyCrop()
{
    const ImageEdit edit = ImageEdit::crop(m_cropRect);
    auto result = applied(m_content.image, edit);
    if (!result)
        return Failure { QCoreApplication::translate("AnnotationStore", "Couldn't crop the selected region.") };
    leaveCrop();
    takeEdit(edit, *std::move(result));
    Q_EMIT changed();
    return Done {};
}

void AnnotationStore::cancelCrop()
{
    if (!m_isCropping)
        return;
    leaveCrop();
    Q_EMIT changed();
}

void AnnotationStore::rotate(bool clockwise) { make(ImageEdit::rotate(clockwise)); }
void AnnotationStore::flipHorizontal() { make(ImageEdit::flip(true)); }
void AnnotationStore::flipVertical() { make(ImageEdit::flip(false)); }
void AnnotationStore::resize(int toPixelWidth, int height) { make(ImageEdit::resize({ toPixelWidth, height })); }
void AnnotationStore::sharpen(double amount) { make(ImageEdit::sharpen(amount)); }

void AnnotationStore::make(const ImageEdit &edit)
{
    if (auto result = applied(m_content.image, edit))
        commit(edit, *std::move(result));
}

void AnnotationStore::commit(const ImageEdit &edit, RasterImage result)
{
    if (takeEdit(edit, std::move(result)))
        Q_EMIT changed();
}

bool AnnotationStore::takeEdit(const ImageEdit &edit, RasterImage result)
{
    if (result.isEmpty())
        return false;
    const AnnotationTransform transform(edit, m_content.image, result);
    QList<Annotation> moved = transform.moved(m_content.annotations);
    if (result == m_content.image && moved == m_content.annotations)
        return false;
    m_isStepOpen = false;
    recordIf(Undo::Record);
    m_history.edited(edit, result);
    m_content.image = std::move(result);
    m_content.annotations = std::move(moved);
    if (m_isCropping)
        cropWholePicture();
    return true;
}

} // namespace tessaly
