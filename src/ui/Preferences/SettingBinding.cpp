// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/SettingBinding.h"

#include "core/Desktop/Alerts.h"
#include "ui/Preferences/ColorButton.h"
#include "ui/Preferences/NumberSlider.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QSignalBlocker>

namespace tessaly {

void SettingBinding::report(const Outcome &outcome)
{
    const bool isFirst = !outcome && !m_hasFailed;
    m_hasFailed = !outcome;
    if (isFirst)
        m_alerts.warn(QCoreApplication::translate("SettingBinding", "The setting holds only until Tessaly is closed."),
            outcome.failure().message);
}

void SettingBinding::bind(QAbstractButton &box, const SettingKey<bool> &key, Afterwards afterwards)
{
    follow(box, key, [&box](bool on) {
        const QSignalBlocker quiet(box);
        box.setChecked(on);
    });
    QObject::connect(&box, &QAbstractButton::toggled, &box, [this, key, afterwards = std::move(afterwards)](bool on) {
        report(m_settings.set(key, on));
        if (afterwards)
            afterwards();
    });
}

template <class T, class Value>
void SettingBinding::bindChoice(QComboBox &choice, const SettingKey<T> &key, Value (*stored)(const QVariant &))
{
    follow(choice, key, [&choice](const auto &value) { choice.setCurrentIndex(choice.findData(QVariant(value))); });
    QObject::connect(&choice, &QComboBox::activated, &choice,
        [this, &choice, key, stored](int index) { report(m_settings.set(key, stored(choice.itemData(index)))); });
}

void SettingBinding::bind(QComboBox &choice, const SettingKey<bool> &key)
{
    bindChoice<bool, bool>(choice, key, [](const QVariant &data) { return data.toBool(); });
}

void SettingBinding::bind(QComboBox &choice, const SettingKey<const char *> &key)
{
    bindChoice<const char *, QString>(choice, key, [](const QVariant &data) { return data.toString(); });
}

void SettingBinding::bind(QComboBox &choice, const SettingKey<int> &key, QString (*other)(int value))
{
    follow(choice, key, [&choice, other](int value) { choice.setPlaceholderText(other(value)); });
    bindChoice<int, int>(choice, key, [](const QVariant &data) { return data.toInt(); });
}

void SettingBinding::bind(NumberSlider &slider, const SettingKey<double> &key)
{
    follow(slider, key, [&slider](double value) { slider.setValue(value); });
    QObject::connect(
        &slider, &NumberSlider::chosen, &slider, [this, key](double value) { report(m_settings.set(key, value)); });
}

void SettingBinding::bind(ColorButton &button, const SettingKey<const char *> &key)
{
    follow(button, key, [&button](const QString &hex) { button.setColor(hex); });
    QObject::connect(
        &button, &ColorButton::picked, &button, [this, key](const QString &hex) { report(m_settings.set(key, hex)); });
}

} // namespace tessaly
