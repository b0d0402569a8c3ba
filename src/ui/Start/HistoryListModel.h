// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryEntry.h"

#include <QAbstractListModel>
#include <QHash>

namespace tessaly {

/// The captures that the grid shows, in their order.
class HistoryListModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// A list of the same captures changes rows, any other resets the model.
    void setEntries(const QList<HistoryEntry> &entries);
    const HistoryEntry &entry(const QModelIndex &index) const { return m_entries.at(index.row()); }
    /// Invalid when it is not shown.
    QModelIndex indexOf(const QUuid &id) const;

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : int(m_entries.size()); }
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    bool holdsSame(const QList<HistoryEntry> &entries) const;

    QList<HistoryEntry> m_entries;
    QHash<QUuid, int> m_rows;
};

} // namespace tessaly
