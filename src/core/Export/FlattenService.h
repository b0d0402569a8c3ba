// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"
#include "core/Rendering/FrameComposition.h"

#include <optional>

namespace tessaly {

class Alerts;
class AnnotationStore;

/// Burns a capture's marks, frame and watermark into one picture.
namespace FlattenService {

/// The finished picture at the capture's own pixels per point, never below 1. Empty when the capture has no area or
/// there is no memory for it. The bytes do not depend on `threads`; 0 means as many as the machine has.
std::optional<RasterImage> flatten(const AnnotationStore &store, int threads = 0);

/// The same for an export that the user asked for: says so when there is no picture.
std::optional<RasterImage> flattenOrAlert(const AnnotationStore &store, Alerts &alerts);

/// The framed view of a capture: a value that another thread may take, whatever becomes of the store.
FrameComposition composition(const AnnotationStore &store);

/// The finished picture of such a view, as above. Any thread.
std::optional<RasterImage> flatten(const FrameComposition &framed, int threads = 0);

/// Says that there is no finished picture.
void alertOfFailure(Alerts &alerts);

} // namespace FlattenService

} // namespace tessaly
