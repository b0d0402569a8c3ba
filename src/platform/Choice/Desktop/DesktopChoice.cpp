// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Choice/Desktop/DesktopChoice.h"

#include "platform/wayland/Surfaces/DataControlClipboard.h"
#include "platform/wayland/Surfaces/WaylandLayers.h"
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

} // namespace tessaly::DesktopChoice
