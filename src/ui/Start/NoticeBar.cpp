// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/NoticeBar.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace tessaly {

NoticeBar::NoticeBar(Offers offers, QWidget *parent) :
    QFrame(parent),
    m_label(new QLabel),
    m_undo(new QPushButton(tr("Undo")))
{
    setObjectName(offers == Offers::Undo ? QStringLiteral("undoBar") : QStringLiteral("noticeBar"));
    m_label->setWordWrap(true);
    m_label->setTextFormat(Qt::PlainText);
    m_undo->setObjectName(QStringLiteral("undo"));
    m_undo->setToolTip(tr("Keep what was deleted (Ctrl+Z)"));
    m_undo->setAccessibleDescription(m_undo->toolTip());
    m_undo->setAutoDefault(false);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(14, 6, 6, 6);
    row->addWidget(m_label, 1);
    row->addWidget(m_undo);
    m_undo->setVisible(offers == Offers::Undo);
    setMinimumHeight(m_undo->sizeHint().height() + 12); // the same with and without it
    hide();
    m_timer.setSingleShot(true);
    connect(m_undo, &QPushButton::clicked, this, &NoticeBar::undoRequested);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        hide();
        Q_EMIT expired();
    });
}

void NoticeBar::tell(const QString &sentence, std::chrono::milliseconds duration)
{
    m_label->setText(sentence);
    m_label->setAccessibleName(sentence);
    setVisible(!sentence.isEmpty());
    if (sentence.isEmpty()) {
        m_timer.stop();
        return;
    }
    m_timer.start(duration);
    QAccessibleEvent event(m_label, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void NoticeBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    ControlShapes::box(painter, rect(), palette().color(QPalette::Base), Colors::outline(), 8);
}

} // namespace tessaly
