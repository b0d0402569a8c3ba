// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text/RecognizedContent.h"

#include <QSet>

#include <algorithm>

namespace tessaly {

namespace {

QList<RecognizedContent::Line> cleaned(QList<RecognizedContent::Line> lines)
{
    for (RecognizedContent::Line &line : lines) {
        line.text = line.text.trimmed();
        for (RecognizedContent::Word &word : line.words)
            word.text = word.text.trimmed();
        line.words.removeIf([](const RecognizedContent::Word &word) { return word.text.isEmpty(); });
    }
    lines.removeIf([](const RecognizedContent::Line &line) { return line.text.isEmpty(); });
    return lines;
}

/// Rows from top to bottom, each from left to right. A line belongs to the last row when it stands beside the row's
/// first line, the topmost.
QList<RecognizedContent::Line> inReadingOrder(QList<RecognizedContent::Line> lines)
{
    const auto top = [](const RecognizedContent::Line &line) { return line.boundingBox.top(); };
    const auto left = [](const RecognizedContent::Line &line) { return line.boundingBox.left(); };
    std::ranges::stable_sort(lines, {}, top);
    for (auto row = lines.begin(); row != lines.end();) {
        const auto next = std::find_if(row, lines.end(), [row](const RecognizedContent::Line &line) {
            return !RecognizedContent::areBeside(line.boundingBox, row->boundingBox);
        });
        // The very first is in its own row, however thin it is.
        const auto end = std::max(next, row + 1);
        std::stable_sort(row, end, [&left](const auto &one, const auto &other) { return left(one) < left(other); });
        row = end;
    }
    return lines;
}

} // namespace

std::optional<QUrl> RecognizedContent::Code::webURL() const
{
    const QUrl url(payload.trimmed(), QUrl::StrictMode);
    const bool isWeb = url.scheme() == u"http" || url.scheme() == u"https"; // QUrl writes schemes in small letters
    return url.isValid() && isWeb && !url.host().isEmpty() ? std::optional(url) : std::nullopt;
}

bool RecognizedContent::areBeside(const QRectF &one, const QRectF &other)
{
    // Exactly half is not enough, and stays so when the boxes come from divisions by the picture's size.
    constexpr double rounding = 1e-9;
    const double common = std::min(one.bottom(), other.bottom()) - std::max(one.top(), other.top());
    return common > std::min(one.height(), other.height()) / 2 + rounding;
}

QString RecognizedContent::text() const
{
    QString text;
    const Line *previous = nullptr;
    for (const Line &line : lines) {
        if (previous)
            text += areBeside(line.boundingBox, previous->boundingBox) ? u' ' : u'\n';
        text += line.text;
        previous = &line;
    }
    return text;
}

RecognizedContent RecognizedContent::arranged(QList<Line> lines, QList<Code> codes)
{
    QSet<QString> seen;
    codes.removeIf([&seen](const Code &code) {
        const bool isNew = !code.payload.isEmpty() && !seen.contains(code.payload);
        seen.insert(code.payload);
        return !isNew;
    });
    std::ranges::stable_sort(
        codes, {}, [](const Code &code) { return std::pair(code.boundingBox.top(), code.boundingBox.left()); });
    return { inReadingOrder(cleaned(std::move(lines))), std::move(codes) };
}

} // namespace tessaly
