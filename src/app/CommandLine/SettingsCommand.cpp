// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/Text.h"
#include "core/Preferences/AppPresence.h"
#include "core/Preferences/SettingTable.h"

#include <QJsonDocument>

namespace tessaly {

namespace {

/// As get prints it and set reads it; the shortest number that reads back the same.
QString textOf(const QJsonValue &value)
{
    if (value.isBool())
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    return value.isDouble() ? QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest) : value.toString();
}

QByteArray asTable(const Settings &settings)
{
    qsizetype width = 0;
    for (const SettingRow &row : SettingTable::rows())
        width = std::max(width, qsizetype(qstrlen(row.name())));
    QString text;
    for (const SettingRow &row : SettingTable::rows()) {
        const QString value = Console::printable(textOf(SettingTable::value(settings, row)));
        const QString name = QLatin1StringView(row.name());
        text += (value.isEmpty() ? name : name.leftJustified(width + 2) + value) + u'\n';
    }
    return text.toUtf8();
}

QByteArray asJson(const Settings &settings)
{
    QJsonObject object;
    for (const SettingRow &row : SettingTable::rows())
        object.insert(QLatin1StringView(row.name()), SettingTable::value(settings, row));
    return QJsonDocument(object).toJson();
}

Result<const SettingRow *> named(const QString &key)
{
    if (const SettingRow *row = SettingTable::find(key))
        return row;
    const QString nearest = SettingTable::nearest(key);
    return Failure { nearest.isEmpty()
            ? Text::tr("There is no setting \"%1\"; tessaly settings list shows them all.").arg(key)
            : Text::tr("There is no setting \"%1\"; perhaps you mean %2.").arg(key, nearest) };
}

ExitStatus runGet(const QString &key, CommandContext &context)
{
    const auto row = named(key);
    if (!row)
        return context.report(row.failure());
    return context.print(textOf(SettingTable::value(context.settings(), **row)).toUtf8() + '\n');
}

/// Without windows and without an icon nobody could reach the program: the icon then comes back, which is said.
void keepReachable(CommandContext &context)
{
    Settings &settings = context.settings();
    const bool wasHidden = !AppPresence::showInMenuBar(settings);
    AppPresence::apply(settings);
    if (wasHidden && AppPresence::showInMenuBar(settings))
        context.console().message(Text::tr("Either showInDock or showInMenuBar has to be true; showInMenuBar is now."));
}

ExitStatus changed(const Outcome &outcome, CommandContext &context)
{
    if (outcome)
        keepReachable(context);
    return context.report(outcome);
}

ExitStatus runSet(const QString &key, const QString &text, CommandContext &context)
{
    const auto row = named(key);
    if (!row)
        return context.report(row.failure());
    const auto value = SettingTable::parse(**row, text);
    if (!value)
        return context.report(value.failure());
    return changed(SettingTable::store(context.settings(), **row, *value), context);
}

ExitStatus runReset(const std::optional<QString> &key, bool all, CommandContext &context)
{
    if (all == key.has_value()) {
        context.console().message(Text::tr("Either a key or --all says what to reset."));
        return ExitStatus::WrongUsage;
    }
    if (all)
        return context.report(SettingTable::resetAll(context.settings()));
    const auto row = named(*key);
    if (!row)
        return context.report(row.failure());
    return changed(context.settings().reset((*row)->name()), context);
}

constexpr char keyHelp[] = "Name of a setting, as the list shows it";

CommandBody setUpList(CommandOptions &options)
{
    auto json = std::make_shared<bool>(false);
    options.flag(*json, "--json", "Print JSON: one object of every setting and its value");
    return [json](CommandContext &context) {
        return context.print(*json ? asJson(context.settings()) : asTable(context.settings()));
    };
}

CommandBody setUpGet(CommandOptions &options)
{
    auto key = std::make_shared<QString>();
    options.input(*key, "KEY", keyHelp);
    return [key](CommandContext &context) { return runGet(*key, context); };
}

CommandBody setUpSet(CommandOptions &options)
{
    auto key = std::make_shared<QString>(), value = std::make_shared<QString>();
    options.input(*key, "KEY", keyHelp);
    options.input(*value, "VALUE", "true or false, a number, a color or a text, as the setting needs it");
    options.closing("The running program follows at once.");
    return [key, value](CommandContext &context) { return runSet(*key, *value, context); };
}

CommandBody setUpReset(CommandOptions &options)
{
    auto key = std::make_shared<std::optional<QString>>();
    auto all = std::make_shared<bool>(false);
    options.optional(*key, "KEY", " ", keyHelp);
    options.flag(*all, "--all", "Every setting of the list");
    return [key, all](CommandContext &context) { return runReset(*key, *all, context); };
}

constexpr Command settingsCommands[] = {
    { "list", "All settings and their values", setUpList },
    { "get", "The value of a setting", setUpGet },
    { "set", "Change a setting", setUpSet },
    { "reset", "Give a setting its default back", setUpReset },
};

} // namespace

CommandBody setUpSettings(CommandOptions &options)
{
    options.commands(settingsCommands);
    return {};
}

} // namespace tessaly
