// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasView.h"

#include "ui/Editor/Canvas/CanvasAccessible.h"
#include "ui/Editor/Canvas/CanvasDrop.h"
#include "ui/Editor/Canvas/CanvasParts.h"

#include <QDropEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QWheelEvent>

namespace tessaly {

CanvasView::CanvasView(AnnotationStore &store, EditorZoom &zoom, const Services &services, QWidget *parent) :
    QWidget(parent)
{
    // Not among the initialisers: the scroll bars' coming is an event already.
    m_implementation = std::make_unique<Implementation>(*this, store, zoom, services);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    grabGesture(Qt::PinchGesture);
    setMinimumSize(120, 120);
    CanvasAccessible::install();
    connectParts();
}

CanvasView::~CanvasView() = default;

void CanvasView::connectParts()
{
    auto &[store, layer, geometry, controller, viewport, surface, navigation, bars, text, pointer, commands, requests,
        keys, menu]
        = *m_implementation;
    const auto invalidate = [&surface = surface] { surface.invalidate(); };
    connect(&store, &AnnotationStore::changed, &navigation, &CanvasNavigation::followLayout);
    connect(&store, &AnnotationStore::changed, &surface, invalidate);
    connect(&controller, &CanvasController::adornmentsChanged, &surface, invalidate);
    connect(&navigation, &CanvasNavigation::moved, &surface, invalidate);

    connect(&controller, &CanvasController::failed, this, &CanvasView::message);
    connect(&controller, &CanvasController::imageRequested, this, &CanvasView::imageRequested);
    connect(&controller, &CanvasController::editTextRequested, &text, &TextEditor::begin);
    connect(&controller, &CanvasController::announced, this,
        [this, &navigation = navigation](const QString &sentence, const QRectF &imageRect) {
            navigation.reveal(imageRect);
            CanvasAccessible::announceSelection(*this);
            Q_EMIT message(sentence);
        });

    connect(&text, &TextEditor::marksChanged, &surface,
        [&text = text, &surface = surface] { surface.setTextMarks(text.marks()); });
    connect(&text, &TextEditor::caretMoved, &navigation, &CanvasNavigation::reveal);
    connect(&text, &TextEditor::activeChanged, this, [this](bool active) {
        setAttribute(Qt::WA_InputMethodEnabled, active);
        updateMicroFocus();
        Q_EMIT commandsChanged();
    });
    connect(&text, &TextEditor::caretMoved, this, [this] { updateMicroFocus(); });

    connect(&commands, &CanvasCommands::message, this, &CanvasView::message);
    connect(&commands, &CanvasCommands::copyImageRequested, this, &CanvasView::copyImageRequested);
    connect(&commands, &CanvasCommands::commandRequested, this, &CanvasView::commandRequested);
    connect(&commands, &CanvasCommands::changed, this, &CanvasView::commandsChanged);
    connect(&keys, &CanvasKeys::menuRequested, &menu, &CanvasMenu::openForSelection);
    connect(&keys, &CanvasKeys::focusLeaves, this, [this](bool backwards) { QWidget::focusNextPrevChild(!backwards); });
    connect(&pointer, &CanvasPointer::longPressed, &menu, &CanvasMenu::openAt);
}

CanvasController &CanvasView::controller() { return m_implementation->controller; }
const AnnotationStore &CanvasView::store() const { return m_implementation->store; }

const QImage &CanvasView::picture()
{
    m_implementation->surface.synchronize();
    return m_implementation->surface.picture();
}

void CanvasView::setLayer(CanvasLayer &layer)
{
    m_implementation->layer.set(layer);
    connect(&layer, &CanvasLayer::changed, this, [this] {
        m_implementation->surface.invalidate();
        m_implementation->pointer.updateCursor();
        Q_EMIT commandsChanged();
    });
    connect(&layer, &QObject::destroyed, this, [this] { m_implementation->layer.clear(); });
    m_implementation->surface.invalidate();
}

bool CanvasView::isEditingText() const { return m_implementation->text.isActive(); }
void CanvasView::finishTextEditing() { m_implementation->text.finish(); }
bool CanvasView::knows(CommandId command) const { return m_implementation->commands.knows(command); }
bool CanvasView::canPerform(CommandId command) const { return m_implementation->commands.canPerform(command); }
void CanvasView::perform(CommandId command) { m_implementation->commands.perform(command); }

bool CanvasView::event(QEvent *event)
{
    if (!m_implementation)
        return QWidget::event(event);
    const bool isKept = event->type() == QEvent::ShortcutOverride
        && m_implementation->keys.claims(*static_cast<const QKeyEvent *>(event));
    if (isKept || m_implementation->navigation.gesture(*event)) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void CanvasView::paintEvent(QPaintEvent *event) { m_implementation->surface.paint(*event); }
void CanvasView::moveEvent(QMoveEvent *) { m_implementation->navigation.fitWidget(); }

void CanvasView::resizeEvent(QResizeEvent *)
{
    m_implementation->bars.layOut();
    m_implementation->navigation.fitWidget();
}

void CanvasView::showEvent(QShowEvent *)
{
    m_implementation->navigation.fitWidget();
    m_implementation->surface.invalidate();
}

void CanvasView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        m_implementation->surface.invalidate();
    QWidget::changeEvent(event);
}

void CanvasView::mousePressEvent(QMouseEvent *event) { m_implementation->pointer.press(*event); }
void CanvasView::mouseMoveEvent(QMouseEvent *event) { m_implementation->pointer.move(*event); }
void CanvasView::mouseReleaseEvent(QMouseEvent *event) { m_implementation->pointer.release(*event); }
void CanvasView::mouseDoubleClickEvent(QMouseEvent *event) { m_implementation->pointer.doubleClick(*event); }
void CanvasView::leaveEvent(QEvent *) { m_implementation->pointer.leave(); }

void CanvasView::wheelEvent(QWheelEvent *event)
{
    m_implementation->navigation.wheel(*event);
    event->accept();
}

/// Tab selects marks; keyPressEvent() gives the focus away.
bool CanvasView::focusNextPrevChild(bool) { return false; }
void CanvasView::keyPressEvent(QKeyEvent *event) { event->setAccepted(m_implementation->keys.press(*event)); }
void CanvasView::keyReleaseEvent(QKeyEvent *event) { event->setAccepted(m_implementation->keys.release(*event)); }
void CanvasView::focusInEvent(QFocusEvent *) { m_implementation->text.setFocused(true); }

void CanvasView::focusOutEvent(QFocusEvent *)
{
    m_implementation->pointer.setSpaceHeld(false);
    m_implementation->controller.setModifiers(Qt::NoModifier);
    m_implementation->text.setFocused(false);
}

void CanvasView::inputMethodEvent(QInputMethodEvent *event)
{
    m_implementation->text.compose(*event);
    event->accept();
}

QVariant CanvasView::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const QVariant answer = m_implementation->text.inputMethodQuery(query);
    return answer.isValid() ? answer : QWidget::inputMethodQuery(query);
}

void CanvasView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        m_implementation->menu.openForSelection();
    else if (m_implementation->pointer.mayOpenMenu())
        m_implementation->menu.openAt(event->pos());
}

void CanvasView::dragEnterEvent(QDragEnterEvent *event) { dragMoveEvent(event); }

void CanvasView::dragMoveEvent(QDragMoveEvent *event)
{
    if (CanvasDrop::canTake(*event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void CanvasView::dropEvent(QDropEvent *event)
{
    if (!CanvasDrop::canTake(*event->mimeData())) {
        event->ignore();
        return;
    }
    finishTextEditing();
    auto &parts = *m_implementation;
    const QPointF at = parts.controller.transform().toImage(event->position());
    parts.commands.report(CanvasDrop::take(*event->mimeData(), parts.store, at));
    event->acceptProposedAction();
}

} // namespace tessaly
