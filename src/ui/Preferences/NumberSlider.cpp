// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/NumberSlider.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QSlider>

namespace tessaly {

NumberSlider::NumberSlider(double least, double most, Unit unit, QWidget *parent) :
    QWidget(parent),
    m_unit(unit),
    m_slider(new QSlider(Qt::Horizontal)),
    m_number(new QLabel)
{
    m_slider->setRange(qRound(least / stepValue()), qRound(most / stepValue()));
    m_slider->setPageStep(10);
    m_slider->setMinimumWidth(fontMetrics().averageCharWidth() * 20);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(8);
    row->addWidget(m_slider, 1);
    row->addWidget(m_number);
    showNumber(1000 * stepValue()); // wider than any, so that the sliders of a page stand below each other
    m_number->setMinimumWidth(m_number->sizeHint().width());
    m_number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFocusProxy(m_slider);
    connect(m_slider, &QSlider::valueChanged, this, [this](int steps) {
        showNumber(steps * stepValue());
        if (!m_slider->isSliderDown())
            Q_EMIT chosen(steps * stepValue());
    });
    connect(m_slider, &QSlider::sliderReleased, this, [this] { Q_EMIT chosen(m_slider->value() * stepValue()); });
}

void NumberSlider::setValue(double value)
{
    if (!m_slider->isSliderDown()) {
        const QSignalBlocker quiet(*m_slider);
        m_slider->setValue(qRound(std::clamp(value / stepValue(), -1e6, 1e6)));
    }
    showNumber(value);
}

void NumberSlider::showNumber(double value)
{
    const QString number = QLocale().toString(value / stepValue(), 'f', 0);
    m_number->setText(m_unit == Unit::Percent ? tr("%1 %").arg(number) : tr("%1 pt").arg(number));
}

} // namespace tessaly
