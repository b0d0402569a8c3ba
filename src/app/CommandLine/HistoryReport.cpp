// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/HistoryReport.h"

#include "app/CommandLine/Console.h"
#include "app/CommandLine/HistoryAccess.h"
#include "core/History/HistorySearch.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <ranges>

namespace tessaly::HistoryReport {

namespace {

constexpr qsizetype excerptLength = 64;
constexpr qsizetype lettersBeforeHit = 20;

/// Whether the text has a word, by the rules of the search.
bool has(const QString &word, const QString &text)
{
    const HistoryEntry stand { .id = QUuid(), .recognizedText = text };
    return !HistorySearch().matches(word, { stand }).isEmpty();
}

/// A piece of a long line around the end of the first place that has the word: folding may change the length of a text,
/// so the place is found by trying.
QString around(const QString &word, const QString &line)
{
    if (line.size() <= excerptLength)
        return line;
    const auto lengths = std::views::iota(qsizetype(0), line.size());
    const qsizetype end
        = *std::ranges::partition_point(lengths, [&](qsizetype length) { return !has(word, line.left(length)); });
    const qsizetype start = std::clamp(
        end - word.size() - lettersBeforeHit, qsizetype(0), std::max(line.size() - excerptLength, qsizetype(0)));
    QString piece = line.mid(start, excerptLength);
    if (start > 0)
        piece.prepend(u'…');
    if (start + excerptLength < line.size())
        piece.append(u'…');
    return piece;
}

/// The first place of the text that has one of the words; empty when none has, as when the title has them.
QString excerpt(const QString &text, const QStringList &words)
{
    static const QRegularExpression lineEnds(QStringLiteral("[\\n\\f]"));
    const QStringList lines = text.split(lineEnds, Qt::SkipEmptyParts);
    for (const QString &word : words) {
        if (!has(word, text))
            continue;
        const auto line = std::ranges::find_if(lines, [&word](const QString &each) { return has(word, each); });
        if (line != lines.end())
            return around(word, line->simplified());
    }
    return {};
}

QString sizeOf(const HistoryEntry &entry)
{
    return QStringLiteral("%1×%2").arg(QString::number(entry.pixelWidth), QString::number(entry.pixelHeight));
}

} // namespace

QByteArray json(const QList<HistoryEntry> &entries)
{
    QJsonArray array;
    for (const HistoryEntry &entry : entries)
        array.append(entry.toJson());
    return QJsonDocument(array).toJson();
}

QByteArray text(const QList<HistoryEntry> &entries, const QString &query)
{
    const QStringList words = query.simplified().split(u' ', Qt::SkipEmptyParts);
    qsizetype sizeWidth = 0;
    for (const HistoryEntry &entry : entries)
        sizeWidth = std::max(sizeWidth, sizeOf(entry).size());
    QString report;
    for (const HistoryEntry &entry : entries) {
        report += QStringLiteral("%1  %2  %3  %4\n")
                      .arg(entry.id.toString(QUuid::WithoutBraces).left(HistoryAccess::shortIdLength),
                          entry.created.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")),
                          sizeOf(entry).leftJustified(sizeWidth), Console::printable(entry.title));
        const QString hit = words.isEmpty() ? QString() : excerpt(entry.recognizedText.value_or(QString()), words);
        if (!hit.isEmpty())
            report += QString(HistoryAccess::shortIdLength + 2, u' ') + Console::printable(hit) + u'\n';
    }
    return report.toUtf8();
}

} // namespace tessaly::HistoryReport
