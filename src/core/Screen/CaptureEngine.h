// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/SelectionOverlay.h"

/// Turns a monitor, a part of one or a window into a finished picture. Keeps nothing.
namespace tessaly::CaptureEngine {

/// "No display was found.", "No front window was found." and "Couldn't crop the selected region.".
Failure noDisplay();
Failure noFrontWindow();
Failure cropFailed();
/// No window has the number; the command that lists them is named.
Failure noSuchWindow(quint64 id);

/// The display with that id, the primary one without an id; absent when there is none.
std::optional<Display> display(const QList<Display> &displays, std::optional<quint32> id);

/// Edges rounded to whole device pixels, in points; a scale that is not above 0 is 1.
QRectF pixelAligned(const QRectF &rect, double scale);

/// The device pixels that an area in points covers once its edges are aligned to them.
QRect pixelsOf(const QRectF &rect, double scale);

/// A part of a monitor's picture, in memory of its own. Fails (cropFailed) when nothing of it lies in the picture.
Result<RasterImage> crop(const QImage &picture, const QRect &pixelRect, double scale);

struct Shadow {
    double blur = 40; ///< points from where the shadow is full to where it ends: twice the Gaussian's deviation
    double offsetY = 18; ///< points, downward
    double opacity = 0.33;
    double margin = 64; ///< points, on every side
};
/// The picture with a black shadow on a transparent margin; what is transparent in it throws none. The picture as it is
/// where there is not the memory.
RasterImage withShadow(const RasterImage &image, const Shadow &shadow = {});

/// Whole monitors one after the other, those that failed left out; `answer` has the last failure when none succeeded,
/// and noDisplay() when there was none to take. The source outlives the answer.
void snapshotDisplays(ScreenSource &source, const QList<Display> &displays, bool leavesOutDesktopIcons,
    std::function<void(Result<DisplaySnapshots>)> answer);

} // namespace tessaly::CaptureEngine
