// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QMenu;

namespace tessaly {

/// Tessaly's icon in the tray of the desktop, while it is wanted and there is a tray. One for the program; main thread
/// only.
class TrayPresence : public QObject {
    Q_OBJECT

public:
    /// The menu is made when the icon first shows, and kept.
    explicit TrayPresence(std::function<std::unique_ptr<QMenu>()> menu);
    ~TrayPresence() override;

    enum class State {
        Off, ///< not wanted
        Waiting, ///< the tray has some seconds to appear
        Shown,
        NoTray, ///< this desktop has none; should one appear later the icon shows in it
    };
    State state() const;
    /// While it waits: a tray has been found, and the icon is about to show in it.
    bool isSettling() const;

    /// Shows the icon as soon as there is a tray, or takes it away.
    void setWanted(bool wanted);

Q_SIGNALS:
    void stateChanged();
    /// The user has clicked the icon itself.
    void activated();

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
