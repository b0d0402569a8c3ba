// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/EditorZoom.h"
#include "core/Export/ExportFormat.h"
#include "ui/Editor/EditorServices.h"
#include "ui/Menu/CommandTarget.h"

#include <QObject>

namespace tessaly {

class CanvasView;

/// The commands that act on the whole capture: saving, sharing, undo, zoom, and edits of the picture.
class EditorActions : public QObject, public CommandTarget {
    Q_OBJECT

public:
    /// Keeps the references; `window` is what dialogs lie over.
    EditorActions(
        AnnotationStore &store, EditorZoom &zoom, CanvasView &canvas, const EditorServices &services, QWidget &window);

    bool knows(CommandId command) const override;
    bool canPerform(CommandId command) const override;
    void perform(CommandId command) override;

    void exportAs(ExportFormat format);
    void chooseImage(std::optional<QPointF> at);
    void applyCrop();

Q_SIGNALS:
    void message(const QString &sentence);

private:
    struct Row {
        CommandId id;
        void (EditorActions::*act)();
        bool (EditorActions::*can)() const = nullptr; ///< always without
    };
    static std::span<const Row> rows();
    static const Row *rowOf(CommandId command);

    void save();
    void saveAsDocument();
    void exportImage();
    void copyImage();
    void share();
    bool canShare() const;
    void copyText();
    void undo() { m_store.undo(); }
    void redo() { m_store.redo(); }
    bool canUndo() const { return m_store.canUndo(); }
    bool canRedo() const { return m_store.canRedo(); }
    void zoomIn() { m_zoom.zoomIn(); }
    void zoomOut() { m_zoom.zoomOut(); }
    void actualSize() { m_zoom.actualSize(); }
    void zoomToFit() { m_zoom.fit(m_store.frameLayout().canvasSize); }
    void rotateLeft();
    void rotateRight();
    void flipHorizontally();
    void flipVertically();
    void resize();
    void sharpen();
    void crop();
    void pin();
    bool canPin() const { return bool(m_services.pin); }
    bool isNotCropping() const { return !m_store.isCropping(); }

    AnnotationStore &m_store;
    EditorZoom &m_zoom;
    CanvasView &m_canvas;
    const EditorServices &m_services;
    QWidget &m_window;
};

} // namespace tessaly
