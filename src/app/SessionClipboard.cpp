// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SessionClipboard.h"

#include "platform/Choice/Desktop/DesktopChoice.h"
#include "platform/desktop/ClipboardManagerRequest.h"
#include "platform/desktop/QtClipboard.h"

#include <QPointer>

namespace tessaly {

namespace {

/// An offer that tells of its end, which may come after that of the clipboard.
class CountedOffer final : public ClipboardOffer {
public:
    CountedOffer(std::unique_ptr<ClipboardOffer> offer, std::shared_ptr<int> count, SessionClipboard *clipboard) :
        m_offer(std::move(offer)),
        m_count(std::move(count)),
        m_clipboard(clipboard)
    {
        ++*m_count;
    }
    ~CountedOffer() override
    {
        if (--*m_count == 0 && m_clipboard)
            QMetaObject::invokeMethod(m_clipboard, &SessionClipboard::lost, Qt::QueuedConnection);
    }

    QStringList types() const override { return m_offer->types(); }
    QByteArray data(const QString &type) override { return m_offer->data(type); }

private:
    std::unique_ptr<ClipboardOffer> m_offer;
    std::shared_ptr<int> m_count;
    QPointer<SessionClipboard> m_clipboard;
};

} // namespace

SessionClipboard::SessionClipboard() : m_clipboard(DesktopChoice::ownClipboard()), m_offers(std::make_shared<int>(0))
{
    if (!m_clipboard) {
        auto clipboard = std::make_unique<QtClipboard>();
        m_qtClipboard = clipboard.get();
        m_clipboard = std::move(clipboard);
    }
    connect(m_clipboard.get(), &Clipboard::changed, this, &Clipboard::changed);
}

SessionClipboard::~SessionClipboard() = default;

void SessionClipboard::offer(std::unique_ptr<ClipboardOffer> offer)
{
    m_clipboard->offer(std::make_unique<CountedOffer>(std::move(offer), m_offers, this));
}

bool SessionClipboard::canHandOver() const { return m_qtClipboard && ClipboardManagerRequest::isPossible(); }

void SessionClipboard::handOver()
{
    if (m_qtClipboard)
        m_qtClipboard->handOver();
}

} // namespace tessaly
