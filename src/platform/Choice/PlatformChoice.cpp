// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Choice/PlatformChoice.h"

#include "platform/x11/X11ScreenSource.h"

#include <QCoreApplication>

namespace tessaly::PlatformChoice {

Result<std::unique_ptr<ScreenSource>> screenSource(CaptureUse use)
{
    const QByteArray forced = qgetenv("TESSALY_PLATFORM");
    if (!forced.isEmpty() && forced != "x11") {
        return Failure { QCoreApplication::translate(
            "PlatformChoice", "TESSALY_PLATFORM names no platform to capture from: %1.")
                             .arg(QString::fromLocal8Bit(forced)) };
    }
    // An X server for old programs answers under Wayland too, but it never sees the screen.
    if (forced.isEmpty() && !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        return Failure { QCoreApplication::translate(
            "PlatformChoice", "This version captures X11 screens only, and this is a Wayland session.") };
    }
    return X11ScreenSource::create(use);
}

} // namespace tessaly::PlatformChoice
