// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartMessage.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/Icons.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace tessaly {

StartMessage::StartMessage(QWidget *parent) :
    QWidget(parent),
    m_picture(new QLabel),
    m_title(new QLabel),
    m_sentence(new QLabel)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(6);
    column->addStretch();
    for (QLabel *label : { m_picture, m_title, m_sentence }) {
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(label != m_picture);
        column->addWidget(label);
    }
    column->addStretch();
    m_title->setObjectName(QStringLiteral("title"));
    m_sentence->setObjectName(QStringLiteral("sentence"));
}

void StartMessage::setContent(QLatin1StringView icon, const QString &title, const QString &sentence)
{
    m_icon = Icons::icon(icon);
    m_title->setText(title);
    m_sentence->setText(sentence);
    m_sentence->setVisible(!sentence.isEmpty());
    dress();
}

void StartMessage::dress()
{
    if (m_icon.isNull())
        return; // nothing to show yet
    constexpr int side = 44;
    const QPixmap plain = m_icon.pixmap(QSize(side, side), devicePixelRatioF());
    QPixmap faint(plain.size());
    faint.setDevicePixelRatio(plain.devicePixelRatio());
    faint.fill(Qt::transparent);
    QPainter painter(&faint);
    painter.setOpacity(0.45);
    painter.drawPixmap(0, 0, plain);
    painter.end();
    m_picture->setPixmap(faint);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setWeight(QFont::DemiBold);
    m_title->setFont(large);
    QPalette quiet = m_sentence->palette();
    quiet.setColor(QPalette::WindowText, Colors::quietText());
    m_sentence->setPalette(quiet);
}

void StartMessage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        dress();
}

} // namespace tessaly
