// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Bus/AutomationService.h"

#include "app/Bus/ApplicationInterface.h"
#include "app/Bus/AutomationNames.h"
#include "core/Capture/CaptureService.h"
#include "core/Capture/RequestReading.h"
#include "platform/desktop/SessionBus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <unistd.h>

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

AutomationService::AutomationService(AutomationRequests requests) : m_requests(std::move(requests))
{
    new ApplicationInterface(*this); // which belongs to this object
    m_waiting.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_waiting, &QDBusServiceWatcher::serviceUnregistered, this, &AutomationService::handleLeft);
}

AutomationService::~AutomationService() { release(); }

/// Without the bus nobody waits any more.
void AutomationService::handleDisconnected()
{
    if (!m_waiting.watchedServices().isEmpty())
        m_requests.captures().cancel();
}

bool AutomationService::claim()
{
    if (m_claimed || !SessionBus::isThere())
        return m_claimed;
    // The object first: who sees the name may call at once.
    QDBusConnection bus = QDBusConnection::sessionBus();
    m_claimed = bus.registerObject(QLatin1StringView(AutomationNames::object), this,
                    QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportAdaptors)
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

bool AutomationService::isForeign(const QDBusConnection &bus, const QString &sender)
{
    // The bus lets in no other user as it is set up everywhere; this holds on one that is set up otherwise, too.
    const QDBusReply<uint> user = bus.interface()->serviceUid(sender);
    return user.isValid() && user.value() != ::getuid();
}

bool AutomationService::refusesCaller() const
{
    const bool foreign = calledFromDBus() && isForeign(connection(), message().service());
    if (foreign)
        sendErrorReply(QDBusError::AccessDenied, tr("Another user's program is not heard."));
    return foreign;
}

std::optional<AutomationService::Refusal> AutomationService::perform(Intent intent, const QString &destination)
{
    const Outcome outcome = m_requests.perform(intent, destination);
    if (outcome)
        return std::nullopt;
    const bool isEmptyHistory = outcome.failure().message == tessaly::message(ShortcutsIntentError::NoCaptures);
    return Refusal { isEmptyHistory ? QLatin1StringView(AutomationNames::noCaptures)
                                    : QDBusError::errorString(QDBusError::InvalidArgs),
        outcome.failure().message };
}

void AutomationService::answer(Intent intent, const QString &destination)
{
    if (refusesCaller())
        return;
    const auto refusal = perform(intent, destination);
    if (refusal && calledFromDBus())
        sendErrorReply(refusal->name, refusal->sentence);
}

void AutomationService::CaptureRegion(const QString &destination) { answer(Intent::CaptureRegion, destination); }
void AutomationService::CaptureWindow(const QString &destination) { answer(Intent::CaptureWindow, destination); }
void AutomationService::CaptureFullScreen(const QString &destination)
{
    answer(Intent::CaptureFullScreen, destination);
}
void AutomationService::CopyTextFromRegion() { answer(Intent::CopyTextFromRegion); }
void AutomationService::OpenLastCapture() { answer(Intent::OpenLastCapture); }

/// What has been asked for later than its request goes on.
void AutomationService::handleLeft(const QString &caller)
{
    m_waiting.removeWatchedService(caller);
    if (caller == m_latest)
        m_requests.captures().cancel();
}

void AutomationService::Capture(const QString &subject, const QVariantMap &given, QVariantMap &)
{
    if (refusesCaller())
        return;
    CaptureService &captures = m_requests.captures();
    QVariantMap options = given;
    const bool waits = options.take(QLatin1StringView(AutomationNames::untilCallerLeaves)).toBool();
    auto request = RequestReading::read(
        subject, options, options.contains(QStringLiteral("display")) ? captures.displays() : QList<Display>());
    if (!request) {
        sendErrorReply(QDBusError::InvalidArgs, request.failure().message);
        return;
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
}

void AutomationService::Stay()
{
    if (!refusesCaller())
        Q_EMIT stayRequested();
}

void AutomationService::IgnoreFile(const QString &path)
{
    if (!refusesCaller())
        Q_EMIT ignoreRequested(path);
}

void AutomationService::UnlockPinnedScreenshots()
{
    if (!refusesCaller())
        Q_EMIT unlockRequested();
}

void AutomationService::Quit()
{
    if (refusesCaller())
        return;
    release();
    // The answer goes out before the program ends.
    QMetaObject::invokeMethod(this, &AutomationService::quitRequested, Qt::QueuedConnection);
}

} // namespace tessaly
