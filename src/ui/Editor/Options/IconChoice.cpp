// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/IconChoice.h"

#include "ui/Editor/Options/OptionControls.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>

namespace tessaly {

IconChoice::IconChoice(const QString &title, const QList<Row> &rows, QWidget *parent) :
    QWidget(parent),
    m_group(new QButtonGroup(this))
{
    setAccessibleName(title);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (qsizetype index = 0; index < rows.size(); ++index) {
        const QString help = tr("%1: %2").arg(title, rows[index].name);
        QToolButton *button
            = OptionControls::toggle(rows[index].name, QLatin1StringView(rows[index].icon.toLatin1()), help);
        button->installEventFilter(this);
        m_group->addButton(button, int(index));
        layout->addWidget(button);
    }
    connect(m_group, &QButtonGroup::idClicked, this, &IconChoice::chosen);
}

void IconChoice::setCurrent(int index)
{
    if (QAbstractButton *button = m_group->button(index))
        button->setChecked(true);
}

bool IconChoice::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            const auto count = int(m_group->buttons().size());
            QAbstractButton *next
                = m_group->button((m_group->checkedId() + (key == Qt::Key_Left ? -1 : 1) + count) % count);
            next->setFocus(Qt::OtherFocusReason);
            next->click();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tessaly
