// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Clipboard.h"

#include <QString>

namespace tessaly {

/// A plain text for the clipboard.
class TextOffer final : public ClipboardOffer {
public:
    explicit TextOffer(QString text) : m_text(std::move(text)) { }

    QStringList types() const override { return { plainUtf8(), plain() }; }
    QByteArray data(const QString &type) override { return types().contains(type) ? m_text.toUtf8() : QByteArray(); }

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

    QString m_text;
};

} // namespace tessaly
