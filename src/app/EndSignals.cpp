// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EndSignals.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tessaly {

namespace {

constexpr int endingSignals[] { SIGTERM, SIGINT, SIGHUP };

/// A handler can reach nothing else.
volatile std::sig_atomic_t handlerEnd = -1;

void tell(int signal)
{
    const char byte = 0;
    if (::write(static_cast<int>(handlerEnd), &byte, 1) != 1)
        std::raise(signal);
}

void setHandlers(void (*handler)(int), int flags)
{
    struct sigaction action { };
    action.sa_handler = handler;
    action.sa_flags = flags;
    sigemptyset(&action.sa_mask);
    for (const int signal : endingSignals)
        ::sigaction(signal, &action, nullptr);
}

} // namespace

EndSignals::EndSignals(std::function<void()> asked)
{
    if (::pipe2(m_ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return; // the signals then end the program as usual
    m_notifier = std::make_unique<QSocketNotifier>(m_ends[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
        [notifier = m_notifier.get(), asked = std::move(asked)] {
            notifier->setEnabled(false);
            asked();
        });
    handlerEnd = m_ends[1];
    setHandlers(tell, SA_RESTART | static_cast<int>(SA_RESETHAND));
}

EndSignals::~EndSignals()
{
    if (m_ends[0] < 0)
        return;
    setHandlers(SIG_DFL, 0);
    for (const int end : m_ends)
        ::close(end);
}

} // namespace tessaly
