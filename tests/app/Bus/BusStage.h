// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/Bus/AutomationService.h"
#include "tests/support/QuietBus.h"

#include <stdexcept>

namespace tessaly::test {

/// A session bus of its own, on which this process is the running program. What it is asked for is written down.
struct BusStage {
    BusStage()
    {
        address = startQuietBus(bus, folder);
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        QObject::connect(&service, &AutomationService::stayRequested, [this] { heard += QStringLiteral("stay"); });
    }
    ~BusStage()
    {
        bus.terminate();
        bus.waitForFinished();
    }

    QTemporaryDir folder;
    QProcess bus;
    QByteArray address;
    QStringList heard;
    QVariantMap platformData;
    AutomationService service { { .captures
        = []() -> CaptureService & { throw std::logic_error("nothing is captured here"); },
        .perform = [this](Intent intent, const QString &destination) -> Outcome {
            heard
                += QString::fromLatin1(tessalyShortcuts()[static_cast<std::size_t>(intent)].name) + u' ' + destination;
            if (intent == Intent::OpenLastCapture)
                return Failure { message(ShortcutsIntentError::NoCaptures) };
            if (destination == u"nowhere")
                return Failure { QStringLiteral("There is no such destination.") };
            return Done {};
        },
        .activate = [this] { heard += QStringLiteral("activate"); },
        .open =
            [this](const QList<QUrl> &urls) {
                for (const QUrl &url : urls)
                    heard += QStringLiteral("open ") + url.toLocalFile();
            },
        .openHistoryEntries =
            [this](const QList<QUuid> &entries) {
                for (const QUuid &entry : entries)
                    heard += QStringLiteral("entry ") + entry.toString(QUuid::WithoutBraces);
            },
        .tell = [this](const QString &sentence) { heard += QStringLiteral("told: ") + sentence; },
        .takeActivation = [this](const QVariantMap &data) { platformData = data; } } };
};

} // namespace tessaly::test
