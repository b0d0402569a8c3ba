// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text/LiveTextSelection.h"
#include "ui/Editor/Canvas/CanvasLayer.h"
#include "ui/Editor/LiveText/LiveTextMenu.h"

#include <QTimer>

namespace tessaly {

class AnnotationStore;
class CanvasView;

/// Selecting the words that were read on a capture, with pointer and keys. Where a mark lies, a press means the mark;
/// what marks hide is not there.
class LiveTextLayer final : public CanvasLayer {
    Q_OBJECT

public:
    /// Keeps the references.
    LiveTextLayer(AnnotationStore &store, CanvasView &canvas);

    /// What was read in the capture that is shown now; nothing is selected then.
    void setContent(const RecognizedContent &content);
    /// Marks may hide other parts, or one may be selected.
    void followMarks();

    LiveTextMenu &menu() { return m_menu; }

    bool isOver(QPointF view) const override;
    Qt::CursorShape cursorAt(QPointF view) const override;
    void hover(std::optional<QPointF> view) override;
    bool press(const PointerInput &input) override;
    bool doubleClick(const PointerInput &input) override;
    bool isDragging() const override { return m_drag != Drag::None; }
    void drag(const PointerInput &input) override;
    void release(const PointerInput &input) override;
    bool key(const QKeyEvent &event) override;
    bool canCopy() const override { return !m_selection.isEmpty(); }
    void copy() override { Q_EMIT copyRequested(m_selection.text()); }
    bool openMenu(std::optional<QPointF> view) override;
    LayerMarks marks() const override;

Q_SIGNALS:
    void copyRequested(const QString &text);

private:
    enum class Drag { None, Code, Text };

    bool isInteractive() const;
    /// From the view to parts of the picture, and back to image points.
    QPointF part(QPointF view) const;
    QRectF points(const QRectF &part) const;
    const RecognizedContent::Code *codeAt(QPointF view) const;
    void begin(Drag drag, const PointerInput &input);
    void clearSelection();
    void announce();

    AnnotationStore &m_store;
    CanvasView &m_canvas;
    LiveTextMenu m_menu;
    LiveTextSelection m_selection;
    QList<QRectF> m_hidden; ///< image points
    std::optional<QRectF> m_hoveredCode; ///< part of the picture
    Drag m_drag = Drag::None;
    bool m_hasLeftPlace = false;
    QPointF m_pressedAt;
    QTimer m_tripleClick;
};

} // namespace tessaly
