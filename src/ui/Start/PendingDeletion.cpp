// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/PendingDeletion.h"

#include "ui/Start/EntryTexts.h"

#include <QCoreApplication>

#include <algorithm>

namespace tessaly {

bool PendingDeletion::isLeftOut(const QUuid &id) const
{
    return m_settled.contains(id) || std::ranges::find(m_deleted, id, &HistoryEntry::id) != m_deleted.end();
}

QList<QUuid> PendingDeletion::settle()
{
    QList<QUuid> ids;
    for (const HistoryEntry &entry : std::as_const(m_deleted)) {
        ids += entry.id;
        m_settled += entry.id;
    }
    m_deleted.clear();
    return ids;
}

QList<HistoryEntry> PendingDeletion::without(QList<HistoryEntry> entries) const
{
    if (!m_deleted.isEmpty() || !m_settled.isEmpty())
        entries.removeIf([this](const HistoryEntry &entry) { return isLeftOut(entry.id); });
    return entries;
}

QString PendingDeletion::sentence() const
{
    if (m_deleted.isEmpty())
        return {};
    if (m_deleted.size() == 1) {
        constexpr int longest = 40;
        QString title = EntryTexts::title(m_deleted.first());
        if (title.size() > longest)
            title = title.left(longest).trimmed() + u'…';
        return QCoreApplication::translate("PendingDeletion", "Deleted “%1” from the history.").arg(title);
    }
    return QCoreApplication::translate("PendingDeletion", "Deleted %1 captures from the history.")
        .arg(m_deleted.size());
}

} // namespace tessaly
