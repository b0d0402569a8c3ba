// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/MarkPainters.h"

namespace tessaly {

static constexpr MarkPainterRow painters[] {
    { AnnotationKind::Arrow, prepareArrow, PaintersThread::Any },
    { AnnotationKind::Text, prepareText, PaintersThread::Starting },
    { AnnotationKind::Rectangle, prepareRectangle, PaintersThread::Any },
    { AnnotationKind::Ellipse, prepareEllipse, PaintersThread::Any },
    { AnnotationKind::Line, prepareLine, PaintersThread::Any },
    { AnnotationKind::Highlight, prepareHighlight, PaintersThread::Any },
    { AnnotationKind::Pixelate, prepareObscured, PaintersThread::Any },
    { AnnotationKind::Stamp, prepareStamp, PaintersThread::Starting },
    { AnnotationKind::Pen, preparePen, PaintersThread::Any },
    { AnnotationKind::Spotlight, nullptr, PaintersThread::Any },
    { AnnotationKind::Sticker, prepareSticker, PaintersThread::Starting },
    { AnnotationKind::ImageOverlay, prepareImageOverlay, PaintersThread::InOrder },
    { AnnotationKind::Magnifier, nullptr, PaintersThread::Any },
};

const MarkPainterRow &painterOf(AnnotationKind kind)
{
    static_assert(std::size(painters) == enumNames<AnnotationKind>.size());
    return *std::find_if(
        std::begin(painters), std::end(painters), [kind](const auto &row) { return row.kind == kind; });
}

} // namespace tessaly
