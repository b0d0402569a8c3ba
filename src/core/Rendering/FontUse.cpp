// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/FontUse.h"

#include "core/Annotation/MarkLimits.h"

#include <algorithm>

namespace tessaly {

static bool stampWrites(const Annotation &stamp)
{
    const bool letter = stamp.stamp == StampKind::Exclamation || stamp.stamp == StampKind::Question;
    const bool number = stamp.stamp == StampKind::Number && !stamp.text.trimmed().isEmpty();
    return letter || number || !stamp.stampLabel.isEmpty();
}

static bool writes(const Annotation &stored)
{
    switch (stored.kind) {
    case AnnotationKind::Text:
    case AnnotationKind::Sticker:
        return !stored.text.trimmed().isEmpty();
    case AnnotationKind::Stamp:
        return stampWrites(stored);
    default:
        return false;
    }
}

bool needsFonts(const QList<Annotation> &annotations, const std::optional<Watermark> &watermark)
{
    const bool marked = watermark && watermark->kind == WatermarkKind::Text && watermark->isVisible();
    return marked || std::any_of(annotations.begin(), annotations.end(), [](const Annotation &mark) {
        return writes(mark) && MarkLimits::drawable(mark).has_value();
    });
}

} // namespace tessaly
