// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Choice/Desktop/DesktopChoice.h"

#include "platform/Choice/PlatformChoice.h"
#include "platform/portal/PortalHotkeys.h"
#include "platform/wayland/Surfaces/DataControlClipboard.h"
#include "platform/wayland/Surfaces/WaylandLayers.h"
#include "platform/x11/X11Hotkeys.h"
#include "platform/x11/X11Layers.h"

#include <QGuiApplication>
#include <QLoggingCategory>

namespace tessaly::DesktopChoice {

static bool isWayland() { return QGuiApplication::platformName().startsWith(u"wayland"); }

void prepareEnvironment()
{
    const QByteArray forced = qgetenv("QT_QPA_PLATFORM");
    if (!forced.startsWith("wayland") && (!forced.isEmpty() || qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")))
        return;
    qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    // Nothing is drawn by OpenGL here, whose drivers would be in memory as long as the program. Qt warns of this.
    qputenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none");
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.wayland.warning=false"));
}

std::unique_ptr<WindowLayers> windowLayers()
{
    if (isWayland())
        return std::make_unique<WaylandLayers>();
    return std::make_unique<X11Layers>();
}

bool windowsPlaceThemselves() { return !isWayland(); }

std::unique_ptr<Clipboard> ownClipboard() { return isWayland() ? DataControlClipboard::create() : nullptr; }

std::unique_ptr<HotkeyBackend> hotkeys()
{
    using PlatformChoice::Platform;
    // Where nobody sees the windows, nobody presses keys for them; a test may say otherwise.
    const bool hasPerson = isWayland() || QGuiApplication::platformName() == u"xcb";
    const auto platform = PlatformChoice::platform();
    if (!platform || !(hasPerson || PlatformChoice::isForced()))
        return std::make_unique<MissingHotkeys>();
    if (*platform == Platform::X11)
        return std::make_unique<X11Hotkeys>();
    return std::make_unique<PortalHotkeys>();
}

} // namespace tessaly::DesktopChoice
