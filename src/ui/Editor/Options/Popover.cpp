// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/Popover.h"

#include <QEvent>
#include <QFrame>
#include <QScreen>
#include <QVBoxLayout>

namespace tessaly {

PopoverButton::PopoverButton(const QString &title, const QString &help, QWidget *parent) :
    MenuButton(title, title, help, parent),
    m_panel(new QFrame(this)),
    m_content(new QVBoxLayout(m_panel))
{
    m_panel->setWindowFlags(Qt::Popup);
    m_panel->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    m_panel->setAccessibleName(title);
    m_panel->installEventFilter(this);
    m_content->setContentsMargins(16, 16, 16, 16);
    m_content->setSpacing(8);
    connect(this, &QToolButton::clicked, this, &PopoverButton::open);
}

QWidget &PopoverButton::panel() { return *m_panel; }

void PopoverButton::open()
{
    m_panel->adjustSize();
    const QPoint below = mapToGlobal(QPoint(0, height() + 4));
    const QRect area = screen()->availableGeometry();
    const int left = std::clamp(below.x(), area.left(), std::max(area.left(), area.right() - m_panel->width()));
    const int top = std::clamp(below.y(), area.top(), std::max(area.top(), area.bottom() - m_panel->height()));
    m_panel->move(left, top);
    m_panel->show();
}

bool PopoverButton::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_panel && event->type() == QEvent::Hide)
        Q_EMIT closed();
    return MenuButton::eventFilter(watched, event);
}

} // namespace tessaly
