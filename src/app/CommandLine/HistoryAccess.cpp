// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/HistoryAccess.h"

#include "app/CommandLine/InterruptionGuard.h"
#include "app/CommandLine/Text.h"
#include "core/History/HistoryKeeper.h"

#include <algorithm>

namespace tessaly::HistoryAccess {

namespace {

QString digitsOf(const QString &id) { return id.toLower().remove(u'-').remove(u'{').remove(u'}'); }

/// Makes a change as the keeper where there is none, else as its guest.
Outcome change(const std::function<Outcome(HistoryKeeper &)> &make)
{
    const InterruptionGuard guard;
    HistoryKeeper keeper(files());
    return make(keeper);
}

} // namespace

HistoryStore files() { return { HistoryStore::defaultDirectory() }; }

Result<QList<HistoryEntry>> entries()
{
    HistoryKeeper keeper(files());
    HistoryStore::Loaded loaded = keeper.load();
    if (loaded.problem)
        return *loaded.problem;
    return std::move(loaded.entries);
}

Result<HistoryEntry> find(const QString &prefix, const QList<HistoryEntry> &entries)
{
    const QString wanted = digitsOf(prefix);
    QList<HistoryEntry> found;
    std::ranges::copy_if(entries, std::back_inserter(found), [&wanted](const HistoryEntry &entry) {
        return !wanted.isEmpty() && digitsOf(entry.id.toString()).startsWith(wanted);
    });
    if (found.size() == 1)
        return found.first();
    if (found.isEmpty())
        return Failure { Text::tr("There is no capture \"%1\" in the history.").arg(prefix) };
    return Failure {
        Text::tr("%1 captures of the history begin with \"%2\".").arg(QString::number(found.size()), prefix)
    };
}

Outcome remove(const QList<QUuid> &ids)
{
    return change([&ids](HistoryKeeper &keeper) { return keeper.remove(ids); });
}

Outcome removeAll()
{
    return change([](HistoryKeeper &keeper) { return keeper.removeAll(); });
}

} // namespace tessaly::HistoryAccess
