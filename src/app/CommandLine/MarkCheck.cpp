// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/MarkCheck.h"

#include "app/CommandLine/Text.h"
#include "core/Annotation/MarkLimits.h"

namespace tessaly::MarkCheck {

namespace {

/// What becomes of one mark.
struct Verdict {
    QString reason; ///< empty for a mark that is drawn as it stands
    bool drawn = true;
};

Verdict verdict(const Annotation &mark, const ImageReadOptions &options)
{
    if (mark.kind == AnnotationKind::ImageOverlay && mark.imageData) {
        const auto picture = readImage(*mark.imageData, QStringLiteral("imageData"), options);
        if (!picture)
            return { picture.failure().message, false };
    }
    if (const auto problem = MarkLimits::problem(mark))
        return { *problem, MarkLimits::drawable(mark).has_value() };
    return {};
}

/// Collects the verdicts of one document into its sentence.
class Tally {
public:
    Tally(int skipped, const QString &firstReason) : m_leftOut(skipped), m_first(firstReason) { }

    void add(const Verdict &verdict)
    {
        if (verdict.reason.isEmpty())
            return;
        (verdict.drawn ? m_adjusted : m_leftOut) += 1;
        if (m_first.isEmpty())
            m_first = verdict.reason;
    }

    std::optional<QString> sentence(qsizetype total) const
    {
        QStringList counts;
        if (m_leftOut > 0)
            counts += Text::tr("%1 of %2 marks left out").arg(m_leftOut).arg(total);
        if (m_adjusted > 0)
            counts += Text::tr("%1 of %2 marks drawn with a value brought into range").arg(m_adjusted).arg(total);
        if (counts.isEmpty())
            return std::nullopt;
        QString reason = m_first;
        while (reason.endsWith(u'.'))
            reason.chop(1);
        return Text::tr("%1; the first: %2.").arg(counts.join(Text::tr(" and ")), reason);
    }

private:
    int m_leftOut = 0;
    int m_adjusted = 0;
    QString m_first;
};

} // namespace

std::optional<QString> setAside(AnnotationDocument &document, const ImageReadOptions &options)
{
    const qsizetype total = document.annotations.size() + document.skippedAnnotations;
    Tally tally(document.skippedAnnotations, document.firstSkippedReason);
    document.annotations.removeIf([&](const Annotation &mark) {
        const Verdict result = verdict(mark, options);
        tally.add(result);
        return !result.drawn;
    });
    auto remark = tally.sentence(total);
    const auto logo = document.watermark ? problem(*document.watermark, options) : std::nullopt;
    if (logo) {
        document.watermark.reset();
        remark = remark ? *remark + u' ' + *logo : *logo;
    }
    return remark;
}

std::optional<QString> problem(const Watermark &watermark, const ImageReadOptions &options)
{
    if (watermark.kind != WatermarkKind::Image || !watermark.imageData)
        return std::nullopt;
    const auto logo = readImage(*watermark.imageData, QStringLiteral("The watermark's imageData"), options);
    return logo ? std::nullopt : std::optional(logo.failure().message);
}

} // namespace tessaly::MarkCheck
