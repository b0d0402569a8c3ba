// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/KeyCaps.h"

#include "ui/Style/Appearance.h"

#include <QEvent>
#include <QPainter>

namespace tessaly {

namespace {

constexpr int gap = 4;
constexpr int padding = 6;
constexpr int rim = 2; ///< the front of the cap, seen below it

struct Modifier {
    Qt::KeyboardModifier flag;
    const char *portable;
};

/// The native text of a modifier ends with its plus sign.
constexpr Modifier modifiers[] = { { Qt::ControlModifier, "Ctrl+" }, { Qt::AltModifier, "Alt+" },
    { Qt::ShiftModifier, "Shift+" }, { Qt::MetaModifier, "Meta+" } };

} // namespace

QStringList keyNames(const QKeySequence &combination)
{
    if (combination.isEmpty())
        return {};
    QStringList names;
    for (const Modifier &modifier : modifiers) {
        if (combination[0].keyboardModifiers() & modifier.flag)
            names += QString::fromLatin1(modifier.portable).chopped(1);
    }
    const QString key = QKeySequence(combination[0].key()).toString(QKeySequence::NativeText);
    return names << (key == u"-" ? QStringLiteral("−") : key);
}

KeyCaps::KeyCaps(const QStringList &keys, QWidget *parent) : QWidget(parent), m_keys(keys)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(keys.join(u' '));
}

QSize KeyCaps::capSize(const QString &key) const
{
    const int height = fontMetrics().height() + 4;
    return { std::max(fontMetrics().horizontalAdvance(key) + 2 * padding, height), height };
}

QSize KeyCaps::sizeHint() const
{
    QSize size(0, 0);
    for (const QString &key : m_keys) {
        const QSize cap = capSize(key);
        size = { size.width() + cap.width() + (size.isEmpty() ? 0 : gap), cap.height() + rim };
    }
    return size;
}

void KeyCaps::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

void KeyCaps::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    qreal x = 0;
    for (const QString &key : m_keys) {
        const QRectF cap(QPointF(x, 0), capSize(key));
        painter.setPen(Colors::outline());
        painter.setBrush(Colors::outline());
        painter.drawRoundedRect(cap.adjusted(0.5, 0.5 + rim, -0.5, rim - 0.5), 4.5, 4.5);
        painter.setBrush(palette().color(QPalette::Button));
        painter.drawRoundedRect(cap.adjusted(0.5, 0.5, -0.5, -0.5), 4.5, 4.5);
        painter.setPen(palette().color(QPalette::ButtonText));
        painter.drawText(cap, Qt::AlignCenter, key);
        x += cap.width() + gap;
    }
}

} // namespace tessaly
