// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/SettingTable.h"

#include "core/Preferences/AppLanguages.h"
#include "core/Preferences/HotKeyKeys.h"
#include "core/Preferences/Settings.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <vector>

namespace tessaly {

namespace {

namespace Keys = SettingKeys;

constexpr const char *appearances[] = { "system", "light", "dark" };
constexpr const char *tabs[] = { "general", "capture", "shortcuts", "editor", "history" };
constexpr const char *corners[] = { "bottomRight", "bottomLeft" };
constexpr const char *formats[] = { "png", "jpeg", "webp", "pdf", "tiff", "gif", "bmp" };
constexpr const char *arrowHeads[] = { "tapered", "filled", "open", "concave" };
constexpr const char *obscureStyles[] = { "pixelate", "blur", "solid", "stripes" };
constexpr const char *stampKinds[] = { "check", "cross", "exclamation", "question", "star", "dot", "number" };

constexpr auto languages = [] {
    std::array<const char *, std::size(appLanguages)> codes {};
    std::ranges::transform(appLanguages, codes.begin(), &AppLanguage::code);
    return codes;
}();

constexpr double longestDelay = 24 * 60 * 60; // a day, in seconds
constexpr double longestRetention = 1e6; // days
constexpr double allModifiers = 256 + 512 + 2048 + 4096;
constexpr double lastKeyCode = 65535;

constexpr SettingRow flag(const SettingKey<bool> &key) { return { &key, SettingType::Boolean }; }
constexpr SettingRow whole(const SettingKey<int> &key, double least, double most)
{
    return { &key, SettingType::Integer, least, most };
}
constexpr SettingRow real(const SettingKey<double> &key, double least, double most)
{
    return { &key, SettingType::Real, least, most };
}
constexpr SettingRow text(const SettingKey<const char *> &key, std::span<const char *const> choices = {})
{
    return { &key, SettingType::Text, 0, 0, choices };
}
constexpr SettingRow color(const SettingKey<const char *> &key) { return { &key, SettingType::Color }; }

constexpr SettingRow ordinaryRows[] = {
    flag(Keys::showInDock),
    flag(Keys::showInMenuBar),
    flag(Keys::showOnboardingOnLaunch),
    flag(Keys::didShowOnboarding),
    text(Keys::appearance, appearances),
    text(Keys::appLanguage, languages),
    text(Keys::settingsTab, tabs),
    flag(Keys::afterCaptureShow),
    flag(Keys::afterCaptureCopy),
    flag(Keys::afterCaptureSaveToDisk),
    flag(Keys::afterCaptureQuickAccess),
    text(Keys::quickAccessCorner, corners),
    text(Keys::exportFormat, formats),
    real(Keys::jpegQuality, 0, 1),
    real(Keys::webpQuality, 0, 1),
    text(Keys::defaultSaveFolder),
    flag(Keys::autoCopyAfterSave),
    flag(Keys::alsoSaveTessalyDocument),
    flag(Keys::copyAtFullSize),
    flag(Keys::adjustRegionBeforeCapture),
    flag(Keys::showMagnifierWhileSelecting),
    flag(Keys::freezeScreenWhileSelecting),
    flag(Keys::hideDesktopIconsWhileCapturing),
    flag(Keys::windowCaptureShadow),
    flag(Keys::windowCaptureTransparentBackground),
    whole(Keys::captureDelay, 0, longestDelay),
    flag(Keys::captureSound),
    flag(Keys::watchSystemScreenshots),
    text(Keys::systemScreenshotsFolder),
    flag(Keys::historyEnabled),
    whole(Keys::historyRetentionDays, 0, longestRetention),
    flag(Keys::showOptionsBar),
    text(Keys::toolBarHiddenParts),
    flag(Keys::liveTextEnabled),
    color(Keys::defaultColor),
    real(Keys::defaultLineWidth, 1, 60),
    text(Keys::defaultArrowHead, arrowHeads),
    real(Keys::defaultTextSize, 8, 144),
    text(Keys::defaultObscureStyle, obscureStyles),
    real(Keys::defaultObscureStrength, 0.5, 3),
    real(Keys::defaultHighlightOpacity, 0.1, 1),
    real(Keys::defaultSpotlightDim, 0.1, 0.9),
    flag(Keys::defaultSpotlightEllipse),
    text(Keys::defaultStampKind, stampKinds),
    flag(Keys::frameApplyAlways),
    real(Keys::sharpenAmount, 0, 200),
};

std::vector<SettingRow> allRows()
{
    std::vector<SettingRow> rows(std::begin(ordinaryRows), std::end(ordinaryRows));
    for (const HotKeyKeys &keys : hotKeyKeys) {
        rows.push_back(whole(keys.keyCode, 0, lastKeyCode));
        rows.push_back(whole(keys.modifiers, 0, allModifiers));
        rows.push_back(text(keys.keyLabel));
    }
    return rows;
}

QString tr(const char *sentence) { return QCoreApplication::translate("SettingTable", sentence); }

bool isColor(QStringView text)
{
    static const QRegularExpression shape(
        QStringLiteral("^#?([0-9a-f]{3}|[0-9a-f]{6}|[0-9a-f]{8})$"), QRegularExpression::CaseInsensitiveOption);
    return shape.match(text.toString()).hasMatch();
}

std::optional<bool> booleanOf(const QString &text)
{
    static const QStringList on { "true", "on", "yes", "1" }, off { "false", "off", "no", "0" };
    const QString lower = text.toLower();
    if (on.contains(lower))
        return true;
    return off.contains(lower) ? std::optional(false) : std::nullopt;
}

Failure refused(const SettingRow &row, const QString &text)
{
    const auto sentence = [&](const char *shape) {
        return tr(shape).arg(
            QLatin1StringView(row.name()), text, QString::number(row.least), QString::number(row.most));
    };
    switch (row.type) {
    case SettingType::Boolean:
        return { sentence(QT_TRANSLATE_NOOP("SettingTable", "%1 is either true or false, not \"%2\".")) };
    case SettingType::Integer:
        return { sentence(QT_TRANSLATE_NOOP("SettingTable", "%1 is a whole number from %3 to %4, not \"%2\".")) };
    case SettingType::Real:
        return { sentence(QT_TRANSLATE_NOOP("SettingTable", "%1 is a number from %3 to %4, not \"%2\".")) };
    case SettingType::Color:
        return { sentence(QT_TRANSLATE_NOOP("SettingTable", "%1 is a color like FF3366, not \"%2\".")) };
    case SettingType::Text:
        break;
    }
    QStringList choices;
    for (const char *choice : row.choices)
        choices += QLatin1StringView(choice);
    return { QCoreApplication::translate("SettingTable", "%1 is one of %3, not \"%2\".")
                 .arg(QLatin1StringView(row.name()), text, choices.join(u", ")) };
}

/// How many letters have to be put in, left out or changed to make one name of the other.
int distance(QStringView from, QStringView to)
{
    std::vector<int> row(size_t(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype line = 0; line < from.size(); ++line) {
        int diagonal = row[0]++;
        for (size_t column = 1; column < row.size(); ++column) {
            const bool same = from[line] == to[qsizetype(column) - 1];
            const int best = std::min({ row[column] + 1, row[column - 1] + 1, diagonal + (same ? 0 : 1) });
            diagonal = std::exchange(row[column], best);
        }
    }
    return row.back();
}

} // namespace

const char *SettingRow::name() const
{
    return std::visit([](const auto *each) { return each->name; }, key);
}

QJsonValue SettingRow::fallback() const
{
    return std::visit([](const auto *each) { return QJsonValue(each->fallback); }, key);
}

bool SettingRow::acceptsText(QStringView text) const
{
    if (type == SettingType::Color)
        return isColor(text);
    return choices.empty()
        || std::ranges::any_of(choices, [&](const char *choice) { return text == QLatin1StringView(choice); });
}

std::span<const SettingRow> SettingTable::rows()
{
    static const std::vector<SettingRow> table = allRows();
    return table;
}

const SettingRow *SettingTable::find(QStringView name)
{
    const auto row
        = std::ranges::find_if(rows(), [&](const SettingRow &each) { return name == QLatin1StringView(each.name()); });
    return row == rows().end() ? nullptr : &*row;
}

QString SettingTable::nearest(QStringView name)
{
    constexpr int farthest = 4;
    const QString wanted = name.toString().toLower();
    const auto away = [&](const SettingRow &row) {
        const QString known = QString::fromLatin1(row.name()).toLower();
        return known.contains(wanted) && wanted.size() > farthest ? 1 : distance(wanted, known);
    };
    const auto nearest = std::ranges::min_element(rows(), {}, away);
    return away(*nearest) <= farthest ? QString::fromLatin1(nearest->name()) : QString();
}

QJsonValue SettingTable::value(const Settings &settings, const SettingRow &row)
{
    return std::visit([&](const auto *key) { return QJsonValue(settings.value(*key)); }, row.key);
}

Result<QJsonValue> SettingTable::parse(const SettingRow &row, const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    const bool isWithin = isNumber && number >= row.least && number <= row.most;
    switch (row.type) {
    case SettingType::Boolean:
        if (const auto on = booleanOf(text))
            return QJsonValue(*on);
        break;
    case SettingType::Integer:
        if (isWithin && number == std::floor(number))
            return QJsonValue(static_cast<int>(number));
        break;
    case SettingType::Real:
        if (isWithin)
            return QJsonValue(number);
        break;
    case SettingType::Color: // without its sign, which begins a comment in a shell
        if (isColor(text))
            return QJsonValue(text.startsWith(u'#') ? text.toUpper() : u'#' + text.toUpper());
        break;
    case SettingType::Text:
        if (row.acceptsText(text))
            return QJsonValue(text);
        break;
    }
    return refused(row, text);
}

Outcome SettingTable::store(Settings &settings, const SettingRow &row, const QJsonValue &value)
{
    const QVariant plain = value.toVariant();
    return std::visit(
        [&](const auto *key) { return settings.set(*key, plain.value<decltype(settings.value(*key))>()); }, row.key);
}

Outcome SettingTable::resetAll(Settings &settings)
{
    return settings.changeTogether([&] {
        for (const SettingRow &row : rows())
            static_cast<void>(settings.reset(row.name())); // what fails, fails for all of them at the end
    });
}

} // namespace tessaly
