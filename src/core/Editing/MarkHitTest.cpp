// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkHitTest.h"

namespace tessaly::MarkHitTest {

namespace {

/// Calls `visit` with the marks that are hit, from the top, until it returns false.
void forHits(const Query &query, TextGeometry &text, const auto &visit)
{
    for (const bool spotlights : { false, true }) {
        for (auto mark = query.marks.rbegin(); mark != query.marks.rend(); ++mark) {
            if ((mark->kind == AnnotationKind::Spotlight) != spotlights || !hits(*mark, query, text))
                continue;
            if (!visit(*mark))
                return;
        }
    }
}

/// Whether a text cannot reach the point, whatever its font: measuring all texts at every movement would be slow.
bool isFarFromText(const Annotation &mark, const Query &query)
{
    constexpr double widest = 12, highest = 3; // of the font size: a character, a line
    const double characters = double(mark.text.size() + 1), lines = double(mark.text.count(u'\n') + 1);
    const QRectF most(mark.p1, QSizeF(widest * characters, highest * lines) * mark.fontSize);
    const double margin = query.tolerance;
    return !most.adjusted(-margin, -margin, margin, margin).contains(query.point);
}

} // namespace

bool hits(const Annotation &mark, const Query &query, TextGeometry &text)
{
    if (mark.kind == AnnotationKind::Text && isFarFromText(mark, query))
        return false;
    if (MarkShape::distance(mark, query.point, text) <= query.tolerance)
        return true;
    return query.selectedID == mark.id && MarkShape::isInsideOutline(mark, query.point);
}

const Annotation *topmost(const Query &query, TextGeometry &text)
{
    const Annotation *found = nullptr;
    forHits(query, text, [&](const Annotation &mark) {
        // The empty inside of the selected shape gives way to what is seen through it.
        const bool isSeen = MarkShape::distance(mark, query.point, text) <= query.tolerance;
        if (isSeen || !found)
            found = &mark;
        return !isSeen;
    });
    return found;
}

const Annotation *nextBelow(const Query &query, TextGeometry &text)
{
    const Annotation *first = nullptr, *next = nullptr;
    bool passedSelected = false;
    forHits(query, text, [&](const Annotation &mark) {
        if (!first)
            first = &mark;
        if (passedSelected)
            next = &mark;
        passedSelected = passedSelected || query.selectedID == mark.id;
        return !next;
    });
    return next ? next : first;
}

} // namespace tessaly::MarkHitTest
