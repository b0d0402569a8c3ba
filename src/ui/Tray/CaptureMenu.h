// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/CommandTarget.h"

#include <QMenu>

class QActionGroup;

namespace tessaly {

class Settings;
struct CaptureMenuItem;

/// The menu of the tray: captures, timer, pinned screenshots, settings, quit. Its keys are only shown; the global hot
/// keys do the work. Enabled states, displays and the pins' commands are asked again each time that it opens.
class CaptureMenu : public QMenu {
    Q_OBJECT

public:
    /// Keeps both references.
    CaptureMenu(Settings &settings, CommandTarget &program);

private:
    void add(const CaptureMenuItem &item);
    QMenu *submenu(const char *title);
    void addTimer();
    void addDisplays();
    void refresh();
    void refreshDisplays();
    void refreshTimer();

    Settings &m_settings;
    CommandTarget &m_program;
    QList<std::pair<QAction *, const CaptureMenuItem *>> m_actions;
    QActionGroup *m_delays = nullptr;
    QMenu *m_displays = nullptr;
    QList<MenuChoice> m_shownDisplays;
    QAction *m_pinSeparator = nullptr; ///< with nothing pinned there is nothing to divide
};

} // namespace tessaly
