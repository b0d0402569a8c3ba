// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Clipboard.h"

#include <QString>
#include <QUrl>

namespace tessaly {

/// A plain text for the clipboard, and with it the link that it is, for programs that take links.
class TextOffer final : public ClipboardOffer {
public:
    explicit TextOffer(QString text, std::optional<QUrl> link = {}) : m_text(std::move(text)), m_link(std::move(link))
    {
    }

    QStringList types() const override
    {
        QStringList types { plainUtf8(), plain() };
        if (m_link)
            types += links();
        return types;
    }

    QByteArray data(const QString &type) override
    {
        if (type == links() && m_link)
            return m_link->toEncoded() + "\r\n";
        return type == plainUtf8() || type == plain() ? m_text.toUtf8() : QByteArray();
    }

    /// The text that a clipboard holds; empty without one.
    static QString textOf(const Clipboard &clipboard)
    {
        const QStringList offered = clipboard.types();
        for (const QString &type : { plainUtf8(), plain() })
            if (offered.contains(type))
                return QString::fromUtf8(clipboard.data(type));
        return {};
    }

private:
    static QString plainUtf8() { return QStringLiteral("text/plain;charset=utf-8"); }
    static QString plain() { return QStringLiteral("text/plain"); }
    static QString links() { return QStringLiteral("text/uri-list"); }

    QString m_text;
    std::optional<QUrl> m_link;
};

} // namespace tessaly
