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
    PixelBudget &budget;
};

/// Turns one mark, whose numbers are in range, into what is painted.
using MarkPainter = void (*)(const Annotation &, const MarkContext &, PreparedMark &);

/// A painter with shared things in hand (fonts, decoded pictures) keeps to the thread that started the preparation;
/// the others run on any.
enum class PaintersThread { Any, Starting };

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
