// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/CommandPalette.h"

#include "ui/Menu/PaletteList.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"
#include "ui/Style/Icons.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace tessaly {

namespace {

// Points.
constexpr int shadow = 18; ///< around the panel, within the widget
constexpr int padding = 8;
constexpr int corner = 10;
constexpr int margin = 12; ///< at least that far from the window's edges
constexpr int mostRows = 10;
constexpr int widthInLetters = 74;

QString panelName() { return QStringLiteral("commandPalette"); }

} // namespace

void CommandPalette::open(QWidget &window, CommandActions &actions, PaletteSupply *supply)
{
    for (auto *shown : window.findChildren<CommandPalette *>(panelName(), Qt::FindDirectChildrenOnly)) {
        if (shown->isVisible()) // another may be about to be deleted
            return shown->leave();
    }
    auto *palette = new CommandPalette(window, actions, supply);
    palette->show();
    palette->raise();
    palette->m_field->setFocus(Qt::ShortcutFocusReason);
}

CommandPalette::CommandPalette(QWidget &window, CommandActions &actions, PaletteSupply *supply) :
    QFrame(&window),
    m_window(window),
    m_supply(supply),
    m_entries(paletteEntries(actions, supply)),
    m_focusBefore(window.focusWidget()),
    m_field(new QLineEdit),
    m_list(new PaletteList),
    m_nothing(new QLabel)
{
    setObjectName(panelName());
    setAccessibleName(tr("Command Palette"));
    m_field->setPlaceholderText(tr("Find a command, a setting or a tool"));
    m_field->setAccessibleName(m_field->placeholderText());
    m_field->setToolTip(tr("Type to search, choose with the arrow keys and Return (Esc closes)"));
    m_field->addAction(Icons::icon(QLatin1StringView("search")), QLineEdit::LeadingPosition);
    m_list->setAccessibleName(tr("Found"));
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setWordWrap(true);
    m_nothing->setTextFormat(Qt::PlainText);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(shadow + padding, shadow + padding, shadow + padding, shadow + padding);
    column->setSpacing(padding);
    column->addWidget(m_field);
    column->addWidget(m_list, 1);
    column->addWidget(m_nothing, 1);
    connect(m_field, &QLineEdit::textChanged, this, &CommandPalette::find);
    connect(m_list, &QListView::clicked, this, &CommandPalette::choose);
    m_field->installEventFilter(this);
    window.installEventFilter(this);
    qApp->installEventFilter(this); // presses elsewhere
    find();
}

void CommandPalette::find()
{
    const QString query = m_field->text();
    m_list->entries().show(paletteRanked(m_entries, query, m_supply ? m_supply->recent() : QStringList()), query);
    const bool found = m_list->entries().rowCount() > 0;
    m_list->setVisible(found);
    m_nothing->setVisible(!found);
    m_nothing->setText(tr("Nothing is called “%1”.").arg(query.simplified()));
    if (found)
        m_list->setCurrentIndex(m_list->entries().index(0));
    place();
}

void CommandPalette::place()
{
    const int wanted = fontMetrics().averageCharWidth() * widthInLetters;
    const int top = std::max(margin, m_window.height() / 12);
    const int width = std::min(wanted, m_window.width() - 2 * margin);
    const int besideRows = 3 * padding + m_field->sizeHint().height();
    const int room = (m_window.height() - top - margin - besideRows) / m_list->rowHeight(); // whole rows
    const int rows = std::clamp(m_list->entries().rowCount(), 2, std::clamp(room, 2, mostRows));
    const QRect panel((m_window.width() - width) / 2, top, width, besideRows + rows * m_list->rowHeight());
    setGeometry(panel.adjusted(-shadow, -shadow, shadow, shadow));
}

void CommandPalette::choose()
{
    const QModelIndex current = m_list->currentIndex();
    if (!current.isValid())
        return;
    const PaletteEntry entry = m_list->entries().entry(current.row());
    if (!entry.enabled)
        return;
    if (m_supply)
        m_supply->noteUse(entry.id);
    leave();
    // Once this key or click is over: what is done may close the window.
    QMetaObject::invokeMethod(&m_window, entry.run, Qt::QueuedConnection);
}

void CommandPalette::leave()
{
    if (isHidden())
        return;
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    hide();
    qApp->removeEventFilter(this);
    if (hadFocus && m_focusBefore)
        m_focusBefore->setFocus(Qt::OtherFocusReason);
    deleteLater();
}

bool CommandPalette::takesKey(int key)
{
    switch (key) {
    case Qt::Key_Escape:
        leave();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_list->step(key == Qt::Key_Down ? 1 : -1);
        return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        m_list->step((key == Qt::Key_PageDown ? 1 : -1) * std::max(2, m_list->rowsOfPage()));
        return true;
    case Qt::Key_Tab: // there is nowhere else to go
    case Qt::Key_Backtab:
        m_list->step(key == Qt::Key_Tab ? 1 : -1);
        return true;
    default:
        return false;
    }
}

bool CommandPalette::event(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        place();
    return QFrame::event(event);
}

bool CommandPalette::eventFilter(QObject *watched, QEvent *event)
{
    if (isHidden())
        return false;
    if (watched == &m_window && event->type() == QEvent::Resize)
        place();
    if (event->type() == QEvent::MouseButtonPress) {
        const auto *pressed = qobject_cast<QWidget *>(watched);
        if (pressed && pressed->window() == m_window.window() && pressed != this && !isAncestorOf(pressed))
            leave();
        return false;
    }
    if (watched != m_field)
        return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride: { // these keys are not the window's now
        const int key = static_cast<QKeyEvent *>(event)->key();
        const bool plain = static_cast<QKeyEvent *>(event)->modifiers() == Qt::NoModifier;
        if (plain && (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter))
            event->accept();
        return event->isAccepted() && plain;
    }
    case QEvent::KeyPress:
        return takesKey(static_cast<QKeyEvent *>(event)->key());
    case QEvent::FocusOut: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            leave();
        return false;
    }
    default:
        return false;
    }
}

void CommandPalette::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF panel = QRectF(rect()).adjusted(shadow, shadow, -shadow, -shadow);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 4));
    for (int ring = shadow; ring > 0; --ring) { // fainter the further out
        const qreal reach = shadow * qreal(ring * ring) / (shadow * shadow);
        painter.drawRoundedRect(panel.adjusted(-reach, -reach, reach, reach), corner + reach, corner + reach);
    }
    ControlShapes::box(painter, panel, palette().color(QPalette::Window), Colors::outline(), corner);
}

} // namespace tessaly
