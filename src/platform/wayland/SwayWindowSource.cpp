// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/SwayWindowSource.h"

#include "platform/wayland/SwayConnection.h"
#include "platform/wayland/SwayTree.h"

#include <QCoreApplication>

namespace tessaly {

SwayWindowSource::SwayWindowSource(ScreenSource &screen, QString socketPath) :
    m_screen(screen),
    m_socketPath(std::move(socketPath))
{
}
SwayWindowSource::~SwayWindowSource() = default;

std::unique_ptr<WindowSource> SwayWindowSource::create(ScreenSource &screen)
{
    const QString path = qEnvironmentVariable("SWAYSOCK");
    if (path.isEmpty())
        return nullptr;
    // The variable stays behind when a program goes on in another session.
    if (!SwayConnection::ask(path, SwayConnection::Request::Tree))
        return nullptr;
    return std::unique_ptr<WindowSource>(new SwayWindowSource(screen, path));
}

Result<QList<ScreenWindow>> SwayWindowSource::windows()
{
    const auto tree = SwayConnection::ask(m_socketPath, SwayConnection::Request::Tree);
    if (!tree)
        return tree.failure();
    auto windows = SwayTree::visibleWindows(*tree);
    windows.removeIf([](const ScreenWindow &window) {
        return window.processId == QCoreApplication::applicationPid() || window.layoutRect.width() <= 1
            || window.layoutRect.height() <= 1;
    });
    for (ScreenWindow &window : windows)
        window.applicationName = m_entries.applicationName({}, window.applicationName);
    return windows;
}

std::optional<WindowSource::Application> SwayWindowSource::frontApplication()
{
    const auto tree = SwayConnection::ask(m_socketPath, SwayConnection::Request::Tree);
    const auto focused = tree ? SwayTree::focusedWindow(*tree) : std::nullopt;
    if (!focused)
        return {};
    return Application { m_entries.applicationName({}, focused->applicationName), focused->processId };
}

void SwayWindowSource::capture(const ScreenWindow &window, Look, ScreenSource::Answer answer)
{
    const auto present = windows();
    if (!present)
        return answer(present.failure());
    const auto found = std::ranges::find(*present, window.id, &ScreenWindow::id);
    if (found == present->end())
        return answer(Failure { QCoreApplication::translate("SwayWindowSource", "The window is no longer there.") });
    const auto displays = m_screen.displays();
    if (!displays)
        return answer(displays.failure());
    // A window over several monitors of different scale has no pixels of its own: the larger part is taken.
    ScreenSource::Shot best;
    qint64 bestArea = 0;
    for (const Display &display : *displays) {
        const QRect pixels = display.pixelsOf(found->layoutRect);
        const qint64 area = qint64(pixels.width()) * pixels.height();
        if (area > bestArea) {
            best = { display, pixels };
            bestArea = area;
        }
    }
    if (bestArea == 0)
        return answer(Failure { QCoreApplication::translate("SwayWindowSource", "The window is not on the screen.") });
    m_screen.capture(best, std::move(answer));
}

} // namespace tessaly
