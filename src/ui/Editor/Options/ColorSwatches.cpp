// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/ColorSwatches.h"

#include "core/Imaging/ColorHex.h"
#include "ui/Style/Appearance.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>

namespace tessaly {

SwatchButton::SwatchButton(const QStringList &colors, const QString &name, QWidget *parent) :
    QAbstractButton(parent),
    m_colors(colors)
{
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(name);
    setToolTip(name);
    setAttribute(Qt::WA_Hover);
}

void SwatchButton::setColors(const QStringList &colors)
{
    if (m_colors == colors)
        return;
    m_colors = colors;
    update();
}

QSize SwatchButton::sizeHint() const { return { 24, 24 }; }

void SwatchButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : 0.35);
    const QRectF whole = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    const QRectF disc = whole.adjusted(2.5, 2.5, -2.5, -2.5);
    QPainterPath circle;
    circle.addEllipse(disc);
    if (m_colors.isEmpty()) {
        painter.save();
        painter.setClipPath(circle);
        painter.fillRect(disc, Colors::checkerLight());
        for (int cell = 0; cell < 16; ++cell) {
            if ((cell + cell / 4) % 2)
                painter.fillRect(
                    QRectF(disc.left() + cell % 4 * 4, disc.top() + cell / 4 * 4, 4, 4), Colors::checkerDark());
        }
        painter.restore();
    } else {
        QLinearGradient gradient(disc.topLeft(), disc.bottomRight());
        for (qsizetype index = 0; index < m_colors.size(); ++index)
            gradient.setColorAt(
                double(index) / std::max<qsizetype>(m_colors.size() - 1, 1), ColorHex::toColor(m_colors[index]));
        painter.fillPath(circle, gradient);
    }
    // A thin rim keeps white on white and black on black apart.
    QColor rim = palette().color(QPalette::WindowText);
    rim.setAlphaF(underMouse() ? 0.6F : 0.28F);
    painter.setPen(QPen(rim, 1));
    painter.drawEllipse(disc);
    if (isChecked() || hasFocus()) {
        painter.setPen(
            QPen(isChecked() ? Colors::accent() : rim, isChecked() ? 2 : 1, isChecked() ? Qt::SolidLine : Qt::DotLine));
        painter.drawEllipse(whole);
    }
}

QStringList anyColorHues()
{
    return { QStringLiteral("#FF3B30"), QStringLiteral("#FFCC00"), QStringLiteral("#34C759"), QStringLiteral("#2E7DF6"),
        QStringLiteral("#AF52DE") };
}

ColorSwatches::ColorSwatches(const QString &title, const QStringList &colors, bool keys, QWidget *parent) :
    QWidget(parent),
    m_title(title),
    m_colors(colors),
    m_other(new SwatchButton({}, tr("Other Color…")))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (qsizetype index = 0; index < colors.size(); ++index) {
        const QString name
            = keys ? tr("%1 %2 (%3)").arg(title, colors[index]).arg(index + 1) : tr("%1 %2").arg(title, colors[index]);
        auto *swatch = new SwatchButton({ colors[index] }, name);
        swatch->setCheckable(true);
        connect(swatch, &QAbstractButton::clicked, this, [this, hex = colors[index]] {
            setColor(hex);
            Q_EMIT picked(hex);
        });
        m_swatches += swatch;
        layout->addWidget(swatch);
    }
    m_other->setCheckable(true);
    layout->addWidget(m_other);
    connect(m_other, &QAbstractButton::clicked, this, &ColorSwatches::pickOther);
    setColor({});
}

void ColorSwatches::setColor(const QString &hex)
{
    m_hex = hex;
    const QString wanted = ColorHex::toHex(ColorHex::toColor(hex));
    bool found = false;
    for (qsizetype index = 0; index < m_swatches.size(); ++index) {
        const bool same = m_colors[index].compare(wanted, Qt::CaseInsensitive) == 0;
        m_swatches[index]->setChecked(same);
        found = found || same;
    }
    m_other->setChecked(!found);
    m_other->setColors(found || hex.isEmpty() ? anyColorHues() : QStringList { wanted });
}

void ColorSwatches::pickOther()
{
    const QColor color = QColorDialog::getColor(ColorHex::toColor(m_hex), this, m_title);
    if (color.isValid()) {
        setColor(ColorHex::toHex(color));
        Q_EMIT picked(m_hex);
    } else {
        setColor(m_hex);
    }
}

} // namespace tessaly
