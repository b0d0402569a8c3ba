// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Bus/AutomationClient.h"

#include "app/Bus/AutomationNames.h"
#include "platform/desktop/SessionBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEventLoop>

#include <limits>

namespace tessaly::AutomationClient {

static CaptureOutcome outcomeFrom(const QVariantMap &answer)
{
    const QString outcome = answer.value(QStringLiteral("outcome")).toString();
    if (outcome == QLatin1StringView(AutomationNames::captured))
        return Captured { answer.value(QStringLiteral("path")).toString() };
    if (outcome == QLatin1StringView(AutomationNames::cancelled))
        return CaptureCancelled {};
    return Failure { answer.value(QStringLiteral("message")).toString() };
}

/// Whether nobody has taken the request; a program that is ending gives up its object before it is gone.
static bool isUnheard(const QDBusError &error)
{
    return error.type() == QDBusError::ServiceUnknown || error.type() == QDBusError::UnknownObject
        || error.name() == u"org.freedesktop.DBus.Error.NameHasNoOwner";
}

static QDBusMessage callOf(const char *method)
{
    QDBusMessage call = QDBusMessage::createMethodCall(QLatin1StringView(AutomationNames::service),
        QLatin1StringView(AutomationNames::object), QLatin1StringView(AutomationNames::interface),
        QLatin1StringView(method));
    call.setAutoStartService(false);
    return call;
}

/// A call that is done when it returns, or the bus is gone. A call that only blocked would then never return.
static QDBusPendingReply<QVariantMap> answerTo(const QDBusMessage &call)
{
    constexpr int forEver = std::numeric_limits<int>::max(); // the user may take any time to select
    QDBusConnection bus = QDBusConnection::sessionBus();
    QEventLoop loop;
    bus.connect({}, QLatin1StringView(AutomationNames::localObject), QLatin1StringView(AutomationNames::localInterface),
        QLatin1StringView(AutomationNames::disconnected), &loop, SLOT(quit()));
    const QDBusPendingCallWatcher answer(bus.asyncCall(call, forEver));
    QObject::connect(&answer, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    if (!answer.isFinished())
        loop.exec();
    return answer;
}

void ignoreFile(const QString &path)
{
    if (!SessionBus::isThere())
        return;
    QDBusMessage call = callOf("IgnoreFile");
    call.setArguments({ path });
    constexpr int patience = 5'000; // milliseconds
    QDBusConnection::sessionBus().call(call, QDBus::Block, patience); // where none runs nothing is watched
}

std::optional<CaptureOutcome> capture(const QString &subject, const QVariantMap &options)
{
    if (!SessionBus::isThere() || !QDBusConnection::sessionBus().isConnected())
        return std::nullopt;
    QVariantMap attended = options;
    attended.insert(QLatin1StringView(AutomationNames::untilCallerLeaves), true);
    QDBusMessage request = callOf("Capture");
    request.setArguments({ subject, attended });
    const auto reply = answerTo(request);
    if (!reply.isFinished())
        return Failure { QCoreApplication::translate(
            "AutomationClient", "The session bus ended before the capture was done.") };
    if (reply.isValid())
        return outcomeFrom(reply.value());
    if (isUnheard(reply.error()))
        return std::nullopt;
    if (reply.error().type() == QDBusError::InvalidArgs)
        return Failure { reply.error().message() };
    return Failure { QCoreApplication::translate(
        "AutomationClient", "The running Tessaly ended before the capture was done.") };
}

} // namespace tessaly::AutomationClient
