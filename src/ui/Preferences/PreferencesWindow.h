// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Preferences/PreferencesPage.h"

class QScrollArea;
class QStackedWidget;
class QTabBar;

namespace tessaly {

/// The settings window. A page is made when it is first shown. It remembers its place and its tab, and deletes itself
/// when it is closed.
class PreferencesWindow : public QWidget {
    Q_OBJECT

public:
    explicit PreferencesWindow(const PreferencesContext &context);

Q_SIGNALS:
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void addTabs();
    void addTabKeys();
    void showPage(int index);
    QWidget *makePage(int index);
    void place();

    PreferencesContext m_with;
    QTabBar *m_tabs;
    QStackedWidget *m_pages;
};

} // namespace tessaly
