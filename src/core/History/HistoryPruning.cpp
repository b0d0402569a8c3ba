// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryPruning.h"

#include "core/Preferences/Settings.h"

#include <QCoreApplication>

#include <algorithm>

namespace tessaly::HistoryPruning {

QString retentionTitle(int days)
{
    const auto *offered = std::ranges::find(retentions, days, &Retention::days);
    if (offered == std::end(retentions))
        return retentionTitle(0);
    return QCoreApplication::translate("HistoryPruning", offered->title);
}

int retentionDays(const Settings &settings)
{
    constexpr int most = 1000000; // so that any number in the file can be counted with
    return std::clamp(settings.value(SettingKeys::historyRetentionDays), 0, most);
}

QList<QUuid> expired(
    const QList<HistoryEntry> &entries, int retentionDays, const QDateTime &now, const QSet<QUuid> &open)
{
    constexpr qint64 millisecondsPerDay = 86'400'000;
    QList<QUuid> ids;
    const QList<HistoryEntry> newestFirst = sorted(entries);
    for (qsizetype position = 0; position < newestFirst.size(); ++position) {
        const HistoryEntry &entry = newestFirst[position];
        const bool isOld = retentionDays >= 1 && entry.created.msecsTo(now) > retentionDays * millisecondsPerDay;
        if ((isOld || position >= maxEntries) && !open.contains(entry.id))
            ids += entry.id;
    }
    return ids;
}

} // namespace tessaly::HistoryPruning
