// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Document/TessalyDocument.h"
#include "core/History/HistoryEntry.h"

namespace tessaly {

/// Where those who may not change the history leave their changes for the one who may: a hidden folder in the
/// history's. A message is a package, "<number>.<id>.tessaly", or a request, "<number>.json"; the numbers grow in the
/// order of posting. A message appears whole, and is on the disk once its posting has succeeded.
class HistoryMailbox {
public:
    explicit HistoryMailbox(const QString &historyFolder);

    enum class Kind { Put, Update, Remove, RemoveAll, Malformed };
    struct Message {
        QString path {};
        Kind kind = Kind::Malformed;
        HistoryEntry entry {}; ///< of Put and Update
        QList<QUuid> ids {}; ///< of Remove
    };

    QString path() const { return m_path; }
    Outcome makeFolder() const;

    /// These also drop what they supersede of the messages that wait.
    Outcome postPut(const TessalyDocument::Package &package, const HistoryEntry &entry) const;
    Outcome postUpdate(const HistoryEntry &entry) const;
    Outcome postRemove(const QList<QUuid> &ids) const;
    Outcome postRemoveAll() const;

    /// What waits, in the order of posting.
    QList<Message> waiting() const;

    /// Whether the message is still there: a guest may replace it at any time.
    bool waits(const Message &message) const;
    /// The change was made.
    Outcome drop(const Message &message) const;
    /// Keeps the message under a hidden name, out of the way of the others.
    Outcome putAside(const Message &message) const;

    /// Deletes what killed posts have left, unless somebody is posting right now.
    void sweep() const;
    /// Deletes what was put aside.
    void forgetPutAside() const;

private:
    QStringList names() const;
    QString nextNumber() const;
    Outcome post(const QJsonObject &request, const Message &asMessage) const;
    void dropSuperseded(const QString &name, const Message &by) const;

    QString m_path;
};

/// What a message makes of the entries.
QList<HistoryEntry> changedBy(const HistoryMailbox::Message &message, QList<HistoryEntry> entries);

} // namespace tessaly
