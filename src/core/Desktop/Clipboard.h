// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <memory>
#include <optional>

namespace tessaly {

/// One thing that other programs may paste, in several types of which each is made only when it is asked for.
class ClipboardOffer {
public:
    virtual ~ClipboardOffer();

    /// MIME types, the best first.
    virtual QStringList types() const = 0;

    /// The bytes in one of the types; empty when they cannot be made.
    virtual QByteArray data(const QString &type) = 0;
};

/// What was copied, by this program or another.
class Clipboard : public QObject {
    Q_OBJECT

public:
    ~Clipboard() override;

    /// Replaces the clipboard's content. The offer lives until something else is copied.
    virtual void offer(std::unique_ptr<ClipboardOffer> offer) = 0;

    /// The MIME types that can be pasted now.
    virtual QStringList types() const = 0;

    /// The same where it is known already; asking another program for it takes time. Empty when it is not known yet:
    /// changed() comes when it is. For showing what could be pasted.
    virtual std::optional<QStringList> knownTypes() const { return types(); }

    /// The content in one of those types; empty when it cannot be had.
    virtual QByteArray data(const QString &type) const = 0;

Q_SIGNALS:
    void changed();
};

} // namespace tessaly
