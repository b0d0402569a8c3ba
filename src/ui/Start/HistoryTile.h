// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace tessaly {

class Clock;
class HistoryListModel;
class HistoryThumbnails;
struct HistoryEntry;

/// Paints one capture of the grid: its picture, title, date and size. It asks for pictures and never waits for them.
class HistoryTile : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// Wide enough for most dates in that font.
    static int minWidth(const QFont &font);

    /// Keeps the references.
    HistoryTile(const HistoryListModel &model, HistoryThumbnails &thumbnails, const Clock &clock, QObject *parent);

    void setWidth(int width) { m_width = width; }
    /// Of a tile in that font; the height follows the width.
    QSize tileSize(const QFont &font) const;
    /// The room for the picture; it grows in steps, so that few sizes are read.
    QSize pictureSize() const;

    QSize pixelSize(qreal scale) const;
    /// Has the picture read before it is painted at `scale` pixels a point.
    void prefetch(const HistoryEntry &entry, qreal scale) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintPicture(QPainter &painter, const QRect &area, const QModelIndex &index) const;
    void paintTexts(
        QPainter &painter, const QRect &area, const QStyleOptionViewItem &option, const QModelIndex &index) const;

    const HistoryListModel &m_model;
    HistoryThumbnails &m_thumbnails;
    const Clock &m_clock;
    int m_width = 0;
};

} // namespace tessaly
