// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/ScreenScale.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace tessaly::ScreenScale {

Settings Settings::fromEnvironment()
{
    Settings settings;
    bool understood = false;
    if (const int enabled = qEnvironmentVariableIntValue("QT_ENABLE_HIGHDPI_SCALING", &understood); understood)
        settings.enabled = enabled > 0;
    if (const double factor = qgetenv("QT_SCALE_FACTOR").toDouble(&understood); understood && factor > 0)
        settings.factor = factor;
    settings.screenFactors = qEnvironmentVariable("QT_SCREEN_SCALE_FACTORS");
    settings.dpi = std::max(qEnvironmentVariableIntValue("QT_FONT_DPI"), 0);
    return settings;
}

/// The factors that the setting gives to monitors, by name. A factor without a name belongs to the monitor at its
/// place among those understood. A setting of nothing but ones is none: Qt takes the resolution then.
static QHash<QString, double> factorsByName(const QString &setting, const QStringList &names)
{
    QHash<QString, double> factors;
    bool scales = false;
    qsizetype place = 0;
    for (const QStringView part : QStringView(setting).split(u';')) {
        const qsizetype equals = part.lastIndexOf(u'=');
        bool understood = false;
        const double factor = part.mid(equals + 1).toDouble(&understood);
        if (!understood || factor <= 0)
            continue;
        const QString name = equals >= 0 ? part.left(equals).toString() : names.value(place);
        ++place;
        if (!names.contains(name))
            continue;
        factors.insert(name, factor);
        scales = scales || !qFuzzyCompare(factor, 1);
    }
    return scales ? factors : QHash<QString, double>();
}

QList<double> ofMonitors(const QStringList &names, double serverDpi, const Settings &settings)
{
    constexpr double dpiOfScaleOne = 96;
    const double dpi = settings.dpi > 0 ? settings.dpi : std::round(serverDpi);
    const double byResolution = settings.enabled ? std::max(dpi / dpiOfScaleOne, 1.0) : 1.0;
    const QHash<QString, double> byName = factorsByName(settings.screenFactors, names);
    QList<double> scales;
    for (const QString &name : names)
        scales.append(settings.factor * byName.value(name, byResolution));
    return scales;
}

} // namespace tessaly::ScreenScale
