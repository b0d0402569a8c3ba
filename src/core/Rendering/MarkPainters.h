// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Imaging/ImageEffects.h"
#include "core/Rendering/CaptureSample.h"
#include "core/Rendering/PaintSteps.h"
#include "core/Rendering/PictureCaches.h"
#include "core/Rendering/PixelGrid.h"
#include "core/Rendering/ScaledPicture.h"
#include "core/Rendering/TextShaper.h"

namespace tessaly {

/// What the painters of marks draw from. One for a whole preparation.
struct MarkContext {
    PixelGrid grid; ///< of the final pixels
    QRectF paintable; ///< points; nothing beyond it can be seen
    CaptureSample sample;
    ImageEffects::NoiseSeed noiseSeed;
    TextShaper &text;
    OverlayCache &overlays;
    ObscuredCache &obscured;
    PixelBudget &glyphBudget;
    PixelBudget &overlayBudget;
};

/// Turns one mark, whose numbers are in range, into what is painted.
using MarkPainter = void (*)(const Annotation &, const MarkContext &, PreparedMark &);

enum class PaintersThread {
    Any,
    InOrder, ///< any, but one mark after the other as they are drawn: they share a limit
    Starting, ///< the one that started the preparation, which owns the fonts
};

struct MarkPainterRow {
    AnnotationKind kind;
    MarkPainter prepare; ///< null for what is drawn among others: spotlights together, loupes from the marks below
    PaintersThread thread;
};
const MarkPainterRow &painterOf(AnnotationKind kind);

void prepareArrow(const Annotation &mark, const MarkContext &context, PreparedMark &out);
void prepareText(const Annotation &mark, const MarkContext &context, PreparedMark &out);
void prepareRectangle(const Annotation &mark, const MarkContext &context, PreparedMark &out);
void prepareEllipse(const Annotation &mark, const MarkContext &context, PreparedMark &out);
void prepareLine(const Annotation &mark, const MarkContext &context, PreparedMark &out);
void prepareHighlight(const Annotation &mark, const MarkContext &context, PreparedMark &out);
void preparePen(const Annotation &mark, const MarkContext &context, PreparedMark &out);
void prepareObscured(const Annotation &mark, const MarkContext &context, PreparedMark &out);
void prepareStamp(const Annotation &mark, const MarkContext &context, PreparedMark &out);
void prepareSticker(const Annotation &mark, const MarkContext &context, PreparedMark &out);
void prepareImageOverlay(const Annotation &mark, const MarkContext &context, PreparedMark &out);

/// The dimming of all but the spotlights' holes, of all spotlights at once.
void prepareSpotlights(
    const QList<Annotation> &spotlights, const QRectF &canvas, const QRectF &paintable, PreparedMark &out);

} // namespace tessaly
