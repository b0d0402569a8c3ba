// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace tessaly {

class DesktopServices;

/// Where the user finds the program: in the tray, by ordinary windows, or, on a desktop without a tray, by the start
/// window, which says how to come back to it.
class Presence : public QObject {
    Q_OBJECT

public:
    /// Nothing shows before one of the next.
    explicit Presence(DesktopServices &services);

    /// From now on there is an icon in the tray when the settings want one, also when they change.
    void showInTray();
    /// The user has started the program to see it: where nothing else shows it soon, the start window does.
    void ensureVisible();

private:
    void followSetting(const QString &key);
    void refresh();
    void handleTray();
    void showWindow();
    void refreshHint();
    QString hint() const;

    DesktopServices &m_services;
    bool m_isInUse = false;
    bool m_wantsWindow = false; ///< where there is no tray
    bool m_standsIn = false; ///< the start window was shown for want of a tray
};

} // namespace tessaly
