// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/DesktopProgram.h"
#include "app/CommandLine/ExportCommand.h"
#include "app/CommandLine/HistoryAccess.h"
#include "app/CommandLine/HistoryReport.h"
#include "app/CommandLine/PendingTexts.h"
#include "app/CommandLine/Text.h"
#include "core/History/HistorySearch.h"

namespace tessaly {

namespace {

ExitStatus failed(CommandContext &context, const Failure &failure)
{
    context.console().message(failure.message);
    return ExitStatus::Failed;
}

struct ListOptions {
    QStringList words; ///< of a search
    bool json = false;
    bool skipsRecognition = false;
};

ExitStatus runList(const ListOptions &options, CommandContext &context)
{
    const auto entries = HistoryAccess::entries();
    if (!entries)
        return failed(context, entries.failure());
    if (entries->isEmpty() && !options.json)
        context.console().message(Text::tr("There are no captures in the history yet."));
    return context.print(options.json ? HistoryReport::json(*entries) : HistoryReport::text(*entries));
}

ExitStatus runSearch(const ListOptions &options, CommandContext &context)
{
    auto entries = HistoryAccess::entries();
    if (!entries)
        return failed(context, entries.failure());
    if (!options.skipsRecognition)
        PendingTexts::read(*entries, context);
    const QString query = options.words.join(u' ');
    const QList<HistoryEntry> found = HistorySearch().matches(query, *entries);
    if (found.isEmpty() && !options.json)
        context.console().message(entries->isEmpty() ? Text::tr("There are no captures in the history yet.")
                                                     : Text::tr("No capture contains \"%1\".").arg(query));
    return context.print(options.json ? HistoryReport::json(found) : HistoryReport::text(found, query));
}

/// The entries with these ids; the first that cannot be had is the failure.
Result<QList<HistoryEntry>> named(const QStringList &ids)
{
    const auto entries = HistoryAccess::entries();
    if (!entries)
        return entries.failure();
    QList<HistoryEntry> found;
    for (const QString &id : ids) {
        auto entry = HistoryAccess::find(id, *entries);
        if (!entry)
            return entry.failure();
        found += std::move(*entry);
    }
    return found;
}

ExitStatus runOpen(const QString &id, CommandContext &context)
{
    const auto entries = named({ id });
    if (!entries)
        return failed(context, entries.failure());
    QByteArray program = "tessaly", option = "--history-entry";
    QByteArray entry = entries->first().id.toByteArray(QUuid::WithoutBraces);
    char *arguments[] = { program.data(), option.data(), entry.data(), nullptr };
    return DesktopProgram::become(arguments, context.console());
}

ExitStatus runHistoryExport(const QString &id, ExportOptions options, CommandContext &context)
{
    const auto entries = named({ id });
    if (!entries)
        return failed(context, entries.failure());
    options.inputs = { HistoryAccess::files().packagePath(entries->first().id) };
    return runExport(options, context);
}

ExitStatus runRemove(const QStringList &ids, CommandContext &context)
{
    const auto entries = named(ids);
    if (!entries)
        return failed(context, entries.failure());
    QList<QUuid> removed;
    for (const HistoryEntry &entry : *entries)
        removed += entry.id;
    const Outcome outcome = HistoryAccess::remove(removed);
    return outcome ? ExitStatus::Done : failed(context, outcome.failure());
}

/// What emptying does, in words; to be answered.
QString emptyingQuestion(qsizetype count)
{
    const QString deleted = count == 1
        ? Text::tr("1 capture in the history will be deleted from this computer. This can't be undone.")
        : QString::number(count)
            + Text::tr(" captures in the history will be deleted from this computer. This can't be undone.");
    return Text::tr("Empty the history?") + u'\n' + deleted + u'\n'
        + Text::tr("Emptying the history doesn't touch the images and documents you saved yourself.");
}

ExitStatus runEmpty(bool isConfirmed, CommandContext &context)
{
    if (!isConfirmed && !Console::canAsk()) {
        context.console().message(
            Text::tr("There is no terminal to ask on whether to empty the history; --yes says so."));
        return ExitStatus::WrongUsage;
    }
    const auto entries = HistoryAccess::entries();
    if (!entries)
        return failed(context, entries.failure());
    if (entries->isEmpty())
        return ExitStatus::Done;
    if (!isConfirmed && !context.console().confirms(emptyingQuestion(entries->size())))
        return ExitStatus::Failed;
    const Outcome outcome = HistoryAccess::removeAll();
    return outcome ? ExitStatus::Done : failed(context, outcome.failure());
}

constexpr char jsonHelp[] = "Print JSON: an array of the captures, with all that the history knows of each";

CommandBody setUpList(CommandOptions &options)
{
    auto chosen = std::make_shared<ListOptions>();
    options.flag(chosen->json, "--json", jsonHelp);
    return [chosen](CommandContext &context) { return runList(*chosen, context); };
}

CommandBody setUpSearch(CommandOptions &options)
{
    auto chosen = std::make_shared<ListOptions>();
    options.inputs(chosen->words, "QUERY", "Words that must all be in a capture's title, date or text");
    options.flag(chosen->json, "--json", jsonHelp);
    options.flag(chosen->skipsRecognition, "--no-recognition",
        "Do not first read the text of captures that has not been read yet, which takes a second or two for each");
    return [chosen](CommandContext &context) { return runSearch(*chosen, context); };
}

constexpr char idHelp[] = "Id of a capture, as the list shows it, or as much of its beginning as no other has";

CommandBody setUpOpenCapture(CommandOptions &options)
{
    auto id = std::make_shared<QString>();
    options.input(*id, "ID", idHelp);
    return [id](CommandContext &context) { return runOpen(*id, context); };
}

CommandBody setUpHistoryExport(CommandOptions &options)
{
    auto id = std::make_shared<QString>();
    auto chosen = std::make_shared<ExportOptions>();
    options.input(*id, "ID", idHelp);
    chosen->declare(options);
    chosen->input.declareMaxPixels(options);
    return [id, chosen](CommandContext &context) { return runHistoryExport(*id, *chosen, context); };
}

CommandBody setUpRemove(CommandOptions &options)
{
    auto ids = std::make_shared<QStringList>();
    options.inputs(*ids, "ID", "Ids of captures, or as much of their beginnings as no others have");
    return [ids](CommandContext &context) { return runRemove(*ids, context); };
}

CommandBody setUpEmpty(CommandOptions &options)
{
    auto isConfirmed = std::make_shared<bool>(false);
    options.flag(*isConfirmed, "--yes", "Do not ask");
    return [isConfirmed](CommandContext &context) { return runEmpty(*isConfirmed, context); };
}

constexpr Command historyCommands[] = {
    { "list", "All captures, the newest first", setUpList },
    { "search", "The captures with words in their title, date or text", setUpSearch },
    { "open", "Open a capture in the editor", setUpOpenCapture },
    { "export", "Write a capture with its marks, frame and watermark", setUpHistoryExport },
    { "remove", "Delete captures from the history", setUpRemove },
    { "empty", "Delete all captures from the history", setUpEmpty },
};

} // namespace

CommandBody setUpHistory(CommandOptions &options)
{
    options.commands(historyCommands);
    return {};
}

} // namespace tessaly
