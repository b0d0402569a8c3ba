// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/EditorWindow.h"

#include "core/Desktop/DroppedContent.h"
#include "core/Document/DocumentActions.h"
#include "core/Document/RecentDocuments.h"
#include "core/Export/DragFile.h"
#include "core/Preferences/Settings.h"
#include "ui/Editor/Canvas/CanvasView.h"
#include "ui/Editor/Dialogs/ToolBarDialog.h"
#include "ui/Editor/DragOut.h"
#include "ui/Editor/EditorTabs.h"
#include "ui/Editor/EditorToolBar.h"
#include "ui/Editor/Options/OptionsBar.h"
#include "ui/Editor/WindowCommands.h"
#include "ui/Menu/CommandActions.h"
#include "ui/Menu/CommandPalette.h"
#include "ui/Menu/MenuBar.h"
#include "ui/Menu/ShortcutsSheet.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>

namespace tessaly {

class EditorWindow::Implementation {
public:
    Implementation(EditorWindow &window, const EditorServices &services, CommandTarget &program);

    CommandHooks hooks();
    void addOwnCommands();
    void connectParts();
    std::unique_ptr<DragOutData> dragOutData();
    void toggle(const SettingKey<bool> &key);
    void customizeToolBar();
    void followSettings();
    void report(const Outcome &outcome);
    void refresh();
    QSize initialSize(EditorView &view) const;

    EditorWindow &window;
    const EditorServices &services;
    EditorTabs *tabs = nullptr; ///< made after the actions, which ask for the current editor
    WindowCommands commands;
    CommandActions actions;
    DragOutHandle *dragOut;
    EditorToolBar *toolBar;
};

EditorWindow::Implementation::Implementation(
    EditorWindow &window, const EditorServices &services, CommandTarget &program) :
    window(window),
    services(services),
    commands(program, [this] { return tabs ? tabs->current() : nullptr; }),
    actions(&window, hooks()),
    dragOut(new DragOutHandle([this] { return dragOutData(); })),
    toolBar(new EditorToolBar(actions, services.exports.canShare(), dragOut))
{
    tabs = new EditorTabs(actions.action(CommandId::NewTab));
}

CommandHooks EditorWindow::Implementation::hooks()
{
    CommandHooks hooks;
    hooks.target = [this] { return &commands; };
    hooks.isOn = [this](CommandId command) {
        if (command == CommandId::ToggleOptionsBar)
            return services.settings.value(SettingKeys::showOptionsBar);
        if (command == CommandId::ToggleLiveText)
            return services.settings.value(SettingKeys::liveTextEnabled);
        return command == CommandId::ToggleSnapping && tabs && tabs->current()
            && tabs->current()->canvas().controller().snapping();
    };
    hooks.isOffered = [this](CommandId command) {
        switch (command) {
        case CommandId::Share:
            return services.exports.canShare();
        case CommandId::CaptureWindow: // not on every desktop
        case CommandId::CaptureFrontWindow:
            return commands.knows(command);
        default:
            return true;
        }
    };
    hooks.currentTool = [this] {
        EditorView *editor = tabs ? tabs->current() : nullptr;
        return editor ? std::optional(editor->store().tool()) : std::nullopt;
    };
    hooks.chooseTool = [this](Tool tool) {
        if (EditorView *editor = tabs->current())
            editor->chooseTool(tool);
    };
    hooks.exportAs.choices = [] {
        QList<MenuChoice> choices;
        for (const auto &row : enumNames<ExportFormat>)
            choices += { label(row.value), row.raw };
        return choices;
    };
    hooks.exportAs.choose = [this](const QString &raw) {
        EditorView *editor = tabs->current();
        if (const auto format = enumFromRaw<ExportFormat>(raw); format && editor)
            editor->exportAs(*format);
    };
    return hooks;
}

void EditorWindow::Implementation::addOwnCommands()
{
    commands.add(CommandId::ToggleOptionsBar, [this] { toggle(SettingKeys::showOptionsBar); });
    commands.add(CommandId::ToggleLiveText, [this] { toggle(SettingKeys::liveTextEnabled); });
    commands.add(CommandId::KeyboardShortcuts, [this] { ShortcutsSheet::showAbove(window); });
    commands.add(CommandId::CommandPalette, [this] { CommandPalette::open(window, actions, services.palette); });
    commands.add(CommandId::CustomizeToolbar, [this] { customizeToolBar(); });
    commands.add(CommandId::CloseTab, [this] {
        if (EditorView *editor = tabs->current())
            Q_EMIT window.closeRequested({ editor });
    });
}

void EditorWindow::Implementation::connectParts()
{
    QObject::connect(tabs, &EditorTabs::currentChanged, &window, [this] {
        refresh();
        tabs->current()->setFocus(Qt::OtherFocusReason);
    });
    QObject::connect(tabs, &EditorTabs::closeRequested, &window,
        [this](EditorView *view) { Q_EMIT window.closeRequested({ view }); });
    QObject::connect(toolBar, &EditorToolBar::formatChosen, &window, [this](ExportFormat format) {
        if (EditorView *editor = tabs->current())
            editor->exportAs(format);
    });
    QObject::connect(toolBar, &EditorToolBar::zoomChosen, &window, [this](double scale) {
        if (EditorView *editor = tabs->current())
            editor->zoom().setScale(scale);
    });
    QObject::connect(dragOut, &DragOutHandle::explained, &window, [this](const QString &sentence) {
        if (EditorView *editor = tabs->current())
            editor->showMessage(sentence);
    });
    for (const auto &[key, direction] :
        { std::pair(QKeySequence::NextChild, 1), std::pair(QKeySequence::PreviousChild, -1) })
        QObject::connect(new QShortcut(key, &window), &QShortcut::activated, tabs,
            [this, direction = direction] { tabs->activateNext(direction); });
}

std::unique_ptr<DragOutData> EditorWindow::Implementation::dragOutData()
{
    EditorView *editor = tabs->current();
    if (!editor)
        return nullptr;
    editor->canvas().finishTextEditing();
    auto picture = services.documents.flattened(editor->store());
    if (!picture)
        return nullptr;
    return std::make_unique<DragOutData>(std::move(*picture), dragFileName(services.clock), privateTemporaryFolder());
}

/// Tells in the status line that a choice holds for this run only.
void EditorWindow::Implementation::report(const Outcome &outcome)
{
    EditorView *editor = tabs->current();
    if (!outcome && editor)
        editor->showMessage(outcome.failure().message);
}

void EditorWindow::Implementation::toggle(const SettingKey<bool> &key)
{
    report(services.settings.set(key, !services.settings.value(key)));
    followSettings();
    refresh();
}

void EditorWindow::Implementation::customizeToolBar()
{
    ToolBarDialog(toolBar->parts(), &window).exec();
    report(services.settings.set(SettingKeys::toolBarHiddenParts, toolBar->hiddenParts()));
}

void EditorWindow::Implementation::followSettings()
{
    toolBar->setHiddenParts(services.settings.value(SettingKeys::toolBarHiddenParts));
    for (EditorView *view : tabs->views())
        view->followSettings();
}

/// Shows the current editor's name, state and zoom; cheap enough for every change of the capture.
void EditorWindow::Implementation::refresh()
{
    EditorView *editor = tabs->current();
    if (!editor)
        return;
    for (EditorView *view : tabs->views()) {
        // A capture that a document holds is called as its file.
        const auto &document = view->store().documentURL();
        if (document && tabs->title(view) != document->fileName())
            tabs->setTitle(view, document->fileName());
    }
    const QString title = EditorWindow::tr("%1[*] — Tessaly")
                              .arg(tabs->title(editor).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
    if (window.windowTitle() != title)
        window.setWindowTitle(title);
    window.setWindowModified(editor->store().hasUnsavedChanges());
    tabs->showModified();
    toolBar->setZoom(editor->zoom().scale());
    actions.refresh();
}

/// As large as the capture at 100 % needs, where the screen has the room.
QSize EditorWindow::Implementation::initialSize(EditorView &view) const
{
    constexpr int air = 48;
    constexpr QSize least { 900, 640 };
    const QSize canvas = view.store().frameLayout().canvasSize.toSize() + QSize(air, air);
    const int toolBarHeight = std::max(toolBar->sizeHint().height(), toolBar->minimumHeight());
    const QSize chrome = view.surroundings() + QSize(0, toolBarHeight + window.menuBar()->sizeHint().height());
    // A window that covers the screen shows little more of a large capture, and takes its memory several times.
    const QSize screen = window.screen()->availableSize();
    return (canvas + chrome).boundedTo(screen * 0.75).expandedTo(least).boundedTo(screen * 0.92);
}

EditorWindow::EditorWindow(const EditorServices &services, CommandTarget &program)
{
    m_implementation = std::make_unique<Implementation>(*this, services, program);
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_implementation->addOwnCommands();
    fillMenuBar(*menuBar(), m_implementation->actions);
    addToolBar(m_implementation->toolBar);
    setCentralWidget(m_implementation->tabs);
    m_implementation->connectParts();
    m_implementation->followSettings();
}

EditorWindow::~EditorWindow()
{
    // The editors and the bars use the actions, which go with the implementation.
    delete takeCentralWidget();
    m_implementation->tabs = nullptr;
    delete m_implementation->toolBar;
    delete menuBar();
}

void EditorWindow::addEditor(std::unique_ptr<EditorView> view, const QString &title)
{
    Implementation &self = *m_implementation;
    EditorView *added = view.release();
    const bool first = editors().isEmpty();
    connect(added, &EditorView::commandsChanged, this, [this] { m_implementation->refresh(); });
    connect(&added->zoom(), &EditorZoom::changed, this, [this] { m_implementation->refresh(); });
    connect(added, &EditorView::commandRequested, this,
        [this](CommandId command) { m_implementation->commands.perform(command); });
    self.tabs->add(added, title);
    if (first)
        resize(self.initialSize(*added));
}

void EditorWindow::removeEditor(EditorView *view)
{
    m_implementation->tabs->remove(view);
    if (editors().isEmpty())
        close();
}

EditorView *EditorWindow::currentEditor() const { return m_implementation->tabs->current(); }
QList<EditorView *> EditorWindow::editors() const { return m_implementation->tabs->views(); }

void EditorWindow::activate(EditorView *view)
{
    m_implementation->tabs->activate(view);
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void EditorWindow::setEditorTitle(EditorView *view, const QString &title)
{
    m_implementation->tabs->setTitle(view, title);
    m_implementation->refresh();
}

int EditorWindow::chromeHeight() const
{
    const bool options = m_implementation->services.settings.value(SettingKeys::showOptionsBar);
    return EditorToolBar::standardHeight + (options ? OptionsBar::standardHeight : 0);
}

void EditorWindow::closeEvent(QCloseEvent *event)
{
    if (editors().isEmpty())
        return QMainWindow::closeEvent(event);
    Q_EMIT closeRequested(editors());
    event->setAccepted(editors().isEmpty()); // a close() from within this event does nothing
}

void EditorWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || !m_implementation)
        return;
    // Another window may have changed the settings.
    m_implementation->followSettings();
    m_implementation->refresh();
}

void EditorWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!DroppedContent::offered(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void EditorWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    // Afterwards: the program that the files come from waits until this returns, and opening may ask the user.
    const auto tell = [this, content = DroppedContent::taken(*event->mimeData())] { Q_EMIT dropped(content); };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

} // namespace tessaly
