// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/TextPainter.h"

#include <algorithm>

namespace tessaly {

void prepareSticker(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    static const QColor primaryText(28, 28, 30);
    constexpr double filledShare = 0.94; // of the box, by the ink
    const QRectF box = mark.rect();
    if (mark.text.trimmed().isEmpty() || box.isEmpty())
        return;
    const TextShape &shape = context.text.shape(mark.text.trimmed(), {});
    if (shape.ink.isEmpty())
        return;
    const double fontSize = filledShare * std::min(box.width() / shape.ink.width(), box.height() / shape.ink.height());
    // Letters get a halo, which colour pictures do not need, to be seen on dark ground too.
    addText(shape,
        { cornerForInkCentre(shape, fontSize, box.center()), fontSize, primaryText, std::max(fontSize * 0.035, 0.75),
            Qt::white },
        context, out);
}

} // namespace tessaly
