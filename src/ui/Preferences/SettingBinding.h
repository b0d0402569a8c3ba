// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Preferences/Settings.h"

#include <QVariant>

class QAbstractButton;
class QComboBox;

namespace tessaly {

class Alerts;
class ColorButton;
class NumberSlider;

/// Ties controls to settings, both ways: what the user changes is stored at once, and what changes elsewhere shows at
/// once. A control is followed until it is destroyed.
class SettingBinding {
public:
    /// Done after the user has changed a control.
    using Afterwards = std::function<void()>;

    SettingBinding(Settings &settings, Alerts &alerts) : m_settings(settings), m_alerts(alerts) { }

    void bind(QAbstractButton &box, const SettingKey<bool> &key, Afterwards afterwards = {});
    /// The data of the items are the values. One that no item has is shown as `other` names it.
    void bind(QComboBox &choice, const SettingKey<bool> &key);
    void bind(QComboBox &choice, const SettingKey<const char *> &key);
    void bind(QComboBox &choice, const SettingKey<int> &key, QString (*other)(int value));
    void bind(NumberSlider &slider, const SettingKey<double> &key);
    void bind(ColorButton &button, const SettingKey<const char *> &key);

    /// Calls `show` with the value, now and whenever it is another, as long as `context` lives.
    template <class T, class Show>
    void follow(QObject &context, const SettingKey<T> &key, Show show)
    {
        show(m_settings.value(key));
        QObject::connect(
            &m_settings, &Settings::changed, &context, [&settings = m_settings, key, show](const QString &changed) {
                if (changed == QLatin1StringView(key.name))
                    show(settings.value(key));
            });
    }

    /// Tells the user what could not be stored; of many failures in a row only the first.
    void report(const Outcome &outcome);

    Settings &settings() { return m_settings; }

private:
    template <class T, class Value>
    void bindChoice(QComboBox &choice, const SettingKey<T> &key, Value (*stored)(const QVariant &));

    Settings &m_settings;
    Alerts &m_alerts;
    bool m_hasFailed = false;
};

} // namespace tessaly
