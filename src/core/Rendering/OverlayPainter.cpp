// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/MarkPainters.h"
#include "core/Rendering/ScaledPicture.h"

namespace tessaly {

void prepareImageOverlay(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    if (!mark.imageData || mark.rect().isEmpty())
        return;
    const QImage picture = context.overlays.picture(mark.id, *mark.imageData);
    if (!picture.isNull())
        out.add(pictureFor(picture, mark.rect(), context.grid.scale(), context.paintable, context.overlayBudget));
}

} // namespace tessaly
