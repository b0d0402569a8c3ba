// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalPicture.h"

#include "platform/desktop/SessionBus.h"
#include "platform/portal/DesktopPicture.h"

#include <QDBusMessage>
#include <QUuid>

namespace tessaly {

namespace {

PortalPicture::Reason reasonFor(PortalRequest::End end, std::chrono::milliseconds patience)
{
    switch (end) {
    case PortalRequest::End::Cancelled:
        return { PortalFailure::Kind::Cancelled, PortalFailure::cancelled() };
    case PortalRequest::End::Missing:
        return { PortalFailure::Kind::Missing, PortalFailure::missing() };
    case PortalRequest::End::Silent:
        return { PortalFailure::Kind::Silent, PortalFailure::silent(patience) };
    case PortalRequest::End::Granted:
    case PortalRequest::End::Refused:
        break;
    }
    return { PortalFailure::Kind::Denied, PortalFailure::denied() };
}

} // namespace

PortalPicture::PortalPicture(std::chrono::milliseconds patience, Answer answer) :
    m_patience(patience),
    m_answer(std::move(answer)),
    m_connection(QUuid::createUuid().toString())
{
    ask(Manner::Quiet);
}

PortalPicture::~PortalPicture()
{
    m_request.reset();
    QDBusConnection::disconnectFromBus(m_connection);
}

void PortalPicture::ask(Manner manner)
{
    const bool quiet = manner == Manner::Quiet;
    const auto patience = quiet ? m_patience : dialogPatienceFactor * m_patience;
    const auto onReplied = [this, manner, patience](const PortalRequest::Reply &reply) {
        if (reply.end == PortalRequest::End::Granted)
            return read(reply.results.value(QStringLiteral("uri")).toString());
        if (reply.end == PortalRequest::End::Refused && manner == Manner::Quiet)
            return ask(Manner::Interactive);
        finish(reasonFor(reply.end, patience));
    };
    if (!SessionBus::isThere()) {
        QMetaObject::invokeMethod(
            this, [onReplied] { onReplied({ PortalRequest::End::Missing }); }, Qt::QueuedConnection);
        return;
    }
    m_request
        = std::make_unique<PortalRequest>(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_connection));
    QDBusMessage call = PortalRequest::call("org.freedesktop.portal.Screenshot", "Screenshot");
    call << QString() // no window of ours is the dialog's parent
         << m_request->withToken({ { QStringLiteral("interactive"), !quiet } });
    m_request->ask(call, patience, onReplied);
}

void PortalPicture::read(const QString &uri)
{
    m_reader.post([this, uri] {
        const auto onRead = [this, picture = DesktopPicture::takeFile(uri)] {
            if (picture)
                return finish(*picture);
            finish(Reason { PortalFailure::Kind::Unusable, PortalFailure::unusable(picture.failure().message) });
        };
        QMetaObject::invokeMethod(this, onRead, Qt::QueuedConnection);
    });
}

void PortalPicture::finish(Result<QImage, Reason> picture)
{
    const Answer answer = std::exchange(m_answer, nullptr); // survives this object
    answer(std::move(picture));
}

} // namespace tessaly
