// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/HistoryListModel.h"

#include "ui/Start/EntryTexts.h"

#include <algorithm>

namespace tessaly {

bool HistoryListModel::holdsSame(const QList<HistoryEntry> &entries) const
{
    return std::ranges::equal(m_entries, entries, {}, &HistoryEntry::id, &HistoryEntry::id);
}

void HistoryListModel::setEntries(const QList<HistoryEntry> &entries)
{
    if (m_entries.isSharedWith(entries))
        return;
    if (holdsSame(entries)) {
        m_entries = entries;
        if (!m_entries.isEmpty())
            Q_EMIT dataChanged(index(0), index(int(m_entries.size()) - 1));
        return;
    }
    beginResetModel();
    m_entries = entries;
    m_rows.clear();
    for (int row = 0; row < m_entries.size(); ++row)
        m_rows.insert(m_entries.at(row).id, row);
    endResetModel();
}

QModelIndex HistoryListModel::indexOf(const QUuid &id) const
{
    const auto row = m_rows.constFind(id);
    return row == m_rows.constEnd() ? QModelIndex() : index(*row);
}

QVariant HistoryListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return EntryTexts::title(entry(index));
    case Qt::AccessibleTextRole:
        return EntryTexts::spoken(entry(index));
    case Qt::ToolTipRole:
        return EntryTexts::toolTip(entry(index));
    default:
        return {};
    }
}

Qt::ItemFlags HistoryListModel::flags(const QModelIndex &index) const
{
    return QAbstractListModel::flags(index) | Qt::ItemIsDragEnabled;
}

} // namespace tessaly
