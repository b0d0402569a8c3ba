// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/PreferenceOptions.h"

#include "core/Annotation/AnnotationLabels.h"
#include "core/Export/ExportFormat.h"
#include "core/History/HistoryPruning.h"
#include "core/Preferences/AppLanguages.h"
#include "core/Preferences/CaptureDelays.h"
#include "ui/Style/Icons.h"

namespace tessaly::PreferenceOptions {

namespace {

QString iconOf(const OptionLabel<ArrowHeadStyle> &row) { return QStringLiteral("arrowhead-") + rawValue(row.value); }
QString iconOf(const OptionLabel<StampKind> &row) { return QLatin1StringView(row.symbol); }
QString iconOf(const OptionLabel<ObscureStyle> &row)
{
    return row.value == ObscureStyle::Pixelate ? QStringLiteral("pixelate")
                                               : QStringLiteral("obscure-") + rawValue(row.value);
}

template <class Enum>
Options labelled()
{
    Options options;
    for (const auto &row : optionLabels<Enum>)
        options += { QString(rawValue(row.value)), label(row.value),
            Icons::icon(QLatin1StringView(iconOf(row).toLatin1().constData())) };
    return options;
}

} // namespace

Options appearances()
{
    return {
        { QStringLiteral("system"), preferenceText(QT_TRANSLATE_NOOP("Preferences", "System")) },
        { QStringLiteral("light"), preferenceText(QT_TRANSLATE_NOOP("Preferences", "Light")) },
        { QStringLiteral("dark"), preferenceText(QT_TRANSLATE_NOOP("Preferences", "Dark")) },
    };
}

Options languages()
{
    Options options;
    for (const AppLanguage &language : appLanguages) {
        const QString name = QString::fromUtf8(language.ownName);
        options += { QString::fromLatin1(language.code),
            name.isEmpty() ? preferenceText(QT_TRANSLATE_NOOP("Preferences", "System")) : name };
    }
    return options;
}

Options corners()
{
    return {
        { QStringLiteral("bottomRight"), preferenceText(QT_TRANSLATE_NOOP("Preferences", "Bottom right")) },
        { QStringLiteral("bottomLeft"), preferenceText(QT_TRANSLATE_NOOP("Preferences", "Bottom left")) },
    };
}

Options formats()
{
    Options options;
    for (const auto &row : enumNames<ExportFormat>)
        options += { QString(row.raw), label(row.value) };
    return options;
}

Options delays()
{
    Options options;
    for (const CaptureDelay &delay : captureDelays)
        options += { delay.seconds, QCoreApplication::translate("CaptureDelays", delay.title) };
    return options;
}

QString otherDelay(int seconds)
{
    if (seconds < 1)
        return QCoreApplication::translate("CaptureDelays", captureDelays[0].title);
    return preferenceText(QT_TRANSLATE_NOOP("Preferences", "%1 seconds")).arg(seconds);
}

Options arrowHeads() { return labelled<ArrowHeadStyle>(); }
Options obscureStyles() { return labelled<ObscureStyle>(); }
Options stamps() { return labelled<StampKind>(); }

Options spotlightShapes()
{
    return {
        { true, preferenceText(QT_TRANSLATE_NOOP("Preferences", "Ellipse")),
            Icons::icon(QLatin1StringView("ellipse")) },
        { false, preferenceText(QT_TRANSLATE_NOOP("Preferences", "Rectangle")),
            Icons::icon(QLatin1StringView("rectangle")) },
    };
}

Options retentions()
{
    Options options;
    for (const auto &retention : HistoryPruning::retentions)
        options += { retention.days, HistoryPruning::retentionTitle(retention.days) };
    return options;
}

QString otherRetention(int days) { return HistoryPruning::retentionTitle(days); }

} // namespace tessaly::PreferenceOptions
