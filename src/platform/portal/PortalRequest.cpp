// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalRequest.h"

#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QRandomGenerator>

namespace tessaly {

namespace {

constexpr auto requestInterface = "org.freedesktop.portal.Request";

/// Where the portal puts the request's object: known before the call, so that no answer is missed.
QString requestPath(const QDBusConnection &bus, const QString &token)
{
    const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
    return QStringLiteral("%1/request/%2/%3").arg(QLatin1StringView(PortalRequest::objectPath), sender, token);
}

PortalRequest::End endOf(const QDBusMessage &error)
{
    using End = PortalRequest::End;
    switch (QDBusError(error).type()) {
    case QDBusError::AccessDenied:
        return End::Refused;
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return End::Silent;
    default:
        // The portal's own errors say that it is there; those of the bus, and of a failed start, that it is not.
        return error.errorName().startsWith(u"org.freedesktop.portal.Error.") ? End::Refused : End::Missing;
    }
}

} // namespace

PortalRequest::PortalRequest(QDBusConnection bus) :
    m_bus(std::move(bus)),
    m_token(QStringLiteral("tessaly%1").arg(QRandomGenerator::global()->generate()))
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        withdraw();
        finish({ End::Silent });
    });
}

PortalRequest::~PortalRequest() { withdraw(); }

QDBusMessage PortalRequest::call(const char *interface, const char *method)
{
    return QDBusMessage::createMethodCall(
        service, objectPath, QString::fromLatin1(interface), QString::fromLatin1(method));
}

QVariantMap PortalRequest::withToken(QVariantMap options) const
{
    options.insert(QStringLiteral("handle_token"), m_token);
    return options;
}

void PortalRequest::ask(const QDBusMessage &call, std::chrono::milliseconds patience, std::function<void(Reply)> then)
{
    m_then = std::move(then);
    m_patience.start(patience);
    m_path = requestPath(m_bus, m_token);
    m_bus.connect(
        service, m_path, requestInterface, QStringLiteral("Response"), this, SLOT(onResponse(uint, QVariantMap)));
    // The one clock that counts is m_patience, which withdraws the question too.
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, int(2 * patience.count())), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        onCallReturned(watcher->reply());
        watcher->deleteLater();
    });
}

void PortalRequest::onCallReturned(const QDBusMessage &reply)
{
    if (m_path.isEmpty())
        return; // the response was faster
    if (reply.type() == QDBusMessage::ErrorMessage)
        finish({ endOf(reply) });
}

void PortalRequest::onResponse(uint code, const QVariantMap &results)
{
    constexpr End ends[] = { End::Granted, End::Cancelled };
    finish({ code < std::size(ends) ? ends[code] : End::Refused, results });
}

void PortalRequest::withdraw()
{
    if (m_path.isEmpty())
        return;
    m_bus.send(QDBusMessage::createMethodCall(service, m_path, requestInterface, QStringLiteral("Close")));
    m_path.clear();
}

void PortalRequest::finish(Reply reply)
{
    m_patience.stop();
    m_path.clear();
    if (const auto then = std::exchange(m_then, nullptr))
        QTimer::singleShot(0, this, [then, reply] { then(reply); });
}

} // namespace tessaly
