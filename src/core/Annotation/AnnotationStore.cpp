// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationStore.h"

#include <algorithm>

namespace tessaly {

AnnotationStore::AnnotationStore(RasterImage image, const Settings &settings, QObject *parent) :
    QObject(parent),
    m_content { .image = std::move(image) },
    m_toolStyle(ToolStyle::fromSettings(settings))
{
}

template <class T>
void AnnotationStore::assign(T &member, T value)
{
    if (member == value)
        return;
    member = std::move(value);
    Q_EMIT changed();
}

void AnnotationStore::setImage(RasterImage image)
{
    m_content.image = std::move(image); // not compared: that would look at every pixel
    Q_EMIT changed();
}

void AnnotationStore::setAnnotations(QList<Annotation> annotations)
{
    assign(m_content.annotations, std::move(annotations));
}

void AnnotationStore::append(Annotation annotation)
{
    m_content.annotations.append(std::move(annotation));
    Q_EMIT changed();
}

void AnnotationStore::setNextStampNumber(int number) { assign(m_content.nextStampNumber, number); }

void AnnotationStore::setFrame(std::optional<FrameStyle> frame, Undo undo)
{
    recordIf(undo);
    m_content.frame = std::move(frame);
    Q_EMIT changed();
}

void AnnotationStore::setWatermark(std::optional<Watermark> watermark, Undo undo)
{
    recordIf(undo);
    m_content.watermark = std::move(watermark);
    Q_EMIT changed();
}

void AnnotationStore::restore(const Snapshot &snapshot)
{
    m_content = snapshot;
    Q_EMIT changed();
}

bool AnnotationStore::hasPresentation() const
{
    return m_content.frame || (m_content.watermark && m_content.watermark->isVisible());
}

void AnnotationStore::recordIf(Undo undo)
{
    if (undo == Undo::Skip)
        return;
    if (!m_isStepOpen)
        m_history.record({ m_content, m_hasUnsavedChanges });
    m_hasUnsavedChanges = true;
}

void AnnotationStore::beginChange()
{
    recordIf(Undo::Record);
    Q_EMIT changed();
}

void AnnotationStore::takeOver(std::optional<UndoHistory::Step> step)
{
    if (!step)
        return;
    m_isStepOpen = false;
    const bool samePicture = m_content.image.pointSize == step->content.image.pointSize;
    m_content = std::move(step->content);
    m_selectedID.reset();
    if (m_isCropping && !samePicture)
        cropWholePicture();
    Q_EMIT changed();
}

void AnnotationStore::undo() { takeOver(m_history.undo({ m_content, m_hasUnsavedChanges })); }
void AnnotationStore::redo() { takeOver(m_history.redo({ m_content, m_hasUnsavedChanges })); }

void AnnotationStore::removeMark(const QUuid &id)
{
    m_content.annotations.removeIf([&](const Annotation &mark) { return mark.id == id; });
}

void AnnotationStore::cancelLastChange(const QUuid &removing)
{
    removeMark(removing);
    if (const auto step = m_history.discardNewest())
        m_hasUnsavedChanges = step->hasUnsavedChanges;
    m_selectedID.reset();
    Q_EMIT changed();
}

const Annotation *AnnotationStore::selected() const
{
    const auto index = m_selectedID ? indexOf(*m_selectedID) : std::nullopt;
    return index ? &m_content.annotations.at(*index) : nullptr;
}

void AnnotationStore::setSelectedID(std::optional<QUuid> id) { assign(m_selectedID, std::move(id)); }

void AnnotationStore::updateSelection(Undo undo, const std::function<void(Annotation &)> &change)
{
    const auto index = m_selectedID ? indexOf(*m_selectedID) : std::nullopt;
    if (!index)
        return;
    recordIf(undo);
    change(m_content.annotations[*index]);
    Q_EMIT changed();
}

void AnnotationStore::deleteSelected()
{
    if (!selected())
        return;
    recordIf(Undo::Record);
    removeMark(*m_selectedID);
    m_selectedID.reset();
    Q_EMIT changed();
}

const Annotation *AnnotationStore::annotationAt(QPointF point) const
{
    const auto &marks = m_content.annotations;
    const auto hit
        = std::find_if(marks.rbegin(), marks.rend(), [&](const Annotation &mark) { return mark.contains(point); });
    return hit == marks.rend() ? nullptr : &*hit;
}

std::optional<qsizetype> AnnotationStore::indexOf(const QUuid &id) const
{
    const auto &marks = m_content.annotations;
    const auto found = std::ranges::find(marks, id, &Annotation::id);
    return found == marks.end() ? std::nullopt : std::optional(found - marks.begin());
}

void AnnotationStore::setToolStyle(const ToolStyle &style) { assign(m_toolStyle, style); }

void AnnotationStore::adoptStyle(const Annotation &annotation)
{
    ToolStyle style = m_toolStyle;
    style.adopt(annotation);
    setToolStyle(style);
}

void AnnotationStore::applyStyleToSelection(Undo undo)
{
    updateSelection(undo, [this](Annotation &mark) {
        m_toolStyle.applyTo(mark);
        const bool isNumber = mark.kind == AnnotationKind::Stamp && mark.stamp == StampKind::Number;
        if (isNumber && mark.text.isEmpty())
            mark.text = QString::number(m_content.nextStampNumber++);
    });
}

void AnnotationStore::activate(Tool tool)
{
    if (tool == Tool::Crop) {
        m_tool = tool;
        beginCrop();
        return;
    }
    m_isCropping = false;
    m_tool = tool;
    if (tool != Tool::Select)
        m_selectedID.reset();
    Q_EMIT changed();
}

void AnnotationStore::setCropRect(const QRectF &rect) { assign(m_cropRect, rect); }

void AnnotationStore::setResizing(bool open) { assign(m_isResizing, open); }
void AnnotationStore::setSharpening(bool open) { assign(m_isSharpening, open); }
void AnnotationStore::setHasUnsavedChanges(bool unsaved) { assign(m_hasUnsavedChanges, unsaved); }
void AnnotationStore::setDocumentURL(std::optional<QUrl> url) { assign(m_documentURL, std::move(url)); }

void AnnotationStore::markExported()
{
    if (!m_documentURL)
        setHasUnsavedChanges(false);
}

} // namespace tessaly
