// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/PaletteEntries.h"

#include <QAbstractListModel>
#include <QListView>
#include <QStyledItemDelegate>

namespace tessaly {

/// The entries that a query has found.
class PaletteModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void show(QList<PaletteEntry> found, const QString &query);
    const PaletteEntry &entry(int row) const { return m_entries.at(row); }
    const QString &query() const { return m_query; }

    int rowCount(const QModelIndex &parent = {}) const override;
    /// Read aloud is the title, where it is found, its keys, and whether it can be chosen.
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QList<PaletteEntry> m_entries;
    QString m_query;
};

/// Draws one entry: icon, title with the letters that were met, where it is found, and at the right its keys.
class PaletteDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    /// Returns how wide the title is.
    int drawTitle(QPainter &painter, const QRect &place, const QFont &font, const PaletteEntry &entry,
        const QString &query) const;
};

/// The list of found entries. The keyboard's focus stays in the field above it.
class PaletteList : public QListView {
public:
    explicit PaletteList(QWidget *parent = nullptr);

    PaletteModel &entries() const { return *m_model; }
    /// Moves by so many rows; round from the last to the first only by a single step.
    void step(int rows);
    int rowHeight() const;
    int rowsOfPage() const;

private:
    void announce(const QModelIndex &current);

    PaletteModel *m_model;
};

} // namespace tessaly
