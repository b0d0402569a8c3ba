// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasMenu.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/CanvasController.h"
#include "ui/Editor/Canvas/CanvasCommands.h"
#include "ui/Editor/Canvas/CanvasLayer.h"
#include "ui/Editor/Canvas/TextEditor.h"
#include "ui/Menu/ContextMenu.h"
#include "ui/Style/Icons.h"

#include <QCoreApplication>
#include <QMenu>

#include <initializer_list>

namespace tessaly {

namespace {

void addAll(QMenu &menu, CommandTarget &target, std::initializer_list<CommandId> commands)
{
    for (const CommandId command : commands)
        addCommand(menu, command, target);
}

} // namespace

CanvasMenu::CanvasMenu(QWidget &widget, AnnotationStore &store, const CanvasController &controller,
    CanvasCommands &commands, TextEditor &text, CommandTarget &requests, const CanvasLayerSlot &layer) :
    m_widget(widget),
    m_store(store),
    m_controller(controller),
    m_commands(commands),
    m_text(text),
    m_requests(requests),
    m_layer(layer)
{
}

void CanvasMenu::openAt(QPointF view)
{
    if (m_text.isActive() && !m_text.isOver(view))
        m_text.finish();
    if (!m_text.isActive() && m_layer->openMenu(view))
        return;
    if (!m_text.isActive() && !m_store.isCropping()) {
        const auto mark = m_controller.markAt(view);
        m_store.setSelectedID(mark);
        if (const Annotation *selected = m_store.selected())
            m_store.adoptStyle(*selected);
    }
    open(view);
}

void CanvasMenu::openForSelection()
{
    if (!m_text.isActive() && m_layer->openMenu({}))
        return;
    const QRectF everything(m_widget.rect());
    QPointF place = everything.center();
    if (const Annotation *selected = m_store.selected()) {
        const QRectF box = m_controller.transform().toView(m_controller.visibleBox(selected->id)) & everything;
        if (!box.isEmpty())
            place = box.center();
    }
    open(place);
}

void CanvasMenu::open(QPointF view)
{
    if (m_menu || m_store.isCropping())
        return;
    m_menu = new QMenu(&m_widget);
    m_menu->setAttribute(Qt::WA_DeleteOnClose);
    if (m_text.isActive())
        fillForText(*m_menu);
    else if (m_store.selected())
        fillForMark(*m_menu);
    else
        fillForCanvas(*m_menu, m_controller.transform().toImage(view));
    m_menu->popup(m_widget.mapToGlobal(view.toPoint()));
}

void CanvasMenu::fillForText(QMenu &menu)
{
    addAll(menu, m_commands, { CommandId::Cut, CommandId::Copy, CommandId::Paste, CommandId::Delete });
}

void CanvasMenu::fillForMark(QMenu &menu)
{
    using enum CommandId;
    addAll(menu, m_commands, { Cut, Copy, Paste, Duplicate, Delete });
    menu.addSeparator();
    addCommand(menu, EditText, m_commands);
    QMenu *order = menu.addMenu(QCoreApplication::translate("Commands", "Order"));
    addAll(*order, m_commands, { BringForward, SendBackward, BringToFront, SendToBack });
    menu.addSeparator();
    addAll(menu, m_commands, { CopyStyle, PasteStyle, SaveStyle });
}

void CanvasMenu::fillForCanvas(QMenu &menu, QPointF imagePoint)
{
    using enum CommandId;
    QAction *paste = menu.addAction(Icons::icon(QLatin1StringView(command(Paste).icon)), tr("Paste Here"));
    paste->setEnabled(m_commands.canPaste());
    connect(paste, &QAction::triggered, this, [this, imagePoint] { m_commands.pasteAt(imagePoint); });
    addAll(menu, m_requests, { CopyImage });
    menu.addSeparator();
    addAll(menu, m_requests, { Crop });
    QMenu *zoom = menu.addMenu(tr("Zoom"));
    addAll(*zoom, m_requests, { ZoomIn, ZoomOut, ActualSize, ZoomToFit });
}

} // namespace tessaly
