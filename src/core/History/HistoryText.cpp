// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryText.h"

namespace tessaly::HistoryText {

static constexpr QChar pageBreak = u'\f';

static QString withoutPages(QString text) { return text.replace(pageBreak, u'\n'); }

QString ofMarks(const QList<Annotation> &annotations, const std::optional<Watermark> &watermark)
{
    QStringList lines;
    for (const Annotation &mark : annotations) {
        if (mark.kind == AnnotationKind::Text || mark.kind == AnnotationKind::Sticker)
            lines += mark.text;
        else if (mark.kind == AnnotationKind::Stamp)
            lines += mark.stampLabel;
    }
    if (watermark && watermark->kind == WatermarkKind::Text)
        lines += watermark->text;
    lines.removeIf([](const QString &line) { return line.trimmed().isEmpty(); });
    return withoutPages(lines.join(u'\n'));
}

std::optional<QString> joined(const std::optional<QString> &picture, const QString &marks)
{
    const auto plain = picture ? std::optional(withoutPages(*picture)) : std::nullopt;
    if (marks.isEmpty())
        return plain;
    // A page that was read ends with a line feed, also when it is empty.
    return (plain ? *plain + u'\n' : QString()) + pageBreak + marks;
}

std::optional<QString> pictureOf(const std::optional<QString> &stored)
{
    const auto end = stored ? stored->indexOf(pageBreak) : -1;
    if (end < 0)
        return stored;
    return end == 0 ? std::nullopt : std::optional(stored->left(end - 1));
}

bool isRead(const std::optional<QString> &stored) { return stored && !stored->startsWith(pageBreak); }

QString marksOf(const std::optional<QString> &stored)
{
    const auto end = stored ? stored->indexOf(pageBreak) : -1;
    return end < 0 ? QString() : stored->mid(end + 1);
}

} // namespace tessaly::HistoryText
