// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/SearchField.h"

#include "ui/Style/Icons.h"

#include <QAction>
#include <QKeyEvent>

namespace tessaly {

SearchField::SearchField(QWidget *parent) : QLineEdit(parent)
{
    setObjectName(QStringLiteral("search"));
    setPlaceholderText(tr("Search Captures"));
    setAccessibleName(tr("Search Captures"));
    setToolTip(tr("Find captures by title, date and the text in them (Ctrl+F)"));
    setClearButtonEnabled(true);
    addAction(Icons::icon(QLatin1StringView("search")), QLineEdit::LeadingPosition)->setText(tr("Search"));
    if (auto *clear = findChild<QAction *>(QStringLiteral("_q_qlineeditclearaction")))
        clear->setText(tr("Clear (Esc)"));
}

void SearchField::typeOn(const QString &text)
{
    setFocus(Qt::ShortcutFocusReason);
    end(false);
    insert(text);
}

void SearchField::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (text().isEmpty())
            Q_EMIT left();
        clear();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        Q_EMIT left();
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace tessaly
