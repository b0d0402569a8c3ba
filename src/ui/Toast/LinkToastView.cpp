// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Toast/LinkToastView.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"
#include "ui/Style/Icons.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessaly {

LinkToastView::LinkToastView(const QString &message, const QString &host, std::function<void()> onOpen,
    std::function<void()> onClose, std::chrono::milliseconds lifetime) :
    FloatingPanel(Qt::Tool, 12),
    m_onOpen(std::move(onOpen)),
    m_onClose(std::move(onClose))
{
    setWindowTitle(message);
    auto *open = new QPushButton(tr("Open Link"), this);
    open->setObjectName(QStringLiteral("openLink"));
    open->setToolTip(tr("Open the link with your browser (Return)"));
    auto *close = new QToolButton(this);
    close->setObjectName(QStringLiteral("closeLink"));
    close->setIcon(Icons::icon(QLatin1StringView("xmark")));
    close->setAutoRaise(true);
    close->setAccessibleName(tr("Close"));
    close->setToolTip(tr("Close (Esc)"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 10, 8, 10);
    row->setSpacing(8);
    row->addWidget(words(message, host), 1);
    row->addSpacing(8);
    row->addWidget(open);
    row->addWidget(close);
    connect(open, &QPushButton::clicked, this, [this] { end(m_onOpen); });
    connect(close, &QToolButton::clicked, this, [this] { end(m_onClose); });
    m_lifetime.setSingleShot(true);
    connect(&m_lifetime, &QTimer::timeout, this, [this] { end(m_onClose); });
    m_lifetime.start(lifetime);
    adjustSize();
}

QWidget *LinkToastView::words(const QString &message, const QString &host)
{
    auto *block = new QWidget(this);
    auto *column = new QVBoxLayout(block);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(1);
    auto *title = new QLabel(message, block);
    QFont heavy = title->font();
    heavy.setWeight(QFont::DemiBold);
    title->setFont(heavy);
    constexpr int mostWidth = 320; // a host may have 253 letters
    auto *place = new QLabel(block);
    place->setTextFormat(Qt::PlainText);
    place->setText(place->fontMetrics().elidedText(host, Qt::ElideLeft, mostWidth));
    place->setToolTip(host);
    place->setObjectName(QStringLiteral("host"));
    QPalette quiet = place->palette();
    quiet.setColor(QPalette::WindowText, Colors::quietText());
    place->setPalette(quiet);
    column->addWidget(title);
    column->addWidget(place);
    return block;
}

/// The answer that is given first is the only one, also while the panel fades.
void LinkToastView::end(const std::function<void()> &how)
{
    const std::function<void()> act = how;
    m_lifetime.stop();
    m_onOpen = m_onClose = [] {};
    fadeOut();
    act();
}

void LinkToastView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        end(m_onClose);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        end(m_onOpen);
    else
        FloatingPanel::keyPressEvent(event);
}

void LinkToastView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    ControlShapes::box(painter, QRectF(rect()), palette().color(QPalette::Window), Colors::outline(), cornerRadius());
}

} // namespace tessaly
