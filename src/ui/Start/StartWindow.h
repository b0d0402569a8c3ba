// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Start/StartView.h"

#include <QMainWindow>

namespace tessaly {

class StartCommands;

/// The window around the start view. It remembers where it was, and is only hidden when it is closed.
class StartWindow : public QMainWindow {
    Q_OBJECT

public:
    StartWindow(const StartServices &services, StartRequests requests);
    /// Remembers where it is when it is still shown.
    ~StartWindow() override;

    /// Shows it, or brings it to the front.
    void bringToFront();
    void setHint(const QString &sentence) { m_view->setHint(sentence); }

Q_SIGNALS:
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void place();
    void rememberPlace();

    Settings &m_settings;
    std::unique_ptr<StartCommands> m_commands; ///< none without a program
    StartView *m_view;
};

} // namespace tessaly
