// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/ToastsBetweenCaptures.h"

#include "core/Capture/CaptureService.h"

namespace tessaly {

void ToastsBetweenCaptures::setCaptures(const CaptureService &captures)
{
    m_captures = &captures;
    connect(&captures, &CaptureService::becameIdle, this, &ToastsBetweenCaptures::showKept);
    connect(&captures, &QObject::destroyed, this, [this] { m_captures = nullptr; });
}

void ToastsBetweenCaptures::showOrKeep(std::optional<std::function<void()>> &kept, std::function<void()> toast)
{
    if (m_captures && m_captures->isBusy())
        kept = std::move(toast);
    else
        toast();
}

void ToastsBetweenCaptures::showKept()
{
    for (auto *kept : { &m_keptLink, &m_keptNotice }) {
        if (const auto toast = std::exchange(*kept, std::nullopt))
            (*toast)();
    }
}

void ToastsBetweenCaptures::show(const QString &message, std::chrono::milliseconds duration)
{
    showOrKeep(m_keptNotice, [this, message, duration] { m_shown.show(message, duration); });
}

void ToastsBetweenCaptures::showLink(const QString &message, const QString &host, std::function<void()> onOpen)
{
    m_keptNotice.reset(); // a link takes the place of the notice, as it does when both are shown
    showOrKeep(
        m_keptLink, [this, message, host, onOpen = std::move(onOpen)] { m_shown.showLink(message, host, onOpen); });
}

} // namespace tessaly
