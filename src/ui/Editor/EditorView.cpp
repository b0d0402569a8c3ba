// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/EditorView.h"

#include "core/Preferences/Settings.h"
#include "ui/Editor/Canvas/CanvasView.h"
#include "ui/Editor/EditorActions.h"
#include "ui/Editor/EditorStatus.h"
#include "ui/Editor/LiveText/LiveTextOverlay.h"
#include "ui/Editor/Options/OptionsBar.h"
#include "ui/Editor/Options/StyleMenu.h"
#include "ui/Editor/ToolSidebar.h"
#include "ui/Style/Appearance.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace tessaly {

EditorView::EditorView(std::unique_ptr<AnnotationStore> store, const EditorServices &services, QWidget *parent) :
    QWidget(parent),
    m_services(services),
    m_store(std::move(store)),
    m_canvas(new CanvasView(
        *m_store, m_zoom, { services.clipboard, services.styles, services.copiedStyle, services.clock }, this)),
    m_actions(std::make_unique<EditorActions>(*m_store, m_zoom, *m_canvas, services, *this)),
    m_options(new OptionsBar(
        *m_store, { services.settings, services.styles, services.frameSettings, services.alerts }, this)),
    m_sidebar(new ToolSidebar(*m_store, this)),
    m_status(new EditorStatus(*m_store, m_zoom, this)),
    m_liveText(std::make_unique<LiveTextOverlay>(*m_store, *m_canvas,
        LiveTextOverlay::Services { services.recognizer, services.textCopier, services.clipboard, services.links }))
{
    lay();
    connectParts();
    setFocusProxy(m_canvas);
    followSettings();
}

EditorView::~EditorView()
{
    // Before the store that they look at.
    qDeleteAll(findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly));
}

void EditorView::lay()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(m_sidebar);
    row->addWidget(m_canvas, 1);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_options);
    column->addLayout(row, 1);
    column->addWidget(m_status);
    setTabOrder(m_options, m_sidebar);
    setTabOrder(m_sidebar, m_canvas);
}

void EditorView::connectParts()
{
    connect(m_store.get(), &AnnotationStore::changed, this, &EditorView::commandsChanged);
    connect(m_canvas, &CanvasView::message, m_status, &EditorStatus::showMessage);
    connect(m_canvas, &CanvasView::imageRequested, this, [this](QPointF at) { m_actions->chooseImage(at); });
    connect(m_canvas, &CanvasView::copyImageRequested, this, [this] { perform(CommandId::CopyImage); });
    connect(m_canvas, &CanvasView::commandsChanged, this, &EditorView::commandsChanged);
    connect(m_canvas, &CanvasView::commandRequested, this, [this](CommandId command) {
        if (knows(command))
            perform(command);
        else
            Q_EMIT commandRequested(command);
    });
    connect(m_actions.get(), &EditorActions::message, m_status, &EditorStatus::showMessage);
    connect(m_options, &OptionsBar::message, m_status, &EditorStatus::showMessage);
    connect(m_options, &OptionsBar::imageRequested, this, [this] { m_actions->chooseImage({}); });
    connect(m_options, &OptionsBar::cropApplyRequested, this, [this] { m_actions->applyCrop(); });
    connect(m_options, &OptionsBar::cropCancelRequested, this, [this] { m_store->cancelCrop(); });
    connect(m_options, &OptionsBar::finished, this, [this] { m_canvas->setFocus(Qt::OtherFocusReason); });
    connect(m_sidebar, &ToolSidebar::chosen, this, &EditorView::chooseTool);
}

void EditorView::chooseTool(Tool tool)
{
    m_canvas->finishTextEditing();
    m_store->activate(tool);
}

void EditorView::exportAs(ExportFormat format) { m_actions->exportAs(format); }
void EditorView::showMessage(const QString &sentence) { m_status->showMessage(sentence); }

void EditorView::followSettings()
{
    m_options->setVisible(m_services.settings.value(SettingKeys::showOptionsBar));
    m_options->refresh();
    m_liveText->setEnabled(m_services.settings.value(SettingKeys::liveTextEnabled));
}

QSize EditorView::surroundings() const
{
    const int bar = m_options->isHidden() ? 0 : std::max(m_options->sizeHint().height(), m_options->minimumHeight());
    return { m_sidebar->sizeHint().width(), bar + m_status->sizeHint().height() };
}

/// The canvas comes first: while a text is edited, undo and the clipboard are about the text.
CommandTarget *EditorView::targetOf(CommandId command) const
{
    if (m_canvas->knows(command) && (!m_actions->knows(command) || m_canvas->canPerform(command)))
        return m_canvas;
    return m_actions->knows(command) ? m_actions.get() : nullptr;
}

bool EditorView::knows(CommandId command) const { return command == CommandId::SaveStyle || targetOf(command); }

bool EditorView::canPerform(CommandId command) const
{
    if (command == CommandId::SaveStyle)
        return m_options->styleMenu().canSave();
    const CommandTarget *target = targetOf(command);
    return target && target->canPerform(command);
}

void EditorView::perform(CommandId command)
{
    if (command == CommandId::SaveStyle)
        m_options->styleMenu().save();
    else if (CommandTarget *target = targetOf(command))
        target->perform(command);
}

void EditorView::keyPressEvent(QKeyEvent *event)
{
    // Escape in a field or on a button of the options goes back to the canvas.
    if (event->key() == Qt::Key_Escape && !m_canvas->hasFocus())
        m_canvas->setFocus(Qt::OtherFocusReason);
    else
        QWidget::keyPressEvent(event);
}

void EditorView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    followSettings();
    if (m_hasBeenShown)
        return;
    m_hasBeenShown = true;
    m_canvas->setFocus(Qt::OtherFocusReason);
}

} // namespace tessaly
