// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Frame/FrameStyle.h"
#include "core/Frame/Watermark.h"
#include "core/Imaging/RasterImage.h"

namespace tessaly {

/// What one undo step puts back. Its parts are implicitly shared, so a step costs no copy of the picture.
struct Snapshot {
    QList<Annotation> annotations;
    RasterImage image;
    int nextStampNumber = 1;
    std::optional<FrameStyle> frame;
    std::optional<Watermark> watermark;

    bool operator==(const Snapshot &) const = default;
};

} // namespace tessaly
