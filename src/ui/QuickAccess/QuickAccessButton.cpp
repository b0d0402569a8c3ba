// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/QuickAccessButton.h"

#include "ui/Style/ControlShapes.h"
#include "ui/Style/Icons.h"

#include <QPainter>

namespace tessaly {

namespace {

constexpr int symbolSide = 16; // points, as all below
constexpr int symbolButtonSide = 28;
constexpr int airBesideWords = 14;
constexpr int airAboveWords = 5;
constexpr QColor ink(0x1c, 0x1c, 0x1e);

} // namespace

QuickAccessButton::QuickAccessButton(Shape shape, QLatin1StringView icon, const QString &words, QWidget *parent) :
    QPushButton(words, parent),
    m_shape(shape)
{
    setIcon(Icons::icon(icon));
    setAccessibleName(words);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_Hover);
    resize(sizeHint());
}

void QuickAccessButton::setRevealed(bool revealed)
{
    m_revealed = revealed;
    update();
}

QSize QuickAccessButton::sizeHint() const
{
    if (m_shape == Shape::Symbol)
        return { symbolButtonSide, symbolButtonSide };
    return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(2 * airBesideWords, 2 * airAboveWords);
}

/// The icon in our ink, not in the palette's.
QPixmap QuickAccessButton::symbol() const
{
    QPixmap pixmap = icon().pixmap(QSize(symbolSide, symbolSide), devicePixelRatioF());
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRect(0, 0, symbolSide, symbolSide), ink);
    return pixmap;
}

void QuickAccessButton::paintEvent(QPaintEvent *)
{
    if (!m_revealed && !hasFocus())
        return;
    QPainter painter(this);
    const QColor fill = isDown() ? QColor(0xc4, 0xc4, 0xc8)
        : underMouse()           ? QColor(Qt::white)
                                 : QColor(0xe9, 0xe9, 0xec);
    const double corner = m_shape == Shape::Symbol ? height() / 2.0 : ControlShapes::radius + 2;
    ControlShapes::box(painter, rect(), fill, QColor(0, 0, 0, 70), corner);
    if (m_shape == Shape::Symbol) {
        painter.drawPixmap((width() - symbolSide) / 2, (height() - symbolSide) / 2, symbol());
    } else {
        painter.setPen(ink);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    }
    if (hasFocus())
        ControlShapes::focusRing(painter, rect(), corner);
}

} // namespace tessaly
