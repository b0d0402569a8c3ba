// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartWindowController.h"

#include "ui/Start/StartWindow.h"

namespace tessaly {

struct StartWindowController::Implementation {
    StartServices services;
    StartRequests requests;
    std::unique_ptr<StartWindow> window; ///< made when it is first shown
    QString hint;
};

StartWindowController::StartWindowController(const StartServices &services, StartRequests requests) :
    m_implementation(new Implementation { services, std::move(requests), nullptr, {} })
{
}

StartWindowController::~StartWindowController() = default;

void StartWindowController::show()
{
    auto &window = m_implementation->window;
    if (!window) {
        window = std::make_unique<StartWindow>(m_implementation->services, m_implementation->requests);
        connect(window.get(), &StartWindow::closed, this, &StartWindowController::closed);
        window->setHint(m_implementation->hint);
    }
    window->bringToFront();
}

bool StartWindowController::isVisible() const
{
    return m_implementation->window && m_implementation->window->isVisible();
}

void StartWindowController::close()
{
    if (!isVisible())
        return;
    const QSignalBlocker quiet(*m_implementation->window); // only what the user closes is told
    m_implementation->window->close();
}

void StartWindowController::setHint(const QString &sentence)
{
    m_implementation->hint = sentence;
    if (m_implementation->window)
        m_implementation->window->setHint(sentence);
}

} // namespace tessaly
