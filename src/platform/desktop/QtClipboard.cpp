// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/QtClipboard.h"

#include "platform/desktop/ClipboardManagerRequest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace tessaly {

namespace {

/// An offer as Qt asks for it: nothing is made before another program wants it.
class OfferedData final : public QMimeData {
public:
    explicit OfferedData(std::unique_ptr<ClipboardOffer> offer) : m_offer(std::move(offer)) { }

    QStringList formats() const override { return m_offer->types(); }
    bool hasFormat(const QString &type) const override { return formats().contains(type); }

protected:
    QVariant retrieveData(const QString &type, QMetaType) const override { return m_offer->data(type); }

private:
    std::unique_ptr<ClipboardOffer> m_offer;
};

} // namespace

QtClipboard::QtClipboard()
{
    m_asking.setSingleShot(true);
    connect(&m_asking, &QTimer::timeout, this, [this] {
        types();
        Q_EMIT changed();
    });
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        m_types.reset();
        m_asking.start(0);
    });
    // The first answer can wait until the first window has been painted: Qt loads all its image plug-ins for it.
    constexpr int millisecondsOfStart = 400;
    m_asking.start(millisecondsOfStart);
}

void QtClipboard::offer(std::unique_ptr<ClipboardOffer> offer)
{
    QGuiApplication::clipboard()->setMimeData(new OfferedData(std::move(offer)));
}

QStringList QtClipboard::types() const
{
    if (!m_types) {
        const QMimeData *content = QGuiApplication::clipboard()->mimeData();
        m_types = content ? content->formats() : QStringList();
    }
    return *m_types;
}

std::optional<QStringList> QtClipboard::knownTypes() const { return m_types; }

QByteArray QtClipboard::data(const QString &type) const
{
    const QMimeData *content = QGuiApplication::clipboard()->mimeData();
    return content ? content->data(type) : QByteArray();
}

void QtClipboard::handOver()
{
    QClipboard *clipboard = QGuiApplication::clipboard();
    if (!clipboard->ownsClipboard())
        return;
    ClipboardManagerRequest::run(types());
    // Qt would ask the manager again, and wait five seconds for one that does not answer.
    if (clipboard->ownsClipboard())
        clipboard->clear();
}

} // namespace tessaly
