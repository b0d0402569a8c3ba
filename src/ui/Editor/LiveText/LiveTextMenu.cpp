// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/LiveText/LiveTextMenu.h"

#include "ui/Menu/Commands.h"
#include "ui/Style/Icons.h"

#include <QMenu>

namespace tessaly {

namespace {

/// A key that is shown, while the canvas takes it.
QAction *addWithKey(QMenu &menu, const QString &title, const QKeySequence &key)
{
    QAction *action = menu.addAction(title);
    action->setText(title + u'\t' + key.toString(QKeySequence::NativeText));
    return action;
}

} // namespace

LiveTextMenu::LiveTextMenu(QWidget &canvas) : m_canvas(canvas) { }

QMenu &LiveTextMenu::make()
{
    delete m_menu;
    m_menu = new QMenu(&m_canvas);
    m_menu->setAttribute(Qt::WA_DeleteOnClose);
    return *m_menu;
}

void LiveTextMenu::open(QPointF view) { m_menu->popup(m_canvas.mapToGlobal(view.toPoint())); }

void LiveTextMenu::openForText(QPointF view)
{
    QMenu &menu = make();
    QAction *copy = addWithKey(menu, commandTitle(command(CommandId::Copy)), QKeySequence(Qt::CTRL | Qt::Key_C));
    copy->setIcon(Icons::icon(QLatin1StringView(command(CommandId::Copy).icon)));
    connect(copy, &QAction::triggered, this, &LiveTextMenu::copyRequested);
    QAction *all = addWithKey(menu, tr("Select All"), QKeySequence(Qt::CTRL | Qt::Key_A));
    connect(all, &QAction::triggered, this, &LiveTextMenu::selectAllRequested);
    open(view);
}

void LiveTextMenu::openForCode(QPointF view, const RecognizedContent::Code &code)
{
    QMenu &menu = make();
    const auto link = code.webURL();
    constexpr int mostWidth = 280; // a code may hold thousands of letters
    QString what = link ? link->host() : code.payload.simplified();
    what = menu.fontMetrics().elidedText(what, link ? Qt::ElideLeft : Qt::ElideRight, mostWidth);
    QAction *heading = menu.addAction(what.replace(u'&', QStringLiteral("&&")));
    heading->setEnabled(false);
    menu.addSeparator();
    if (link)
        connect(
            menu.addAction(tr("Open Link")), &QAction::triggered, this, [this, link] { Q_EMIT openRequested(*link); });
    QAction *copy = menu.addAction(
        Icons::icon(QLatin1StringView(command(CommandId::Copy).icon)), commandTitle(command(CommandId::Copy)));
    connect(copy, &QAction::triggered, this, [this, code] { Q_EMIT copyCodeRequested(code); });
    open(view);
}

} // namespace tessaly
