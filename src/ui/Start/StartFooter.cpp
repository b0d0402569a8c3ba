// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartFooter.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"

#include <QBoxLayout>
#include <QEvent>

namespace tessaly {

StartFooter::StartFooter(QWidget *parent) :
    QWidget(parent),
    m_lock(new QLabel),
    m_text(new QLabel),
    m_settings(new QToolButton),
    m_hint(new QLabel)
{
    m_text->setObjectName(QStringLiteral("retention"));
    m_hint->setObjectName(QStringLiteral("hint"));
    for (QLabel *label : { m_text, m_hint }) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
    }
    m_hint->hide();
    m_lock->setAccessibleName(tr("Private"));
    m_settings->setText(tr("History Settings…"));
    m_settings->setToolTip(tr("How long captures are kept, and whether any are"));
    m_settings->setAutoRaise(true);
    m_settings->setFocusPolicy(Qt::TabFocus);
    m_settings->hide();
    connect(m_settings, &QToolButton::clicked, this, &StartFooter::settingsRequested);
    auto *row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(m_lock);
    row->addWidget(m_text, 1);
    row->addWidget(m_settings);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(6);
    column->addWidget(m_hint);
    column->addLayout(row);
    dress();
}

void StartFooter::setHint(const QString &sentence)
{
    m_hint->setText(sentence);
    m_hint->setVisible(!sentence.isEmpty());
}

void StartFooter::setOffersSettings(bool offers) { m_settings->setVisible(offers); }

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
    m_hint->setPalette(quiet);
}

void StartFooter::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        dress();
}

} // namespace tessaly
