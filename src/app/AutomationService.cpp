// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AutomationService.h"

#include "app/AutomationNames.h"
#include "core/Capture/CaptureService.h"
#include "core/Capture/RequestReading.h"
#include "platform/desktop/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace tessaly {

static QVariantMap answerFor(const CaptureOutcome &outcome)
{
    const auto answer = [](const char *word) {
        return QVariantMap { { QStringLiteral("outcome"), QString::fromLatin1(word) } };
    };
    QVariantMap map = answer(AutomationNames::cancelled);
    if (const auto *captured = std::get_if<Captured>(&outcome)) {
        map = answer(AutomationNames::captured);
        if (!captured->path.isEmpty())
            map.insert(QStringLiteral("path"), captured->path);
    } else if (const auto *failure = std::get_if<Failure>(&outcome)) {
        map = answer(AutomationNames::failed);
        map.insert(QStringLiteral("message"), failure->message);
    }
    return map;
}

AutomationService::AutomationService(std::function<CaptureService &()> captures) : m_captures(std::move(captures))
{
    m_waiting.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_waiting, &QDBusServiceWatcher::serviceUnregistered, this, &AutomationService::handleLeft);
}

AutomationService::~AutomationService() { release(); }

/// Without the bus nobody waits any more.
void AutomationService::handleDisconnected()
{
    if (!m_waiting.watchedServices().isEmpty())
        m_captures().cancel();
}

bool AutomationService::claim()
{
    if (m_claimed || !SessionBus::isThere())
        return m_claimed;
    // The object first: who sees the name may call at once.
    QDBusConnection bus = QDBusConnection::sessionBus();
    m_claimed
        = bus.registerObject(QLatin1StringView(AutomationNames::object), this, QDBusConnection::ExportScriptableSlots)
        && bus.registerService(QLatin1StringView(AutomationNames::service));
    if (m_claimed)
        bus.connect({}, QLatin1StringView(AutomationNames::localObject),
            QLatin1StringView(AutomationNames::localInterface), QLatin1StringView(AutomationNames::disconnected), this,
            SLOT(handleDisconnected()));
    else
        bus.unregisterObject(QLatin1StringView(AutomationNames::object));
    return m_claimed;
}

void AutomationService::release()
{
    if (!m_claimed)
        return;
    m_claimed = false;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterService(QLatin1StringView(AutomationNames::service));
    bus.unregisterObject(QLatin1StringView(AutomationNames::object));
}

/// What has been asked for later than its request goes on.
void AutomationService::handleLeft(const QString &caller)
{
    m_waiting.removeWatchedService(caller);
    if (caller == m_latest)
        m_captures().cancel();
}

QVariantMap AutomationService::Capture(const QString &subject, const QVariantMap &given)
{
    CaptureService &captures = m_captures();
    QVariantMap options = given;
    const bool waits = options.take(QLatin1StringView(AutomationNames::untilCallerLeaves)).toBool();
    auto request = RequestReading::read(
        subject, options, options.contains(QStringLiteral("display")) ? captures.displays() : QList<Display>());
    if (!request) {
        sendErrorReply(QDBusError::InvalidArgs, request.failure().message);
        return {};
    }
    setDelayedReply(true);
    m_latest = message().service();
    if (waits) {
        m_waiting.setConnection(connection());
        m_waiting.addWatchedService(m_latest);
    }
    request->finished = [this, bus = connection(), call = message()](const CaptureOutcome &outcome) {
        m_waiting.removeWatchedService(call.service());
        bus.send(call.createReply(answerFor(outcome)));
    };
    captures.start(std::move(*request));
    return {};
}

void AutomationService::Stay() { Q_EMIT stayRequested(); }
void AutomationService::IgnoreFile(const QString &path) { Q_EMIT ignoreRequested(path); }
void AutomationService::UnlockPinnedScreenshots() { Q_EMIT unlockRequested(); }

void AutomationService::Quit()
{
    release();
    // The answer goes out before the program ends.
    QMetaObject::invokeMethod(this, &AutomationService::quitRequested, Qt::QueuedConnection);
}

} // namespace tessaly
