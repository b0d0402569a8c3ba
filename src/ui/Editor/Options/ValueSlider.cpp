// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Options/ValueSlider.h"

#include "ui/Style/Appearance.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QSlider>

#include <chrono>

namespace tessaly {

QString valueText(double value, ValueUnit unit)
{
    const QLocale locale;
    switch (unit) {
    case ValueUnit::Points:
        return ValueSlider::tr("%1 pt").arg(locale.toString(std::round(value * 10) / 10, 'g', 4));
    case ValueUnit::Percent:
        return ValueSlider::tr("%1 %").arg(locale.toString(std::round(value * 100), 'f', 0));
    case ValueUnit::Factor:
        return ValueSlider::tr("%1×").arg(locale.toString(std::round(value * 100) / 100, 'g', 3));
    }
    return {};
}

ValueSlider::ValueSlider(const QString &title, const QString &help, const SliderRange &range, QWidget *parent) :
    QWidget(parent),
    m_range(range),
    m_label(new QLabel(title)),
    m_slider(new QSlider(Qt::Horizontal)),
    m_text(new QLabel)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    m_label->setBuddy(m_slider);
    layout->addWidget(m_label);
    layout->addWidget(m_slider, 1);
    layout->addWidget(m_text);

    m_slider->setRange(0, qRound((range.maximum - range.minimum) / range.step));
    m_slider->setPageStep(std::max(1, m_slider->maximum() / 10));
    m_slider->setMinimumWidth(72);
    m_slider->setMaximumWidth(120);
    m_slider->setFocusPolicy(Qt::TabFocus);
    m_slider->setAccessibleName(title);
    m_slider->setToolTip(help);
    m_label->setToolTip(help);
    m_text->setToolTip(help);
    m_slider->installEventFilter(this);
    // As wide as the widest text, so that nothing beside it moves during a drag.
    m_text->setMinimumWidth(std::max(fontMetrics().horizontalAdvance(valueText(range.maximum, range.unit)),
        fontMetrics().horizontalAdvance(valueText(range.minimum + range.step * 3, range.unit))));

    m_wheelPause.setSingleShot(true);
    m_wheelPause.setInterval(std::chrono::milliseconds(400));
    connect(&m_wheelPause, &QTimer::timeout, this, &ValueSlider::endAdjustment);
    connect(m_slider, &QSlider::sliderPressed, this, &ValueSlider::beginAdjustment);
    connect(m_slider, &QSlider::sliderReleased, this, &ValueSlider::endAdjustment);
    connect(m_slider, &QSlider::valueChanged, this, [this](int tick) {
        m_value = m_range.minimum + tick * m_range.step;
        showText();
        Q_EMIT changed(m_value);
    });
    setValue(range.minimum);
}

void ValueSlider::setValue(double value)
{
    m_value = value;
    const QSignalBlocker silence(m_slider);
    if (!m_slider->isSliderDown()) {
        const double tick = std::clamp((value - m_range.minimum) / m_range.step, 0.0, double(m_slider->maximum()));
        m_slider->setValue(qRound(tick));
    }
    showText();
}

void ValueSlider::showText() { m_text->setText(valueText(m_value, m_range.unit)); }

void ValueSlider::beginAdjustment()
{
    if (m_adjusting)
        return;
    m_adjusting = true;
    Q_EMIT begun();
}

void ValueSlider::endAdjustment()
{
    m_wheelPause.stop();
    if (!m_adjusting)
        return;
    m_adjusting = false;
    Q_EMIT ended();
}

bool ValueSlider::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (isKey && !static_cast<QKeyEvent *>(event)->isAutoRepeat()) {
        if (event->type() == QEvent::KeyPress)
            beginAdjustment();
        else
            endAdjustment();
    } else if (event->type() == QEvent::Wheel) {
        beginAdjustment();
        m_wheelPause.start();
    } else if (event->type() == QEvent::FocusOut || event->type() == QEvent::Hide) {
        endAdjustment();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tessaly
