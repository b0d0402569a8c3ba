// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppDelegate.h"

#include "app/DesktopServices.h"
#include "app/ProgramEnd.h"

#include <QTimer>

namespace tessaly {

AppDelegate::AppDelegate(DesktopServices &services, ProgramEnd &end) : m_services(services), m_end(end) { }

void AppDelegate::reopen()
{
    if (m_services.editors.hasEditors() || !m_services.hasVisibleWindow())
        return m_services.editors.activateOrOpenBlank();
    m_services.bringWindowsToFront(); // by itself none comes here
}

void AppDelegate::open(const QList<QUrl> &urls)
{
    for (const QUrl &url : urls) {
        const QString path = url.isLocalFile() ? url.toLocalFile() : url.toDisplayString();
        schedule([this, path] { m_services.editors.openFile(path); });
    }
}

void AppDelegate::openHistoryEntries(const QList<QUuid> &entries)
{
    for (const QUuid &entry : entries)
        schedule([this, entry] {
            if (!m_services.history.isLoaded()) { // asked so soon after the start; it then knows their titles
                m_services.history.load();
                m_services.history.flush();
            }
            m_services.editors.openHistoryEntry(entry);
        });
}

void AppDelegate::schedule(std::function<void()> opening)
{
    m_end.hold();
    m_openings.push(std::move(opening));
    if (m_openings.size() == 1)
        QTimer::singleShot(0, &m_services, [this] { openNext(); });
}

void AppDelegate::openNext()
{
    m_openings.front()(); // events go on being handled while a large file is read, or a question is asked
    m_openings.pop();
    if (!m_openings.empty())
        QTimer::singleShot(0, &m_services, [this] { openNext(); });
    m_end.letGo();
}

void AppDelegate::willTerminate()
{
    m_services.history.flush();
    m_services.clipboard.handOver();
}

} // namespace tessaly
