// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/CountdownPanel.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace tessaly {

namespace {

constexpr int corner = 24, numberSize = 64, numberRaise = 6, hintSize = 11, hintDistance = 14;

QFont systemFont(int pixelSize, QFont::Weight weight)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

} // namespace

CountdownPanel::CountdownPanel(std::function<void()> onClick) :
    QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus),
    m_onClick(std::move(onClick))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(tr("Countdown"));
    setFixedSize(windowSide, windowSide);
    // Without a compositor what is transparent would be black; with one no soft pixel of the corners is cut off.
    QPainterPath outline;
    outline.addRoundedRect(square().adjusted(-1, -1, 1, 1), corner, corner);
    setMask(QRegion(outline.toFillPolygon().toPolygon()) & square());
}

QRect CountdownPanel::square() const
{
    constexpr int margin = (windowSide - squareSide) / 2;
    return { margin, margin, squareSide, squareSide };
}

QString CountdownPanel::hint() const { return m_hearsEscape ? tr("Esc to cancel") : tr("Click to cancel"); }

void CountdownPanel::setNumber(int number)
{
    m_number = number;
    setAccessibleName(QStringLiteral("%1. %2").arg(number).arg(hint()));
    update();
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void CountdownPanel::mousePressEvent(QMouseEvent *)
{
    const auto act = m_onClick; // which may end this window
    act();
}

/// Where a desktop gives this window the focus.
void CountdownPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(event);
    const auto act = m_onClick;
    act();
}

void CountdownPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(255, 255, 255, 50)); // it is seen on black, too
    painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.78F));
    painter.drawRoundedRect(QRectF(square()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter.setPen(Qt::white);
    painter.setFont(systemFont(numberSize, QFont::Normal));
    painter.drawText(square().translated(0, -numberRaise), Qt::AlignCenter, QString::number(m_number));
    painter.setPen(QColor::fromRgbF(1, 1, 1, 0.7F));
    painter.setFont(systemFont(hintSize, QFont::Medium));
    const QRect below = square().adjusted(0, 0, 0, -hintDistance);
    painter.drawText(below, Qt::AlignHCenter | Qt::AlignBottom, hint());
}

} // namespace tessaly
