// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/EntryTexts.h"

#include <QCoreApplication>
#include <QLocale>

namespace tessaly::EntryTexts {

namespace {

QString pixelSize(const HistoryEntry &entry)
{
    return QStringLiteral(u"%1 × %2").arg(entry.pixelWidth).arg(entry.pixelHeight);
}

QString day(const QDateTime &created, const QDateTime &now)
{
    const QDate date = created.toLocalTime().date();
    const qint64 daysAgo = date.daysTo(now.toLocalTime().date());
    if (daysAgo == 0)
        return QCoreApplication::translate("EntryTexts", "Today");
    return daysAgo == 1 ? QCoreApplication::translate("EntryTexts", "Yesterday")
                        : QLocale().toString(date, QLocale::ShortFormat);
}

/// Without the seconds that some languages write even in the short form.
QString timeOfDay(const QDateTime &created)
{
    const QString format = QLocale().timeFormat(QLocale::ShortFormat).remove(QStringLiteral(":ss"));
    return QLocale().toString(created.toLocalTime().time(), format);
}

} // namespace

QString title(const HistoryEntry &entry)
{
    const QString title = entry.title.simplified();
    return title.isEmpty() ? QCoreApplication::translate("EntryTexts", "Screenshot") : title;
}

QString moment(const QDateTime &created, const QDateTime &now)
{
    return QCoreApplication::translate("EntryTexts", "%1, %2").arg(day(created, now), timeOfDay(created));
}

QStringList subtitles(const HistoryEntry &entry, const QDateTime &now)
{
    const QString size = QStringLiteral(u" · ") + pixelSize(entry);
    return { moment(entry.created, now) + size, day(entry.created, now) + size, moment(entry.created, now),
        day(entry.created, now) };
}

QString spoken(const HistoryEntry &entry)
{
    return title(entry) + QStringLiteral(", ") + QLocale().toString(entry.created.toLocalTime(), QLocale::LongFormat);
}

QString toolTip(const HistoryEntry &entry)
{
    return title(entry) + u'\n' + QLocale().toString(entry.created.toLocalTime(), QLocale::LongFormat) + u'\n'
        + pixelSize(entry);
}

QString retention(double days)
{
    if (days < 1)
        return QCoreApplication::translate("EntryTexts", "Captures are kept only on this Mac, until you delete them.");
    return QCoreApplication::translate("EntryTexts", "Captures are kept only on this Mac, for %1 days.")
        .arg(qint64(days));
}

} // namespace tessaly::EntryTexts
