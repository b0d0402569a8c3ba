// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/KeyCaps.h"

#include "ui/Style/Appearance.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>

namespace tessaly {

namespace {

constexpr int gap = 4;
constexpr int padding = 6;
constexpr int rim = 2; ///< the front of the cap, seen below it

struct Modifier {
    Qt::KeyboardModifier flag;
    const char *name; ///< as Qt's own translations know it, which also name the keys in menus
};

constexpr Modifier modifiers[] = { { Qt::ControlModifier, "Ctrl" },
    { Qt::AltModifier, "Alt" }, { Qt::ShiftModifier, "Shift" }, { Qt::MetaModifier, "Meta" } };

} // namespace

QStringList keyNames(const QKeySequence &combination)
{
    if (combination.isEmpty())
        return {};
    QStringList names;
    for (const Modifier &modifier : modifiers) {
        if (combination[0].keyboardModifiers() & modifier.flag)
            names += QCoreApplication::translate("QShortcut", modifier.name);
    }
    const QString key = QKeySequence(combination[0].key()).toString(QKeySequence::NativeText);
    return names << (key == u"-" ? QStringLiteral("−") : key);
}

KeyCaps::KeyCaps(const QStringList &keys, QWidget *parent) : QWidget(parent), m_keys(keys)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(keys.join(u' '));
}

QSize KeyCaps::sizeHint() const { return KeyCapsPainting::size(m_keys, fontMetrics()); }

void KeyCaps::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

void KeyCaps::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    KeyCapsPainting::draw(painter, {}, m_keys, palette());
}

static QSize capSize(const QString &key, const QFontMetrics &metrics)
{
    const int height = metrics.height() + 4;
    return { std::max(metrics.horizontalAdvance(key) + 2 * padding, height), height };
}

QSize KeyCapsPainting::size(const QStringList &keys, const QFontMetrics &metrics)
{
    QSize size(0, 0);
    for (const QString &key : keys) {
        const QSize cap = capSize(key, metrics);
        size = { size.width() + cap.width() + (size.isEmpty() ? 0 : gap), cap.height() + rim };
    }
    return size;
}

void KeyCapsPainting::draw(QPainter &painter, QPoint topLeft, const QStringList &keys, const QPalette &palette)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPointF corner = topLeft;
    for (const QString &key : keys) {
        const QRectF cap(corner, capSize(key, painter.fontMetrics()));
        painter.setPen(Colors::outline());
        painter.setBrush(Colors::outline());
        painter.drawRoundedRect(cap.adjusted(0.5, 0.5 + rim, -0.5, rim - 0.5), 4.5, 4.5);
        painter.setBrush(palette.color(QPalette::Button));
        painter.drawRoundedRect(cap.adjusted(0.5, 0.5, -0.5, -0.5), 4.5, 4.5);
        painter.setPen(palette.color(QPalette::ButtonText));
        painter.drawText(cap, Qt::AlignCenter, key);
        corner.rx() += cap.width() + gap;
    }
    painter.restore();
}

} // namespace tessaly
