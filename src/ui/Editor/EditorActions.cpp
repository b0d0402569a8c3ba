// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/EditorActions.h"

#include "core/Base/LongWork.h"
#include "core/Base/SafeFile.h"
#include "core/Desktop/Alerts.h"
#include "core/Document/DocumentActions.h"
#include "core/Editing/MarkClipboard.h"
#include "core/Rendering/HiddenParts.h"
#include "core/Text/TextCopier.h"
#include "ui/Editor/Canvas/CanvasView.h"
#include "ui/Editor/Dialogs/ResizeDialog.h"
#include "ui/Editor/Dialogs/SharpenDialog.h"
#include "ui/Editor/ImageWork.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

namespace tessaly {

EditorActions::EditorActions(
    AnnotationStore &store, EditorZoom &zoom, CanvasView &canvas, const EditorServices &services, QWidget &window) :
    m_store(store),
    m_zoom(zoom),
    m_canvas(canvas),
    m_services(services),
    m_window(window)
{
}

std::span<const EditorActions::Row> EditorActions::rows()
{
    using Id = CommandId;
    static constexpr Row table[] {
        { Id::Save, &EditorActions::save },
        { Id::SaveAsDocument, &EditorActions::saveAsDocument },
        { Id::ExportAs, &EditorActions::exportImage },
        { Id::CopyImage, &EditorActions::copyImage },
        { Id::Share, &EditorActions::share, &EditorActions::canShare },
        { Id::CopyTextFromImage, &EditorActions::copyText },
        { Id::Undo, &EditorActions::undo, &EditorActions::canUndo },
        { Id::Redo, &EditorActions::redo, &EditorActions::canRedo },
        { Id::ZoomIn, &EditorActions::zoomIn },
        { Id::ZoomOut, &EditorActions::zoomOut },
        { Id::ActualSize, &EditorActions::actualSize },
        { Id::ZoomToFit, &EditorActions::zoomToFit },
        { Id::RotateCounterclockwise, &EditorActions::rotateLeft, &EditorActions::isNotCropping },
        { Id::RotateClockwise, &EditorActions::rotateRight, &EditorActions::isNotCropping },
        { Id::FlipHorizontal, &EditorActions::flipHorizontally, &EditorActions::isNotCropping },
        { Id::FlipVertical, &EditorActions::flipVertically, &EditorActions::isNotCropping },
        { Id::ResizeImage, &EditorActions::resize, &EditorActions::isNotCropping },
        { Id::Sharpen, &EditorActions::sharpen, &EditorActions::isNotCropping },
        { Id::Crop, &EditorActions::crop, &EditorActions::isNotCropping },
        { Id::PinToScreen, &EditorActions::pin, &EditorActions::canPin },
    };
    return table;
}

const EditorActions::Row *EditorActions::rowOf(CommandId command)
{
    const auto found = std::ranges::find(rows(), command, &Row::id);
    return found == rows().end() ? nullptr : &*found;
}

bool EditorActions::knows(CommandId command) const { return rowOf(command); }

bool EditorActions::canPerform(CommandId command) const
{
    const Row *row = rowOf(command);
    return row && (!row->can || (this->*row->can)());
}

void EditorActions::perform(CommandId command)
{
    if (!canPerform(command))
        return;
    m_canvas.finishTextEditing(); // what was just written belongs to the picture
    (this->*rowOf(command)->act)();
}

void EditorActions::save()
{
    if (m_services.documents.save(m_store))
        Q_EMIT message(tr("Saved"));
}

void EditorActions::saveAsDocument()
{
    if (m_services.documents.saveAsDocument(m_store))
        Q_EMIT message(tr("Saved"));
}

void EditorActions::exportImage()
{
    if (m_services.documents.exportImage(m_store))
        Q_EMIT message(tr("Saved"));
}

void EditorActions::exportAs(ExportFormat format)
{
    m_canvas.finishTextEditing();
    if (m_services.documents.exportImage(m_store, format))
        Q_EMIT message(tr("Saved"));
}

void EditorActions::copyImage()
{
    const auto picture = m_services.documents.flattened(m_store);
    if (!picture)
        return;
    m_services.exports.copy(*picture, true);
    m_store.markExported();
    Q_EMIT message(tr("Copied to clipboard"));
}

void EditorActions::pin()
{
    if (const auto picture = m_services.documents.flattened(m_store))
        m_services.pin(*picture);
}

bool EditorActions::canShare() const { return m_services.exports.canShare(); }

void EditorActions::share()
{
    if (const auto picture = m_services.documents.flattened(m_store))
        m_services.exports.share(*picture);
}

/// Reads the capture without its marks, but nothing that they hide.
void EditorActions::copyText()
{
    if (!m_services.recognizer.isSupported()) {
        Q_EMIT message(tr("Live Text isn't available on this Mac"));
        return;
    }
    const auto seen = std::make_shared<std::optional<RasterImage>>(); // the worker may outlive this call
    const bool finished = m_services.work.run(tr("Preparing the image…"),
        [seen, capture = m_store.image(), marks = m_store.annotations()](
            const Cancellation &) { *seen = HiddenParts::painted(capture, marks); });
    if (!finished)
        return;
    if (*seen)
        m_services.textCopier.copyText(**seen);
    else
        m_services.alerts.warn(tr("Couldn't read the image"), tr("There isn't enough memory for it."));
}

void EditorActions::rotateLeft() { ImageWork::run(ImageEdit::rotate(false), m_store, m_services); }
void EditorActions::rotateRight() { ImageWork::run(ImageEdit::rotate(true), m_store, m_services); }
void EditorActions::flipHorizontally() { ImageWork::run(ImageEdit::flip(true), m_store, m_services); }
void EditorActions::flipVertically() { ImageWork::run(ImageEdit::flip(false), m_store, m_services); }

void EditorActions::resize()
{
    auto *dialog = new ResizeDialog(m_store.pixelDimensions(), &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_store.setResizing(true);
    connect(dialog, &QDialog::finished, this, [this, dialog](int result) {
        m_store.setResizing(false);
        if (result == QDialog::Accepted)
            ImageWork::run(ImageEdit::resize(dialog->pixelSize()), m_store, m_services);
    });
    dialog->open();
}

void EditorActions::sharpen()
{
    auto *dialog = new SharpenDialog(m_store.image(), m_services.settings, &m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_store.setSharpening(true);
    connect(dialog, &QDialog::finished, this, [this, dialog](int result) {
        m_store.setSharpening(false);
        if (result != QDialog::Accepted)
            return;
        if (const Outcome stored = dialog->remember(); !stored)
            Q_EMIT message(stored.failure().message);
        ImageWork::run(ImageEdit::sharpen(dialog->amount()), m_store, m_services);
    });
    dialog->open();
}

void EditorActions::crop() { m_store.activate(Tool::Crop); }

void EditorActions::applyCrop() { m_canvas.controller().applyCrop(); }

void EditorActions::chooseImage(std::optional<QPointF> at)
{
    m_canvas.finishTextEditing();
    const QString path = QFileDialog::getOpenFileName(
        &m_window, tr("Choose an image"), {}, tr("Images (*.png *.jpg *.jpeg *.webp *.svg *.gif *.tiff *.tif *.bmp)"));
    if (path.isEmpty())
        return;
    QFile file(path);
    const bool readable = file.open(QIODevice::ReadOnly);
    const QString name = QFileInfo(path).fileName();
    const Outcome inserted
        = readable ? insertImage(m_store, file.readAll(), name, at) : Outcome(Failure { file.errorString() });
    if (!inserted)
        m_services.alerts.warn(tr("Couldn't open the image"), inserted.failure().message);
}

} // namespace tessaly
