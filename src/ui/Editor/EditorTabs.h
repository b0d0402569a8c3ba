// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QAction;
class QStackedWidget;
class QTabBar;

namespace tessaly {

class EditorView;

/// The editors of one window: a tab each, once there are two.
class EditorTabs : public QWidget {
    Q_OBJECT

public:
    /// `newTab` is the window's action; its button stands behind the tabs.
    explicit EditorTabs(QAction *newTab, QWidget *parent = nullptr);

    /// Takes the view over and shows it.
    void add(EditorView *view, const QString &title);
    /// Takes it out and deletes it.
    void remove(EditorView *view);
    EditorView *current() const;
    QList<EditorView *> views() const; ///< in the order of the tabs
    void activate(EditorView *view);
    void setTitle(EditorView *view, const QString &title);
    QString title(const EditorView *view) const;
    /// Shows at each tab whether its capture has unsaved changes.
    void showModified();
    void activateNext(int direction);
    QTabBar &bar() { return *m_bar; }

Q_SIGNALS:
    void currentChanged();
    void closeRequested(EditorView *view);

private:
    int indexOf(const EditorView *view) const;
    EditorView *viewAt(int index) const;
    void showCurrent();

    QWidget *m_strip;
    QTabBar *m_bar;
    QStackedWidget *m_stack;
};

} // namespace tessaly
