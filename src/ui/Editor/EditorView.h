// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/EditorZoom.h"
#include "core/Export/ExportFormat.h"
#include "ui/Editor/EditorServices.h"
#include "ui/Menu/CommandTarget.h"

#include <QWidget>

namespace tessaly {

class CanvasView;
class EditorActions;
class EditorStatus;
class LiveTextOverlay;
class OptionsBar;
class ToolSidebar;

/// The content of one editor tab: options bar, tool sidebar, canvas, status. It turns commands into operations on its
/// capture.
class EditorView : public QWidget, public CommandTarget {
    Q_OBJECT

public:
    /// Takes the store over; keeps the services.
    EditorView(std::unique_ptr<AnnotationStore> store, const EditorServices &services, QWidget *parent = nullptr);
    ~EditorView() override;

    AnnotationStore &store() { return *m_store; }
    EditorZoom &zoom() { return m_zoom; }
    CanvasView &canvas() { return *m_canvas; }
    OptionsBar &optionsBar() { return *m_options; }

    bool knows(CommandId command) const override;
    bool canPerform(CommandId command) const override;
    void perform(CommandId command) override;

    /// Switches the tool as a click in the sidebar does.
    void chooseTool(Tool tool);
    void exportAs(ExportFormat format);
    /// Shows or hides the options bar and live text as the settings say.
    void followSettings();
    void showMessage(const QString &sentence);

    /// What surrounds the canvas, in points: the sidebar's width and the heights of options bar and status.
    QSize surroundings() const;

Q_SIGNALS:
    void commandsChanged();
    /// A command that the window or the program has to do.
    void commandRequested(CommandId command);

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    CommandTarget *targetOf(CommandId command) const;
    void lay();
    void connectParts();

    const EditorServices &m_services;
    std::unique_ptr<AnnotationStore> m_store;
    EditorZoom m_zoom;
    CanvasView *m_canvas;
    std::unique_ptr<EditorActions> m_actions;
    OptionsBar *m_options;
    ToolSidebar *m_sidebar;
    EditorStatus *m_status;
    std::unique_ptr<LiveTextOverlay> m_liveText;
    bool m_hasBeenShown = false;
};

} // namespace tessaly
