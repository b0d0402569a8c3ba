// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Tool.h"
#include "core/Annotation/ToolStyle.h"
#include "core/Annotation/UndoHistory.h"
#include "core/Frame/FrameLayout.h"
#include "core/Imaging/ImageEdit.h"

#include <QObject>
#include <QUrl>

#include <functional>

namespace tessaly {

class Settings;

/// Whether an operation leaves an undo step. A gesture records once, at its start, and then changes without recording.
enum class Undo { Record, Skip };

/// The editing model of one open capture: the picture, its marks, frame and watermark, and their undo.
///
/// Every call that changes something that can be read here emits `changed()` once. Main thread only.
class AnnotationStore : public QObject {
    Q_OBJECT

public:
    /// New marks start with the style that `settings` hold now; they are not kept.
    AnnotationStore(RasterImage image, const Settings &settings, QObject *parent = nullptr);

    const RasterImage &image() const { return m_content.image; }
    const QList<Annotation> &annotations() const { return m_content.annotations; }
    int nextStampNumber() const { return m_content.nextStampNumber; }
    const std::optional<FrameStyle> &frame() const { return m_content.frame; }
    const std::optional<Watermark> &watermark() const { return m_content.watermark; }

    /// Undoable parts set directly: a change that the user may take back calls beginChange() first.
    void setImage(RasterImage image);
    void setAnnotations(QList<Annotation> annotations);
    void append(Annotation annotation);
    void setNextStampNumber(int number);
    void setFrame(std::optional<FrameStyle> frame, Undo undo);
    void setWatermark(std::optional<Watermark> watermark, Undo undo);

    /// Takes over all five parts of a snapshot; no undo step.
    void restore(const Snapshot &snapshot);
    const Snapshot &currentSnapshot() const { return m_content; }

    QSize pixelDimensions() const { return m_content.image.pixelSize(); }
    double pixelScale() const { return m_content.image.pixelScale(); }
    int dpi() const { return m_content.image.dpi(); }

    /// A frame is set, or a watermark that can be seen: exports then show the framed composition.
    bool hasPresentation() const;
    FrameLayout frameLayout() const { return { m_content.image.pointSize, m_content.frame, pixelScale() }; }

    /// Records one undo step; call it before the change.
    void beginChange();
    void undo();
    void redo();
    bool canUndo() const { return m_history.canUndo(); }
    bool canRedo() const { return m_history.canRedo(); }

    /// While a step is held open, further changes of marks belong to it. Undo, redo and edits of the picture end that.
    void setStepOpen(bool open) { m_isStepOpen = open; }

    /// Takes back the creation of a mark that turned out empty: its step is forgotten, and with it that there were
    /// unsaved changes, unless there were some before.
    void cancelLastChange(const QUuid &removing);

    /// The selected mark; null when none is. It stands until the next change.
    const Annotation *selected() const;
    const std::optional<QUuid> &selectedID() const { return m_selectedID; }
    void setSelectedID(std::optional<QUuid> id);
    void updateSelection(Undo undo, const std::function<void(Annotation &)> &change);
    void deleteSelected();

    /// The top-most mark that a click at the point means; null when there is none.
    const Annotation *annotationAt(QPointF point) const;
    std::optional<qsizetype> indexOf(const QUuid &id) const;

    const ToolStyle &toolStyle() const { return m_toolStyle; }
    void setToolStyle(const ToolStyle &style);

    /// Copies the style of a mark into that of new marks, so that the options show what is selected.
    void adoptStyle(const Annotation &annotation);

    /// Gives the selected mark the style of new marks. A stamp that becomes a number takes the next one.
    void applyStyleToSelection(Undo undo);

    Tool tool() const { return m_tool; }

    /// Switches the tool. Any tool but crop leaves crop mode without cropping; any but select clears the selection.
    void activate(Tool tool);

    bool isCropping() const { return m_isCropping; }
    const QRectF &cropRect() const { return m_cropRect; }
    CropAspect cropAspect() const { return m_cropAspect; }
    bool cropLock() const { return m_lockedCropRatio.has_value(); }

    /// Width to height that the crop rectangle keeps: that of the constraint, else the one that is locked.
    std::optional<double> cropRatio() const;

    void setCropRect(const QRectF &rect);

    /// The rectangle takes the ratio on where it is; a free one stays as it is.
    void setCropAspect(CropAspect aspect);

    /// Locks the ratio that the rectangle has now.
    void setCropLock(bool locked);

    /// Sets one side of the rectangle, as far as the picture reaches. Where a ratio is kept, the other side follows.
    void setCropWidth(int pixels);
    void setCropHeight(int pixels);

    /// Enters crop mode over the whole picture, free of any ratio.
    void beginCrop();

    /// Cuts the picture to the crop rectangle, its sides moved to whole pixels, as one undo step and leaves crop mode
    /// for selecting. The sentence for the user when the rectangle cannot be cut out; then nothing changes.
    Outcome applyCrop();
    void cancelCrop();

    /// Whole edits of the picture, each one undo step. Every mark stays on its content. An edit that cannot be made, or
    /// that makes no difference, leaves no step.
    void rotate(bool clockwise);
    void flipHorizontal();
    void flipVertical();
    void resize(int toPixelWidth, int height);
    void sharpen(double amount);

    /// The same for an edit whose picture was computed elsewhere: `result` is what applied() makes of the present
    /// image(). Undo relies on that.
    void commit(const ImageEdit &edit, RasterImage result);

    bool isResizing() const { return m_isResizing; }
    bool isSharpening() const { return m_isSharpening; }
    void setResizing(bool open);
    void setSharpening(bool open);

    bool hasUnsavedChanges() const { return m_hasUnsavedChanges; }
    void setHasUnsavedChanges(bool unsaved);

    /// The document that the capture was opened from or saved to.
    const std::optional<QUrl> &documentURL() const { return m_documentURL; }
    void setDocumentURL(std::optional<QUrl> url);

    /// After an export of the picture. A capture that no document holds may then be closed without a question.
    void markExported();

Q_SIGNALS:
    void changed();

private:
    template <class T>
    void assign(T &member, T value);
    void recordIf(Undo undo);
    void takeOver(std::optional<UndoHistory::Step> step);
    void removeMark(const QUuid &id);
    void cropWholePicture();
    void fitCropToRatio();
    void resizeCrop(QSizeF size);
    void leaveCrop();
    void make(const ImageEdit &edit);
    bool takeEdit(const ImageEdit &edit, RasterImage result);

    Snapshot m_content;
    UndoHistory m_history;
    bool m_isStepOpen = false;
    std::optional<QUuid> m_selectedID;
    ToolStyle m_toolStyle;
    Tool m_tool = Tool::Select;
    bool m_isCropping = false;
    QRectF m_cropRect;
    CropAspect m_cropAspect = CropAspect::Free;
    std::optional<double> m_lockedCropRatio;
    bool m_isResizing = false;
    bool m_isSharpening = false;
    bool m_hasUnsavedChanges = false;
    std::optional<QUrl> m_documentURL;
};

} // namespace tessaly
