// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/PendingTexts.h"

#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/HistoryAccess.h"
#include "app/CommandLine/InterruptionGuard.h"
#include "app/CommandLine/Text.h"
#include "app/CommandLine/TextReading.h"
#include "core/History/HistoryKeeper.h"
#include "core/History/HistoryText.h"

#include <algorithm>

namespace tessaly::PendingTexts {

namespace {

bool isPending(const HistoryEntry &entry) { return !HistoryText::pictureOf(entry.recognizedText); }

Result<QString> textOf(const HistoryEntry &entry, TextReading &reading)
{
    auto contents = TessalyDocument::contents(HistoryAccess::files().packagePath(entry.id));
    if (!contents)
        return Failure { contents.failure().description() };
    const auto content = reading.read(std::move(contents->image), TextRecognizer::Codes::Detect);
    if (!content)
        return content.failure();
    return content->text();
}

/// Keeps the text. The folder is held for this moment only, so that a Tessaly that starts meanwhile can have it.
Outcome keep(const QUuid &id, const QString &text)
{
    const InterruptionGuard guard;
    HistoryKeeper keeper(HistoryAccess::files());
    if (keeper.role() == HistoryKeeper::Role::Guest)
        return Done {};
    const auto known = std::ranges::find(keeper.entries(), id, &HistoryEntry::id);
    if (known == keeper.entries().end() || !isPending(*known))
        return Done {};
    HistoryEntry entry = *known;
    entry.recognizedText = HistoryText::joined(text, HistoryText::marksOf(entry.recognizedText));
    const Outcome updated = keeper.update(entry);
    return updated ? keeper.files().clearRecognizing(id) : updated;
}

} // namespace

void read(QList<HistoryEntry> &entries, CommandContext &context)
{
    const auto total = static_cast<int>(std::ranges::count_if(entries, isPending));
    if (total == 0)
        return;
    Console &console = context.console();
    auto reading = TextReading::create(context);
    std::optional<Failure> problem, notKept;
    if (!reading)
        problem = reading.failure();
    int done = 0, failed = reading ? 0 : total;
    for (auto entry = entries.begin(); reading && entry != entries.end(); ++entry) {
        if (!isPending(*entry))
            continue;
        console.progress(done++, total, Text::tr("Reading the text of new captures"));
        auto text = textOf(*entry, *reading);
        if (!text) {
            problem = text.failure();
            ++failed;
            continue;
        }
        entry->recognizedText = HistoryText::joined(*text, HistoryText::marksOf(entry->recognizedText));
        // What stopped one would stop the others too, and is told once.
        if (const Outcome kept = notKept ? Outcome(Done {}) : keep(entry->id, *text); !kept)
            notKept = kept.failure();
    }
    console.endProgress();
    if (notKept)
        console.message(Text::tr("The text that was read could not be kept: %1").arg(notKept->message));
    if (problem)
        console.message(Text::tr("The text of %1 of the captures could not be read: %2")
                            .arg(QString::number(failed), problem->message));
}

} // namespace tessaly::PendingTexts
