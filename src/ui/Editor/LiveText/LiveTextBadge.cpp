// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/LiveText/LiveTextBadge.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"
#include "ui/Style/Icons.h"

#include <QEvent>
#include <QPainter>

namespace tessaly {

namespace {
constexpr int fadeMilliseconds = 200;
constexpr int margin = 12; ///< from the canvas's edge, and within on the left and right
constexpr int iconGap = 7;
} // namespace

LiveTextBadge::LiveTextBadge(QWidget &canvas) : QWidget(&canvas), m_canvas(canvas)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    canvas.installEventFilter(this);
    m_fade.setDuration(fadeMilliseconds);
    m_fade.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_fade, &QVariantAnimation::valueChanged, this, [this](const QVariant &opacity) {
        m_opacity = opacity.toDouble();
        update();
    });
    connect(&m_fade, &QVariantAnimation::finished, this, [this] { setVisible(m_opacity > 0); });
    m_end.setSingleShot(true);
    connect(&m_end, &QTimer::timeout, this, &LiveTextBadge::hideText);
}

void LiveTextBadge::showText(const QString &text, const QString &icon, std::chrono::milliseconds duration)
{
    m_end.stop();
    if (duration.count() > 0)
        m_end.start(duration);
    if (m_text == text)
        return;
    m_text = m_shownText = text;
    m_icon = icon;
    m_canvas.setAccessibleDescription(text);
    place();
    show();
    raise();
    update();
    fadeTo(1);
}

void LiveTextBadge::hideText()
{
    m_end.stop();
    if (m_text.isEmpty())
        return;
    m_text.clear();
    m_canvas.setAccessibleDescription({});
    fadeTo(0);
}

void LiveTextBadge::fadeTo(double opacity)
{
    m_fade.stop();
    m_fade.setStartValue(m_opacity);
    m_fade.setEndValue(opacity);
    m_fade.start();
}

void LiveTextBadge::place()
{
    const QFontMetrics metrics = fontMetrics();
    const int icon = m_icon.isEmpty() ? 0 : metrics.height() + iconGap;
    resize(metrics.horizontalAdvance(m_shownText) + icon + 2 * margin, metrics.height() + margin);
    move((m_canvas.width() - width()) / 2, margin);
}

bool LiveTextBadge::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        place();
    return QWidget::eventFilter(watched, event);
}

void LiveTextBadge::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(m_opacity);
    ControlShapes::box(painter, QRectF(rect()), palette().color(QPalette::Window), Colors::outline(), height() / 2.0);
    QRect words = rect().adjusted(margin, 0, -margin, 0);
    if (!m_icon.isEmpty()) {
        const int side = fontMetrics().height();
        const QRect box(words.left(), (height() - side) / 2, side, side);
        Icons::icon(QLatin1StringView(m_icon.toLatin1())).paint(&painter, box);
        words.setLeft(box.right() + 1 + iconGap);
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(words, Qt::AlignVCenter | Qt::AlignLeft, m_shownText);
}

} // namespace tessaly
