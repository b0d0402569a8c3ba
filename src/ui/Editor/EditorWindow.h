// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Editor/EditorView.h"
#include "ui/Menu/CommandTarget.h"

#include <QMainWindow>

namespace tessaly {

struct DroppedContent;

/// One window with the editors of one or more captures as tabs, its menus, tool bar and status bar.
class EditorWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Keeps the references; `program` performs the commands that no editor knows (opening, quitting, new tabs).
    EditorWindow(const EditorServices &services, CommandTarget &program);
    ~EditorWindow() override;

    /// Adds a tab and shows it. The window owns the view; `title` is the capture's.
    void addEditor(std::unique_ptr<EditorView> view, const QString &title);
    /// Takes the tab away and deletes its view; a window without tabs closes.
    void removeEditor(EditorView *view);
    EditorView *currentEditor() const;
    QList<EditorView *> editors() const;
    void activate(EditorView *view);
    void setEditorTitle(EditorView *view, const QString &title);

    /// The nominal height of the window's chrome above the canvas in points: 122 with the options bar, 77 without.
    /// That is the tool bar (77) and the options bar (45) at the default font. Not counted are the menu bar, which some
    /// desktops take out of the window, and the tabs, which are there from the second capture on.
    int chromeHeight() const;

Q_SIGNALS:
    /// A tab, or the window with all of them, shall close: ask first, then removeEditor().
    void closeRequested(const QList<EditorView *> &editors);
    /// A file was chosen from the recent ones.
    void openRequested(const QString &path);
    /// Something was dropped that the canvas did not take.
    void dropped(const DroppedContent &content);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
