// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartView.h"

#include "core/Desktop/Clipboard.h"
#include "core/Desktop/DroppedContent.h"
#include "core/Desktop/Links.h"
#include "core/Export/DragFile.h"
#include "core/Export/ExportService.h"
#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"
#include "ui/Menu/CommandTarget.h"
#include "ui/Start/EntryTexts.h"
#include "ui/Start/HistoryGrid.h"
#include "ui/Start/NoticeBar.h"
#include "ui/Start/SearchField.h"
#include "ui/Start/StartActions.h"
#include "ui/Start/StartFooter.h"
#include "ui/Start/StartMessage.h"

#include <QDropEvent>
#include <QGuiApplication>
#include <QShortcut>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace tessaly {

namespace {

using namespace std::chrono_literals;

// Points.
constexpr int margin = 20;
constexpr int gridMargin = 10; ///< the pictures of the tiles are that much further in
constexpr int sectionGap = 16;

/// In line with the pictures of the grid.
QLayout *inset(QWidget *widget)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(margin - gridMargin, 0, margin - gridMargin, 0);
    row->addWidget(widget);
    return row;
}

/// Whether the clipboard is known to hold a picture.
bool hasImage(const Clipboard &clipboard)
{
    const auto types = clipboard.knownTypes();
    return types && std::ranges::any_of(*types, [](const QString &type) { return type.startsWith(u"image/"); });
}

QLabel *makeHeadingLabel(const QString &text)
{
    auto *label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 1.2);
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return label;
}

} // namespace

StartView::StartView(const StartServices &services, StartRequests requests, QWidget *parent) :
    QWidget(parent),
    m_services(services),
    m_requests(std::move(requests)),
    m_welcome(new StartMessage),
    m_actions(new StartActions({ .openFile = [this] { m_requests.openFile(); },
        .paste = [this] { m_requests.paste(); },
        .program = m_requests.program })),
    m_actionsRow(inset(m_actions)),
    m_historyArea(new QWidget),
    m_heading(makeHeadingLabel(tr("Recent Captures"))),
    m_search(new SearchField),
    m_results(new QStackedLayout),
    m_grid(new HistoryGrid(services.history.thumbnails(), services.clock,
        [this](const HistoryEntry &entry) {
            return EntryPicture::dragData(m_services.history.packagePath(entry.id), dragFileName(m_services.clock));
        })),
    m_nothing(new StartMessage),
    m_undo(new NoticeBar(NoticeBar::Offers::Undo)),
    m_notice(new NoticeBar(NoticeBar::Offers::Nothing)),
    m_footer(new StartFooter)
{
    auto *historyColumn = new QVBoxLayout(m_historyArea);
    historyColumn->setContentsMargins({});
    historyColumn->setSpacing(gridMargin);
    historyColumn->addLayout(makeHeading());
    historyColumn->addLayout(m_results, 1);
    m_results->addWidget(m_grid);
    m_results->addWidget(m_nothing);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(gridMargin, margin, gridMargin, sectionGap);
    column->setSpacing(sectionGap);
    column->addStretch();
    column->addLayout(inset(m_welcome));
    column->addLayout(m_actionsRow);
    column->addWidget(m_historyArea, 1000); // takes all that the stretches would when it is there
    column->addStretch();
    column->addLayout(inset(m_undo));
    column->addLayout(inset(m_notice));
    column->addLayout(inset(m_footer));
    connectParts();
    addShortcuts();
    setAcceptDrops(bool(m_requests.openDropped));
}

StartView::~StartView() { settle(); }

QLayout *StartView::makeHeading()
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(margin - gridMargin, 0, margin - gridMargin, 0);
    row->addWidget(m_heading);
    row->addStretch();
    row->addWidget(m_search, 1);
    m_search->setMaximumWidth(280);
    m_search->setAcceptDrops(false); // files that are dropped on it are for the window
    return row;
}

void StartView::connectParts()
{
    connect(m_search, &QLineEdit::textChanged, this, [this] { refreshEntries(); });
    connect(m_search, &SearchField::left, this, [this] { m_grid->setFocus(Qt::ShortcutFocusReason); });
    connect(m_grid, &HistoryGrid::chosen, this, &StartView::carryOut);
    connect(m_grid, &HistoryGrid::typed, m_search, &SearchField::typeOn);
    connect(m_grid, &HistoryGrid::escaped, m_search, &QLineEdit::clear);
    connect(m_undo, &NoticeBar::undoRequested, this, &StartView::undoDeletion);
    connect(m_undo, &NoticeBar::expired, this, &StartView::settle);
    const auto follow = [this] {
        if (isVisible())
            refresh();
    };
    connect(&m_services.history, &CaptureHistory::loaded, this, follow);
    connect(&m_services.history, &CaptureHistory::entriesChanged, this, follow);
    m_footer->setOffersSettings(m_requests.program && m_requests.program->knows(CommandId::Settings));
    connect(m_footer, &StartFooter::settingsRequested, this, &StartView::openHistorySettings);
    connect(&m_services.clipboard, &Clipboard::changed, this, &StartView::refreshClipboard);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this] {
        if (isVisible())
            refreshClipboard();
    });
    connect(qApp, &QCoreApplication::aboutToQuit, this, &StartView::settle);
}

void StartView::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto &&action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    if (!m_requests.program) // which has a key for it
        add(Qt::CTRL | Qt::Key_O, [this] { m_requests.openFile(); });
    add(Qt::CTRL | Qt::Key_V, [this] {
        if (hasImage(m_services.clipboard))
            m_requests.paste();
    });
    add(Qt::CTRL | Qt::Key_F, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    add(Qt::CTRL | Qt::Key_Z, [this] { undoDeletion(); });
    add(Qt::CTRL | Qt::Key_W, [this] { window()->close(); });
}

void StartView::setHint(const QString &sentence) { m_footer->setHint(sentence); }

void StartView::openHistorySettings()
{
    // Where it cannot be stored the settings still open on it: the value holds in this run.
    static_cast<void>(m_services.settings.set(SettingKeys::settingsTab, QStringLiteral("history")));
    m_requests.program->perform(CommandId::Settings);
}

void StartView::refreshClipboard() { m_actions->setClipboardHasImage(hasImage(m_services.clipboard)); }

void StartView::refresh()
{
    const bool enabled = m_services.settings.value(SettingKeys::historyEnabled);
    const CaptureHistory &history = m_services.history;
    // What is not read yet may be there: nothing is said about it.
    const bool showsHistory = enabled && (!history.isLoaded() || !history.entries().isEmpty());
    m_welcome->setVisible(!showsHistory);
    m_welcome->setContent(QLatin1StringView("image"), enabled ? tr("No Recent Captures") : tr("Start a New Capture"),
        enabled ? tr("Capture, mark up and share. Your recent captures will appear here.")
                : tr("Capture, mark up and share."));
    m_historyArea->setVisible(showsHistory);
    m_actionsRow->setAlignment(m_actions, showsHistory ? Qt::Alignment() : Qt::AlignHCenter);
    QString footer = EntryTexts::retention(m_services.settings.value(SettingKeys::historyRetentionDays));
    if (enabled && !showsHistory)
        footer = tr("There are no captures in the history yet.") + u' ' + footer;
    m_footer->setText(footer);
    refreshClipboard();
    refreshEntries();
}

void StartView::refreshEntries() { showFound(m_deletion.without(m_services.history.search(m_search->text()))); }

void StartView::showFound(const QList<HistoryEntry> &found)
{
    m_grid->setEntries(found);
    m_grid->setAccessibleDescription(found.size() == 1 ? tr("1 capture") : tr("%1 captures").arg(found.size()));
    const QString query = m_search->text().simplified();
    m_nothing->setContent(QLatin1StringView(query.isEmpty() ? "image" : "search"),
        query.isEmpty() ? tr("No Recent Captures") : tr("No Matches"),
        query.isEmpty() ? QString() : tr("No capture contains “%1”.").arg(query));
    const bool loading = !m_services.history.isLoaded();
    m_results->setCurrentWidget(found.isEmpty() && !loading ? static_cast<QWidget *>(m_nothing) : m_grid);
}

const HistoryEntry *StartView::entry(const QUuid &id) const
{
    const QList<HistoryEntry> &entries = m_services.history.entries();
    const auto found = std::ranges::find(entries, id, &HistoryEntry::id);
    return found == entries.end() ? nullptr : &*found;
}

void StartView::carryOut(EntryCommand command, const QUuid &id)
{
    const HistoryEntry *chosen = entry(id);
    if (!chosen)
        return;
    switch (command) {
    case EntryCommand::Open:
        m_requests.openEntry(id);
        return;
    case EntryCommand::Reveal:
        if (!m_services.links.reveal(m_services.history.packagePath(id)))
            m_notice->tell(tr("The file manager could not be opened."), 4s);
        return;
    case EntryCommand::Copy:
        copy(*chosen);
        return;
    case EntryCommand::Delete:
        remove(*chosen);
        return;
    }
}

void StartView::copy(const HistoryEntry &entry)
{
    m_picture.make(m_services.history.packagePath(entry.id), [this](const Result<RasterImage> &picture) {
        if (picture)
            m_services.exports.copy(*picture, true);
        m_notice->tell(picture ? tr("Copied to clipboard") : picture.failure().message, picture ? 1300ms : 6s);
    });
}

void StartView::remove(const HistoryEntry &entry)
{
    m_deletion.add(entry);
    refreshEntries();
    m_undo->tell(m_deletion.sentence(), undoDuration);
}

void StartView::undoDeletion()
{
    if (m_deletion.isEmpty())
        return;
    const QUuid last = m_deletion.deleted().last().id;
    m_deletion.takeBack();
    m_undo->tell({}, {});
    refreshEntries();
    m_grid->select(last);
    m_grid->setFocus(Qt::OtherFocusReason);
}

void StartView::settle()
{
    m_undo->tell({}, {});
    const QList<QUuid> deleted = m_deletion.settle();
    for (const QUuid &id : deleted)
        m_services.history.remove(id);
}

void StartView::prepareToShow()
{
    m_deletion.forgetSettled();
    refresh();
    focusFirst();
}

void StartView::dragEnterEvent(QDragEnterEvent *event)
{
    // Not its own tiles, which would open as copies of themselves.
    if (!event->source() && !DroppedContent::offered(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void StartView::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    // Afterwards: the program that the files come from waits until this returns, and opening may ask the user.
    const auto open = [this, content = DroppedContent::taken(*event->mimeData())] { m_requests.openDropped(content); };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

void StartView::focusFirst()
{
    if (m_historyArea->isVisibleTo(this))
        m_grid->setFocus(Qt::OtherFocusReason);
    else
        m_actions->setFocus(Qt::OtherFocusReason);
}

} // namespace tessaly
