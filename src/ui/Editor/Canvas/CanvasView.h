// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/CanvasController.h"
#include "core/Editing/MarkCommands.h"
#include "ui/Menu/CommandTarget.h"

#include <QWidget>

namespace tessaly {

class CanvasLayer;
class Clipboard;
class EditorZoom;

/// The capture with its marks, to look at and to work on. It fills the space it is given and scrolls by itself.
///
/// It forwards pointer and keys to a CanvasController, paints a LiveCanvas with the controller's adornments, and edits
/// texts in place. It knows the commands that act on marks and texts.
class CanvasView : public QWidget, public CommandTarget {
    Q_OBJECT

public:
    /// What all canvases of the program share; each outlives them.
    struct Services {
        Clipboard &clipboard;
        SavedStyles &styles;
        CopiedStyle &copiedStyle;
        const Clock &clock;
    };
    /// Keeps the references.
    CanvasView(AnnotationStore &store, EditorZoom &zoom, const Services &services, QWidget *parent = nullptr);
    ~CanvasView() override;

    CanvasController &controller();
    const AnnotationStore &store() const;
    /// What is shown, in device pixels and without anything over it, brought up to date.
    const QImage &picture();

    /// What lies over the capture from now on, until the layer is gone.
    void setLayer(CanvasLayer &layer);

    bool isEditingText() const;
    /// Ends the editing of a text, keeping what was written. Call it before a save, an export or a change of tool.
    void finishTextEditing();

    bool knows(CommandId command) const override;
    bool canPerform(CommandId command) const override;
    void perform(CommandId command) override;

Q_SIGNALS:
    /// A sentence to show in passing, in the status bar.
    void message(const QString &sentence);
    /// A picture file shall be chosen and inserted at an image point.
    void imageRequested(QPointF at);
    /// Ctrl+C with nothing selected.
    void copyImageRequested();
    /// A command of the context menu that this canvas does not know itself.
    void commandRequested(CommandId command);
    /// What can be done has changed without a change of the store.
    void commandsChanged();

protected:
    bool event(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void connectParts();

    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
