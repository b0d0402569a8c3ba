// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Bus/ApplicationInterface.h"

#include "app/Bus/AutomationNames.h"
#include "app/Bus/AutomationService.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

namespace tessaly {

ApplicationInterface::ApplicationInterface(AutomationService &service) :
    QDBusAbstractAdaptor(&service),
    m_service(service)
{
}

void ApplicationInterface::refuse(const QDBusMessage &call, const QString &error, const QString &sentence)
{
    call.setDelayedReply(true);
    QDBusConnection::sessionBus().send(call.createErrorReply(error, sentence));
}

bool ApplicationInterface::admits(const QDBusMessage &call, const QVariantMap &platformData) const
{
    if (AutomationService::isForeign(QDBusConnection::sessionBus(), call.service())) {
        refuse(call, QDBusError::errorString(QDBusError::AccessDenied),
            AutomationService::tr("Another user's program is not heard."));
        return false;
    }
    m_service.requests().takeActivation(platformData);
    return true;
}

void ApplicationInterface::Activate(const QVariantMap &platformData, const QDBusMessage &call)
{
    if (admits(call, platformData))
        m_service.requests().activate();
}

void ApplicationInterface::Open(const QStringList &uris, const QVariantMap &platformData, const QDBusMessage &call)
{
    if (!admits(call, platformData))
        return;
    QList<QUrl> urls;
    for (const QString &uri : uris)
        urls += QUrl::fromEncoded(uri.toUtf8());
    m_service.requests().open(urls);
}

void ApplicationInterface::ActivateAction(const QString &actionName, const QVariantList &parameters,
    const QVariantMap &platformData, const QDBusMessage &call)
{
    if (!admits(call, platformData))
        return;
    QStringList texts;
    for (const QVariant &parameter : parameters)
        texts += parameter.toString();
    if (actionName == QLatin1StringView(AutomationNames::openHistoryEntry)) {
        QList<QUuid> entries;
        for (const QString &id : std::as_const(texts))
            entries += QUuid::fromString(id);
        return m_service.requests().openHistoryEntries(entries);
    }
    const auto intent = intentNamed(actionName);
    if (!intent)
        return refuse(call, QDBusError::errorString(QDBusError::InvalidArgs),
            AutomationService::tr("There is no action \"%1\".").arg(actionName));
    const auto refusal = m_service.perform(*intent, texts.value(0));
    if (!refusal)
        return;
    // Desktops do not show what a call of theirs answers.
    m_service.requests().tell(refusal->sentence);
    refuse(call, refusal->name, refusal->sentence);
}

} // namespace tessaly
