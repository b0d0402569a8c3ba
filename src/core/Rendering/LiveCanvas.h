// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Frame/FrameStyle.h"
#include "core/Frame/Watermark.h"
#include "core/Imaging/ImageEffects.h"
#include "core/Imaging/RasterImage.h"

#include <QColor>
#include <QRegion>

#include <memory>

namespace tessaly {

/// What an editor shows of an open capture.
struct LiveScene {
    RasterImage image;
    QList<Annotation> annotations;
    std::optional<FrameStyle> frame;
    std::optional<Watermark> watermark;
    std::optional<QUuid> editingID = {}; ///< the mark whose text is drawn elsewhere
    std::optional<ImageEffects::NoiseSeed> noiseSeed = {}; ///< for tests; else that of this run
};

/// How a window shows it. All lengths are device pixels of the window's screen.
struct LiveView {
    QSize pixelSize; ///< of the visible area
    double pixelsPerPoint = 1; ///< device pixels per image point
    QPoint pixelOrigin; ///< of the framed canvas's top-left corner within the visible area; may be negative
    QColor surround; ///< around the canvas
    QColor checkerLight, checkerDark; ///< the checkerboard of 8-point cells behind what is transparent

    bool operator==(const LiveView &) const = default;
};

/// The picture of the visible part of a capture with its marks, frame and watermark, kept up to date at the cost of
/// what changed.
///
/// It paints with the steps that exports are painted with: where one device pixel is one pixel of the capture, what is
/// seen is what is exported, but for the checkerboard. Main thread only; uses other threads while it works.
class LiveCanvas {
public:
    LiveCanvas();
    ~LiveCanvas();

    /// Brings the picture up to date and returns the device pixels that changed. Only marks that differ from the last
    /// call, and those that show them again (loupes), are prepared anew.
    QRegion update(const LiveScene &scene, const LiveView &view);

    /// Format_RGB32, of the view's size; null before the first update.
    const QImage &picture() const;

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
