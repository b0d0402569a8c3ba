// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Start/EntryCommands.h"
#include "ui/Start/EntryPicture.h"
#include "ui/Start/PendingDeletion.h"
#include "ui/Start/StartWindowController.h"

#include <QWidget>

class QLabel;
class QStackedLayout;

namespace tessaly {

class HistoryGrid;
class NoticeBar;
class SearchField;
class StartActions;
class StartFooter;
class StartMessage;

/// What the start window shows: the actions to begin with, and the captures of the history with their search.
class StartView : public QWidget {
    Q_OBJECT

public:
    /// How long a deletion can be taken back.
    static constexpr std::chrono::seconds undoDuration { 10 };

    /// Keeps the references of the services.
    StartView(const StartServices &services, StartRequests requests, QWidget *parent = nullptr);
    /// Settles what is deleted.
    ~StartView() override;

    /// Before the window is shown.
    void prepareToShow();
    /// Removes what was deleted; it can then not be taken back any more.
    void settle();
    void refreshClipboard();
    /// A sentence in the footer; empty for none.
    void setHint(const QString &sentence);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QLayout *makeHeading();
    void connectParts();
    void addShortcuts();
    void openHistorySettings();
    void focusFirst();
    /// Shows what settings, history and clipboard say now.
    void refresh();
    void refreshEntries();
    void showFound(const QList<HistoryEntry> &found);
    void carryOut(EntryCommand command, const QUuid &id);
    void copy(const HistoryEntry &entry);
    void remove(const HistoryEntry &entry);
    void undoDeletion();
    const HistoryEntry *entry(const QUuid &id) const;

    StartServices m_services;
    StartRequests m_requests;
    PendingDeletion m_deletion;
    EntryPicture m_picture;

    StartMessage *m_welcome; ///< of the empty layout
    StartActions *m_actions;
    QLayout *m_actionsRow;
    QWidget *m_historyArea;
    QLabel *m_heading;
    SearchField *m_search;
    QStackedLayout *m_results; ///< the grid, or that there is nothing
    HistoryGrid *m_grid;
    StartMessage *m_nothing;
    NoticeBar *m_undo;
    NoticeBar *m_notice;
    StartFooter *m_footer;
};

} // namespace tessaly
