// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartFooter.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"

#include <QEvent>
#include <QHBoxLayout>

namespace tessaly {

StartFooter::StartFooter(QWidget *parent) : QWidget(parent), m_lock(new QLabel), m_text(new QLabel)
{
    m_text->setObjectName(QStringLiteral("retention"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_lock->setAccessibleName(tr("Private"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(6);
    row->addWidget(m_lock, 0, Qt::AlignTop);
    row->addWidget(m_text, 1);
    dress();
}

void StartFooter::setText(const QString &text) { m_text->setText(text); }

void StartFooter::dress()
{
    constexpr int side = 16;
    m_lock->setPixmap(Icons::icon(QLatin1StringView("lock")).pixmap(QSize(side, side), devicePixelRatioF()));
    m_lock->setFixedHeight(m_text->fontMetrics().height()); // in the middle of the first line
    QPalette quiet = palette();
    if (quiet.color(QPalette::WindowText) == Colors::quietText())
        return;
    quiet.setColor(QPalette::WindowText, Colors::quietText());
    m_text->setPalette(quiet);
}

void StartFooter::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        dress();
}

} // namespace tessaly
