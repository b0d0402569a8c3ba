// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalFailure.h"

#include <QCoreApplication>

namespace tessaly::PortalFailure {

namespace {

/// The packages that take screenshots for a desktop, as distributions name them. The last row is for all others, which
/// are built on wlroots; their portal takes the picture with grim, starts with pipewire only, and has the GTK one ask.
struct BackEnd {
    QLatin1StringView desktop;
    QLatin1StringView packages;
};
constexpr BackEnd backEnds[] = {
    { QLatin1StringView("GNOME"), QLatin1StringView("xdg-desktop-portal-gnome") },
    { QLatin1StringView("KDE"), QLatin1StringView("xdg-desktop-portal-kde") },
    { QLatin1StringView(), QLatin1StringView("xdg-desktop-portal-wlr, xdg-desktop-portal-gtk, grim and pipewire") },
};

QString packagesFor(const QString &desktop)
{
    for (const BackEnd &row : backEnds) {
        if (desktop.contains(row.desktop, Qt::CaseInsensitive))
            return row.packages;
    }
    return {};
}

} // namespace

Failure cancelled()
{
    return { QCoreApplication::translate("PortalScreenSource", "The screenshot was cancelled."), true };
}

Failure denied()
{
    return { QCoreApplication::translate(
        "PortalScreenSource", "The desktop does not allow Tessaly to take screenshots.") };
}

Failure missing()
{
    return { QCoreApplication::translate("PortalScreenSource", "This desktop has no portal that takes screenshots.") };
}

Failure silent(std::chrono::milliseconds patience)
{
    return { QCoreApplication::translate("PortalScreenSource", "The desktop portal did not answer within %1 seconds.")
                 .arg(patience.count() / 1000.0) };
}

Failure unusable(const QString &reason)
{
    return { QCoreApplication::translate(
        "PortalScreenSource", "The desktop portal gave a picture that cannot be used: %1")
                 .arg(reason) };
}

std::optional<QString> wayOut(Kind kind, const QString &desktop)
{
    switch (kind) {
    case Kind::Cancelled:
        return {};
    case Kind::Denied:
        return QCoreApplication::translate("PortalScreenSource",
            "Allow screenshots for Tessaly in the desktop's settings, on the page of the applications. Where there "
            "is no such page, “flatpak permission-remove screenshot screenshot” in a terminal makes the desktop ask "
            "again.");
    case Kind::Missing:
        return QCoreApplication::translate(
            "PortalScreenSource", "Install xdg-desktop-portal and, for this desktop, %1; then log out and in again.")
            .arg(packagesFor(desktop));
    case Kind::Silent:
    case Kind::Unusable:
        return QCoreApplication::translate("PortalScreenSource",
            "Try once more. If it fails again, “systemctl --user restart xdg-desktop-portal” in a terminal starts "
            "the portal anew.");
    }
    return {};
}

} // namespace tessaly::PortalFailure
