// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CommandOptions.h"

#include "app/CommandLine/Text.h"
#include "core/Document/TessalyDocument.h"

// The only source that includes the parser: its header takes longer to compile than the rest of this folder.
#include <CLI/CLI.hpp>

#include <cmath>
#include <limits>

namespace tessaly {

namespace {

constexpr std::size_t terminalColumns = 80;
constexpr std::size_t helpColumn = 28;

/// Breaks a help text so that it fits the space right of the option names.
std::string wrapped(const char *text)
{
    constexpr qsizetype columns = terminalColumns - helpColumn;
    QString result;
    qsizetype used = 0;
    for (const QString &word : QString::fromUtf8(text).split(u' ')) {
        const bool fits = used + 1 + word.size() <= columns;
        if (used > 0)
            result += fits ? u' ' : u'\n';
        used = (used > 0 && fits ? used + 1 : 0) + word.size();
        result += word;
    }
    return result.toStdString();
}

/// The parser hands bytes as the shell gave them; Qt's file functions take them back the same way.
QString fromArgument(const std::string &bytes) { return QString::fromLocal8Bit(bytes.c_str()); }

/// A number as it is written everywhere, whatever the locale; empty for anything that is no finite number.
std::optional<double> finiteNumber(const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<qint64> wholeNumber(const QString &text)
{
    bool ok = false;
    const qint64 value = text.toLongLong(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

/// The shortest way to write an option.
std::string flagOf(const CLI::Option &option)
{
    return option.get_snames().empty() ? "--" + option.get_lnames().front() : '-' + option.get_snames().front();
}

/// "tessaly history" for the group of that name.
std::string fullName(const CLI::App &app)
{
    return app.get_parent() ? fullName(*app.get_parent()) + ' ' + app.get_name() : app.get_display_name();
}

/// The parser's pages, with air after the summary and the options that must be given in the usage line.
class HelpPages final : public CLI::Formatter {
public:
    HelpPages()
    {
        column_width(helpColumn);
        label("SUBCOMMAND", "COMMAND");
        label("Positionals", "Arguments");
    }

    std::string make_description(const CLI::App *app) const override { return app->get_description() + ".\n\n"; }

    std::string make_usage(const CLI::App *app, std::string name) const override
    {
        std::string usage = CLI::Formatter::make_usage(app, std::move(name));
        usage.pop_back(); // its line break
        for (const CLI::Option *option : app->get_options()) {
            if (option->get_required() && !option->get_positional())
                usage += ' ' + flagOf(*option) + ' ' + option->get_option_text();
        }
        if (!app->get_parent())
            usage += "\n       " + app->get_display_name()
                + " [FILE...]    opens pictures and documents in the editor,\n"
                  "                            or without any shows the captures that were kept";
        return usage + '\n';
    }
};

/// The full name of the command that the arguments got to: "tessaly capture full-screen".
QString nameOf(const CLI::App &app)
{
    QString name = QString::fromStdString(app.get_name());
    for (const CLI::App *below : app.get_subcommands())
        name += u' ' + nameOf(*below);
    return name;
}

/// What is wrong with the arguments, as one sentence that ends with where the help is. An argument that nothing took
/// explains more than what the parser misses because of it.
QString sentenceOf(const CLI::Error &error, const CLI::App &app)
{
    const auto strangers = app.remaining(true);
    const QString message = strangers.empty()
        ? QString::fromLocal8Bit(error.what())
              .simplified()
              .replace(QLatin1StringView("subcommand"), QLatin1StringView("command"))
        : Text::tr("\"%1\" is not known here").arg(fromArgument(strangers.front()));
    return Text::tr("%1 (see %2 --help).").arg(message, nameOf(app));
}

} // namespace

struct CommandOptions::Parser {
    CLI::App app { "Screenshots with marks, frames and watermarks, from the command line", "tessaly" };
    CommandBody chosen;

    explicit Parser(std::span<const Command> commands)
    {
        app.formatter(std::make_shared<HelpPages>());
        app.set_help_flag("-h,--help", "Print this help and exit");
        app.set_version_flag("--version", TessalyDocument::generator().toStdString(), "Print the version and exit");
        CommandOptions(app, chosen).commands(commands);
    }
};

CommandOptions::CommandOptions(CLI::App &app, CommandBody &chosen) : m_app(app), m_chosen(chosen) { }

CLI::Option &CommandOptions::add(
    const char *flags, const char *shape, const char *help, std::function<void(const QString &)> take)
{
    const auto set = [take = std::move(take)](const std::string &value) { take(fromArgument(value)); };
    CLI::Option *option = m_app.add_option_function<std::string>(flags, set, wrapped(help));
    option->option_text(shape)->type_name("value");
    return *option;
}

void CommandOptions::input(QString &target, const char *shape, const char *help)
{
    add(shape, " ", help, [&target](const QString &value) { target = value; }).required();
}

void CommandOptions::inputs(QStringList &target, const char *shape, const char *help)
{
    const auto set = [&target](const std::vector<std::string> &values) {
        for (const std::string &value : values)
            target += fromArgument(value);
    };
    m_app.add_option_function<std::vector<std::string>>(shape, set, wrapped(help))->option_text("...")->required();
}

void CommandOptions::required(QString &target, const char *flags, const char *shape, const char *help)
{
    add(flags, shape, help, [&target](const QString &value) { target = value; }).required();
}

void CommandOptions::optional(std::optional<QString> &target, const char *flags, const char *shape, const char *help)
{
    add(flags, shape, help, [&target](const QString &value) { target = value; });
}

void CommandOptions::number(
    std::optional<double> &target, const char *flags, std::pair<double, double> range, const char *help)
{
    CLI::Option &option = add(flags, "N", help, [&target](const QString &value) { target = finiteNumber(value); });
    option.check([range](const std::string &value) {
        const auto number = finiteNumber(fromArgument(value));
        if (number && *number >= range.first && *number <= range.second)
            return std::string();
        return Text::tr("\"%1\" is not a number from %2 to %3")
            .arg(fromArgument(value), QString::number(range.first), QString::number(range.second))
            .toStdString();
    });
}

void CommandOptions::wholeNumber(
    std::optional<qint64> &target, const char *flags, std::pair<qint64, qint64> range, const char *help)
{
    CLI::Option &option
        = add(flags, "N", help, [&target](const QString &text) { target = tessaly::wholeNumber(text); });
    option.check([range](const std::string &value) {
        const auto number = tessaly::wholeNumber(fromArgument(value));
        if (number && *number >= range.first && *number <= range.second)
            return std::string();
        return Text::tr("\"%1\" is not a whole number from %2 to %3")
            .arg(fromArgument(value), QString::number(range.first), QString::number(range.second))
            .toStdString();
    });
}

void CommandOptions::flag(bool &target, const char *flags, const char *help)
{
    m_app.add_flag(flags, target, wrapped(help));
}

void CommandOptions::commands(std::span<const Command> rows)
{
    m_app.require_subcommand(1);
    m_app.footer("Each command has its own help: " + fullName(m_app)
        + " COMMAND --help\n"
          "Exit status: 0 done, 1 the work failed, 2 wrong usage.");
    for (const Command &row : rows) {
        CLI::App *below = m_app.add_subcommand(row.name, row.summary)->group("Commands");
        below->footer("");
        CommandOptions options(*below, m_chosen);
        if (CommandBody body = row.setUp(options))
            below->final_callback([&chosen = m_chosen, body = std::move(body)] { chosen = body; });
    }
}

void CommandOptions::closing(const char *text) { m_app.footer(text); }

ParsedArguments parseArguments(int argc, char **argv, std::span<const Command> commands)
{
    CommandOptions::Parser parser(commands);
    std::ostringstream help;
    try {
        parser.app.parse(argc, argv);
    } catch (const CLI::Success &request) { // help or version
        parser.app.exit(request, help, help);
        return HelpText { QByteArray::fromStdString(help.str()) };
    } catch (const CLI::Error &error) {
        return WrongUsage { sentenceOf(error, parser.app) };
    }
    return std::move(parser.chosen);
}

} // namespace tessaly
