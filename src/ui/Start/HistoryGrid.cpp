// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/HistoryGrid.h"

#include "core/History/HistoryThumbnails.h"
#include "ui/Start/HistoryTile.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDrag>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>

namespace tessaly {

namespace {

using namespace std::chrono_literals;

constexpr auto prefetchDelay = 150ms;

std::optional<EntryCommand> commandOf(const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Copy))
        return EntryCommand::Copy;
    if (event.modifiers() & ~Qt::KeypadModifier)
        return std::nullopt;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return EntryCommand::Open;
    case Qt::Key_Delete:
        return EntryCommand::Delete;
    default:
        return std::nullopt;
    }
}

bool isTyping(const QKeyEvent &event)
{
    return !(event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier))
        && !event.text().isEmpty() && event.text().at(0).isPrint() && event.key() != Qt::Key_Space;
}

} // namespace

HistoryGrid::HistoryGrid(
    HistoryThumbnails &thumbnails, const Clock &clock, MakeDragData makeDragData, QWidget *parent) :
    QListView(parent),
    m_thumbnails(thumbnails),
    m_makeDragData(std::move(makeDragData)),
    m_tile(new HistoryTile(m_model, thumbnails, clock, this))
{
    setObjectName(QStringLiteral("historyGrid"));
    setAccessibleName(tr("Recent Captures"));
    setFrameShape(QFrame::NoFrame);
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setDragDropMode(QAbstractItemView::DragOnly);
    setDragEnabled(true); // which standing still has switched off
    setMouseTracking(true);
    viewport()->setBackgroundRole(QPalette::Window); // opaque, so that scrolling moves what is painted
    setItemDelegate(m_tile);
    setModel(&m_model);
    connect(this, &QAbstractItemView::doubleClicked, this,
        [this](const QModelIndex &index) { Q_EMIT chosen(EntryCommand::Open, m_model.entry(index).id); });
    const auto repaint = [this](const QUuid &id) {
        if (const QModelIndex index = m_model.indexOf(id); index.isValid())
            update(index);
    };
    connect(&thumbnails, &HistoryThumbnails::ready, this, repaint);
    connect(&thumbnails, &HistoryThumbnails::unreadable, this, repaint);
    m_prefetch.setSingleShot(true);
    m_prefetch.setInterval(prefetchDelay);
    connect(&m_prefetch, &QTimer::timeout, this, [this] {
        for (const HistoryEntry &entry : nearby())
            m_tile->prefetch(entry, devicePixelRatioF());
    });
}

void HistoryGrid::setEntries(const QList<HistoryEntry> &entries)
{
    const QModelIndex before = currentIndex();
    const std::optional<QUuid> id = before.isValid() ? std::optional(m_model.entry(before).id) : std::nullopt;
    const int row = before.row(), scrolled = verticalScrollBar()->value();
    m_model.setEntries(entries);
    if (id && !currentIndex().isValid() && m_model.rowCount() > 0) {
        const QModelIndex same = m_model.indexOf(*id);
        setCurrentIndex(same.isValid() ? same : m_model.index(std::min(row, m_model.rowCount() - 1)));
        executeDelayedItemsLayout();
        verticalScrollBar()->setValue(scrolled);
    }
    if (hasFocus() && !currentIndex().isValid())
        selectFirst();
    updateWanted();
}

void HistoryGrid::select(const QUuid &id)
{
    if (const QModelIndex index = m_model.indexOf(id); index.isValid())
        setCurrentIndex(index);
}

void HistoryGrid::selectFirst()
{
    if (m_model.rowCount() > 0)
        setCurrentIndex(m_model.index(0));
}

void HistoryGrid::choose(EntryCommand command)
{
    if (currentIndex().isValid())
        Q_EMIT chosen(command, m_model.entry(currentIndex()).id);
}

void HistoryGrid::keyPressEvent(QKeyEvent *event)
{
    if (const auto command = commandOf(*event))
        choose(*command);
    else if (event->key() == Qt::Key_Escape)
        Q_EMIT escaped();
    else if (isTyping(*event))
        Q_EMIT typed(event->text());
    else
        QListView::keyPressEvent(event);
}

void HistoryGrid::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    const QModelIndex index = byMouse ? indexAt(event->pos()) : currentIndex();
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    if (!byMouse)
        scrollTo(index);
    showMenu(byMouse ? event->globalPos() : viewport()->mapToGlobal(visualRect(index).center()));
}

void HistoryGrid::showMenu(QPoint globalPosition)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const EntryCommandRow &row : entryCommands) {
        if (row.startsGroup)
            menu->addSeparator();
        QAction *action = menu->addAction(QCoreApplication::translate("EntryCommands", row.title));
        action->setShortcut(QKeySequence::fromString(QLatin1StringView(row.key)));
        action->setShortcutVisibleInContextMenu(true);
        connect(action, &QAction::triggered, this, [this, command = row.command] { choose(command); });
    }
    menu->popup(globalPosition);
}

void HistoryGrid::focusInEvent(QFocusEvent *event)
{
    if (!currentIndex().isValid())
        selectFirst();
    QListView::focusInEvent(event);
}

/// As many columns as fit beside the scroll bar, whether it is there or not, sharing the width.
void HistoryGrid::arrange()
{
    const int room = width() - verticalScrollBar()->sizeHint().width() - 1;
    const int minWidth = HistoryTile::minWidth(font());
    const int columns = std::max(room / minWidth, 1);
    m_tile->setWidth(std::max(room / columns, minWidth));
    const QSize tile = m_tile->tileSize(font());
    verticalScrollBar()->setSingleStep(tile.height() / 3);
    if (tile != gridSize())
        setGridSize(tile);
}

/// The selected capture stays in sight, also where the offer to undo a deletion takes some of the room.
void HistoryGrid::resizeEvent(QResizeEvent *event)
{
    const QModelIndex current = currentIndex();
    const bool wasSeen = current.isValid() && QRect({}, event->oldSize()).contains(visualRect(current));
    arrange();
    QListView::resizeEvent(event);
    if (wasSeen) {
        executeDelayedItemsLayout();
        scrollTo(current);
    }
    updateWanted();
}

void HistoryGrid::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        arrange();
}

void HistoryGrid::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    updateWanted();
}

/// What is visible, and a screen above and below it.
QList<HistoryEntry> HistoryGrid::nearby() const
{
    const QSize tile = gridSize();
    if (tile.isEmpty())
        return {};
    const int columns = std::max((viewport()->width() - 1) / tile.width(), 1);
    const int page = viewport()->height() / tile.height() + 1;
    const int top = verticalScrollBar()->value() / tile.height();
    QList<HistoryEntry> entries;
    const int end = std::min((top + 2 * page + 1) * columns, m_model.rowCount());
    for (int row = std::max(top - page, 0) * columns; row < end; ++row)
        entries += m_model.entry(m_model.index(row));
    return entries;
}

/// Pictures that wait although they have been scrolled out of sight are not read; those next to come are, once the
/// visible ones had their turn.
void HistoryGrid::updateWanted()
{
    QList<QUuid> wanted;
    for (const HistoryEntry &entry : nearby())
        wanted += entry.id;
    m_thumbnails.setWanted(wanted);
    m_prefetch.start();
}

void HistoryGrid::startDrag(Qt::DropActions)
{
    const QModelIndex index = currentIndex();
    if (!index.isValid())
        return;
    const HistoryEntry &entry = m_model.entry(index);
    auto *drag = new QDrag(this);
    const qreal scale = devicePixelRatioF();
    const QImage picture = m_thumbnails.thumbnail(entry.id, entry.modified, m_tile->pixelSize(scale));
    if (!picture.isNull()) {
        QPixmap pixmap = QPixmap::fromImage(picture);
        pixmap.setDevicePixelRatio(scale);
        drag->setPixmap(pixmap);
        drag->setHotSpot({ -12, -12 });
    }
    // The drag owns the data, and Qt keeps it beyond exec() for receivers that fetch late.
    drag->setMimeData(m_makeDragData(entry).release());
    drag->exec(Qt::CopyAction);
}

} // namespace tessaly
