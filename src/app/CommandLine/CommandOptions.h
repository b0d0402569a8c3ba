// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine/Command.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <span>
#include <variant>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace tessaly {

/// What one command accepts. The targets must live until the command's body has run; they are set while parsing.
/// `flags` is written "-o,--output"; `shape` stands for the value in the help; long help texts are wrapped.
class CommandOptions {
public:
    void input(QString &target, const char *shape, const char *help);
    void inputs(QStringList &target, const char *shape, const char *help);

    void required(QString &target, const char *flags, const char *shape, const char *help);
    void optional(std::optional<QString> &target, const char *flags, const char *shape, const char *help);

    /// A number from `lowest` to `highest`; anything else is wrong usage.
    void number(std::optional<double> &target, const char *flags, std::pair<double, double> range, const char *help);
    void wholeNumber(
        std::optional<qint64> &target, const char *flags, std::pair<qint64, qint64> range, const char *help);
    void flag(bool &target, const char *flags, const char *help);

    /// Commands of their own below this one, exactly one of which must be named.
    void commands(std::span<const Command> rows);

    /// Text below the options of the help page.
    void closing(const char *text);

    struct Parser;

private:
    friend struct Parser;
    CommandOptions(CLI::App &app, CommandBody &chosen);
    CLI::Option &add(const char *flags, const char *shape, const char *help, std::function<void(const QString &)> take);

    CLI::App &m_app;
    CommandBody &m_chosen;
};

/// What the arguments ask for: a command's work, or a text to print (help, version), or what is wrong with them.
struct HelpText {
    QByteArray text;
};
struct WrongUsage {
    QString sentence;
};
using ParsedArguments = std::variant<CommandBody, HelpText, WrongUsage>;

ParsedArguments parseArguments(int argc, char **argv, std::span<const Command> commands);

} // namespace tessaly
