// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryEntry.h"

#include <QSet>

namespace tessaly {

/// The captures that the user has deleted and may still take back: they are only left out of what is shown.
class PendingDeletion {
public:
    void add(const HistoryEntry &entry) { m_deleted += entry; }
    bool isEmpty() const { return m_deleted.isEmpty(); }
    /// Those that can be taken back, in the order of their deletion.
    const QList<HistoryEntry> &deleted() const { return m_deleted; }
    void takeBack() { m_deleted.clear(); }

    /// What is now to be removed for good. It stays left out, as the history takes a moment for that.
    QList<QUuid> settle();
    /// Leaves out only what can be taken back: what was settled and is still there could not be removed.
    void forgetSettled() { m_settled.clear(); }

    /// Those of `entries` that were not deleted.
    QList<HistoryEntry> without(QList<HistoryEntry> entries) const;
    /// What the user is told; empty when nothing can be taken back.
    QString sentence() const;

private:
    bool isLeftOut(const QUuid &id) const;

    QList<HistoryEntry> m_deleted;
    QSet<QUuid> m_settled;
};

} // namespace tessaly
