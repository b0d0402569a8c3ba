// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Choice/PlatformChoice.h"

#include "platform/Choice/MissingSources.h"
#include "platform/portal/PortalScreenSource.h"
#include "platform/wayland/SwayWindowSource.h"
#include "platform/wayland/WaylandScreenSource.h"
#include "platform/x11/X11ScreenSource.h"
#include "platform/x11/X11WindowSource.h"

#include <QCoreApplication>

namespace tessaly::PlatformChoice {

namespace {

constexpr auto forcingVariable = "TESSALY_PLATFORM";

struct Forced {
    const char *name;
    Platform platform;
};
constexpr Forced forcedPlatforms[]
    = { { "x11", Platform::X11 }, { "wayland", Platform::Wayland }, { "portal", Platform::Portal } };

bool isWaylandSession() { return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"); }

Result<Platform> forcedPlatform(const QByteArray &name)
{
    for (const Forced &row : forcedPlatforms) {
        if (name == row.name)
            return row.platform;
    }
    if (name == "none")
        return Failure { QCoreApplication::translate(
            "PlatformChoice", "TESSALY_PLATFORM=none switches capturing off.") };
    return Failure { QCoreApplication::translate(
        "PlatformChoice", "TESSALY_PLATFORM names no platform to capture from: %1.")
                         .arg(QString::fromLocal8Bit(name)) };
}

/// The monitors of an X server, as the portal's picture does not tell them; none without a server.
QList<Display> monitorsOfX11()
{
    const auto source = X11ScreenSource::create(CaptureUse::Once);
    const auto displays = source ? (*source)->displays() : Result<QList<Display>>(source.failure());
    return displays ? *displays : QList<Display>();
}

std::unique_ptr<ScreenSource> portalSource(CaptureUse use)
{
    return std::make_unique<PortalScreenSource>(
        use, isWaylandSession() ? WaylandScreenSource::monitors : monitorsOfX11);
}

} // namespace

Result<Platform> platform()
{
    if (const QByteArray forced = qgetenv(forcingVariable); !forced.isEmpty())
        return forcedPlatform(forced);
    // An X server for old programs answers under Wayland too, but it never sees the screen.
    if (isWaylandSession())
        return Platform::Wayland;
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        return Platform::X11;
    return Failure { QCoreApplication::translate(
        "PlatformChoice", "There is no desktop to capture: neither WAYLAND_DISPLAY nor DISPLAY is set.") };
}

bool isForced() { return !qEnvironmentVariableIsEmpty(forcingVariable); }

Result<std::unique_ptr<ScreenSource>> screenSource(CaptureUse use)
{
    const auto chosen = platform();
    if (!chosen)
        return chosen.failure();
    if (*chosen == Platform::X11)
        return X11ScreenSource::create(use);
    if (*chosen == Platform::Portal)
        return portalSource(use);
    auto source = WaylandScreenSource::create(use);
    return source || isForced() ? std::move(source) : portalSource(use);
}

std::unique_ptr<WindowSource> windowSource(ScreenSource &screen)
{
    const auto chosen = platform();
    if (chosen && *chosen == Platform::X11) {
        if (auto source = X11WindowSource::create(screen))
            return std::move(*source);
    } else if (chosen && isWaylandSession()) {
        if (auto source = SwayWindowSource::create(screen))
            return source;
    }
    return std::make_unique<MissingWindowSource>();
}

std::unique_ptr<ScreenSource> missingScreenSource(Failure failure)
{
    return std::make_unique<MissingScreenSource>(std::move(failure));
}

} // namespace tessaly::PlatformChoice
