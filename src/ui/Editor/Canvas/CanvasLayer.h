// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/PointerInput.h"
#include "ui/Editor/Canvas/CanvasPainter.h"

#include <QObject>

class QKeyEvent;

namespace tessaly {

/// Something over the capture that takes pointer and keys where it has something to offer, before the tools get them.
/// This one offers nothing. Positions are the view's.
class CanvasLayer : public QObject {
    Q_OBJECT

public:
    /// Whether a press there would be the layer's.
    virtual bool isOver(QPointF view) const;
    virtual Qt::CursorShape cursorAt(QPointF view) const;
    /// The pointer is there with no button down, or away.
    virtual void hover(std::optional<QPointF> view);

    /// The left button. Each is false when it was for someone else; press() is told of those, too.
    virtual bool press(const PointerInput &input);
    virtual bool doubleClick(const PointerInput &input);
    /// From a press that was taken until the release.
    virtual bool isDragging() const;
    virtual void drag(const PointerInput &input);
    virtual void release(const PointerInput &input);

    /// False when the key means nothing here.
    virtual bool key(const QKeyEvent &event);
    virtual bool canCopy() const;
    virtual void copy();
    /// For what lies there, or without a place for what is selected. False when there is nothing to offer.
    virtual bool openMenu(std::optional<QPointF> view);

    virtual LayerMarks marks() const;

Q_SIGNALS:
    /// What the other functions say.
    void changed();
};

/// The layer that a canvas has at present: one that offers nothing until another is set.
class CanvasLayerSlot {
public:
    CanvasLayer *operator->() const { return m_layer; }
    /// Keeps the reference.
    void set(CanvasLayer &layer) { m_layer = &layer; }
    void clear() { m_layer = &m_nothing; }

private:
    CanvasLayer m_nothing;
    CanvasLayer *m_layer = &m_nothing;
};

} // namespace tessaly
