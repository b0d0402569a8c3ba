// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Start/EntryCommands.h"
#include "ui/Start/HistoryListModel.h"

#include <QListView>
#include <QTimer>

#include <functional>
#include <memory>

class QMimeData;

namespace tessaly {

class Clock;
class HistoryThumbnails;
class HistoryTile;

/// The captures as tiles in as many columns as fit. Only what is visible is painted and read.
class HistoryGrid : public QListView {
    Q_OBJECT

public:
    using MakeDragData = std::function<std::unique_ptr<QMimeData>(const HistoryEntry &)>;

    /// Keeps the references.
    HistoryGrid(
        HistoryThumbnails &thumbnails, const Clock &clock, MakeDragData makeDragData, QWidget *parent = nullptr);

    /// Keeps the selection, or what stands in its place when it is not there any more.
    void setEntries(const QList<HistoryEntry> &entries);
    const HistoryListModel &entries() const { return m_model; }
    void select(const QUuid &id);
    void selectFirst();

Q_SIGNALS:
    void chosen(EntryCommand command, const QUuid &id);
    /// A letter was typed, which belongs into the search field.
    void typed(const QString &text);
    void escaped();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void startDrag(Qt::DropActions supported) override;

private:
    void arrange();
    QList<HistoryEntry> nearby() const;
    void updateWanted();
    void choose(EntryCommand command);
    void showMenu(QPoint globalPosition);

    HistoryThumbnails &m_thumbnails;
    MakeDragData m_makeDragData;
    HistoryListModel m_model;
    HistoryTile *m_tile;
    QTimer m_prefetch { this };
};

} // namespace tessaly
