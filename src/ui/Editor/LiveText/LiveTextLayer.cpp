// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/LiveText/LiveTextLayer.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/CanvasController.h"
#include "core/Rendering/HiddenParts.h"
#include "ui/Editor/Canvas/CanvasView.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineF>
#include <QStyleHints>

#include <utility>

namespace tessaly {

namespace {
constexpr double dragThreshold = 4; ///< view pixels that a click may tremble
}

LiveTextLayer::LiveTextLayer(AnnotationStore &store, CanvasView &canvas) :
    m_store(store),
    m_canvas(canvas),
    m_menu(canvas)
{
    m_tripleClick.setSingleShot(true);
    connect(&m_menu, &LiveTextMenu::copyRequested, this, &LiveTextLayer::copy);
    connect(&m_menu, &LiveTextMenu::selectAllRequested, this, [this] {
        m_selection.selectAll();
        announce();
    });
}

void LiveTextLayer::setContent(const RecognizedContent &content)
{
    m_drag = Drag::None;
    m_hoveredCode.reset();
    m_selection = LiveTextSelection(content, m_store.image().pointSize);
    m_hidden.clear();
    followMarks();
    announce();
}

void LiveTextLayer::followMarks()
{
    QList<QRectF> hidden = HiddenParts::areas(m_store.annotations());
    if (hidden != m_hidden) {
        m_hidden = std::move(hidden);
        const QSizeF size = m_store.image().pointSize;
        QList<QRectF> parts;
        for (const QRectF &area : std::as_const(m_hidden))
            parts += QRectF(area.x() / size.width(), area.y() / size.height(), area.width() / size.width(),
                area.height() / size.height());
        m_selection.setHidden(parts);
        Q_EMIT changed();
    }
    if (m_store.selectedID() || m_store.isCropping())
        clearSelection();
}

bool LiveTextLayer::isInteractive() const { return !m_store.isCropping() && !m_canvas.isEditingText(); }

QPointF LiveTextLayer::part(QPointF view) const
{
    const QPointF point = m_canvas.controller().transform().toImage(view);
    const QSizeF size = m_store.image().pointSize;
    return { point.x() / size.width(), point.y() / size.height() };
}

QRectF LiveTextLayer::points(const QRectF &part) const
{
    const QSizeF size = m_store.image().pointSize;
    return { part.x() * size.width(), part.y() * size.height(), part.width() * size.width(),
        part.height() * size.height() };
}

const RecognizedContent::Code *LiveTextLayer::codeAt(QPointF view) const { return m_selection.codeAt(part(view)); }

bool LiveTextLayer::isOver(QPointF view) const
{
    return isInteractive() && (codeAt(view) || m_selection.isOverText(part(view)))
        && !m_canvas.controller().meansMark(view);
}

Qt::CursorShape LiveTextLayer::cursorAt(QPointF view) const
{
    return m_drag != Drag::Text && codeAt(view) ? Qt::PointingHandCursor : Qt::IBeamCursor;
}

void LiveTextLayer::hover(std::optional<QPointF> view)
{
    const auto *code = view && isOver(*view) ? codeAt(*view) : nullptr;
    const auto box = code ? std::optional(code->boundingBox) : std::nullopt;
    if (std::exchange(m_hoveredCode, box) != box)
        Q_EMIT changed();
}

void LiveTextLayer::begin(Drag drag, const PointerInput &input)
{
    m_drag = drag;
    m_hasLeftPlace = false;
    m_pressedAt = input.position;
    m_store.setSelectedID({});
}

bool LiveTextLayer::press(const PointerInput &input)
{
    if (input.button != Qt::LeftButton || !isOver(input.position)) {
        clearSelection();
        return false;
    }
    const bool isThird = m_tripleClick.isActive() && QLineF(m_pressedAt, input.position).length() <= dragThreshold;
    m_tripleClick.stop();
    begin(codeAt(input.position) ? Drag::Code : Drag::Text, input);
    if (m_drag == Drag::Code)
        m_selection.clear();
    else if (isThird)
        m_selection.selectAt(part(input.position), LiveTextSelection::Unit::Line);
    else if (input.modifiers.testFlag(Qt::ShiftModifier) && !m_selection.isEmpty())
        m_selection.extendTo(part(input.position));
    else
        m_selection.begin(part(input.position));
    announce();
    return true;
}

bool LiveTextLayer::doubleClick(const PointerInput &input)
{
    if (!isOver(input.position) || codeAt(input.position))
        return press(input);
    begin(Drag::Text, input);
    m_selection.selectAt(part(input.position), LiveTextSelection::Unit::Word);
    m_tripleClick.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    announce();
    return true;
}

void LiveTextLayer::drag(const PointerInput &input)
{
    m_hasLeftPlace = m_hasLeftPlace || QLineF(m_pressedAt, input.position).length() > dragThreshold;
    if (m_drag != Drag::Text || !m_hasLeftPlace)
        return;
    m_selection.extendTo(part(input.position));
    Q_EMIT changed();
}

void LiveTextLayer::release(const PointerInput &input)
{
    const Drag ended = std::exchange(m_drag, Drag::None);
    if (ended == Drag::Text)
        announce();
    const auto *code = ended == Drag::Code && !m_hasLeftPlace ? codeAt(input.position) : nullptr;
    if (code && input.button == Qt::LeftButton)
        m_menu.openForCode(input.position, *code);
}

bool LiveTextLayer::key(const QKeyEvent &event)
{
    if (m_selection.isEmpty())
        return false;
    const bool isAll = event.matches(QKeySequence::SelectAll);
    if (!isAll && event.key() != Qt::Key_Escape)
        return false;
    if (isAll)
        m_selection.selectAll();
    else
        m_selection.clear();
    m_drag = Drag::None;
    announce();
    return true;
}

bool LiveTextLayer::openMenu(std::optional<QPointF> view)
{
    if (!view) {
        if (m_selection.isEmpty())
            return false;
        const QRectF box = m_canvas.controller().transform().toView(points(m_selection.boxes().last()));
        m_menu.openForText((box & QRectF(m_canvas.rect())).center());
        return true;
    }
    if (!isOver(*view)) {
        clearSelection();
        return false;
    }
    m_store.setSelectedID({});
    if (const auto *code = codeAt(*view)) {
        m_menu.openForCode(*view, *code);
        return true;
    }
    if (!m_selection.contains(part(*view))) {
        m_selection.selectAt(part(*view), LiveTextSelection::Unit::Word);
        announce();
    }
    m_menu.openForText(*view);
    return true;
}

LayerMarks LiveTextLayer::marks() const
{
    LayerMarks marks { m_canvas.palette().color(QPalette::Highlight) };
    constexpr double air = 0.12; // of the height: the boxes end where the letters do
    for (const QRectF &box : m_selection.boxes()) {
        const QRectF line = points(box);
        const double by = air * line.height();
        marks.selection += line.adjusted(-by / 2, -by, by / 2, by);
    }
    if (m_hoveredCode)
        marks.framed = points(*m_hoveredCode);
    return marks;
}

void LiveTextLayer::clearSelection()
{
    if (m_selection.isEmpty())
        return;
    m_selection.clear();
    announce();
}

/// For the eye and, once the pointer is up, for a screen reader.
void LiveTextLayer::announce()
{
    Q_EMIT changed();
    if (m_drag == Drag::None)
        m_canvas.setAccessibleDescription(
            m_selection.isEmpty() ? QString() : tr("Selected text: %1").arg(m_selection.text()));
}

} // namespace tessaly
