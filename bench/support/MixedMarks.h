// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"

namespace tessaly::bench {

/// Marks of all kinds in turn, of the sizes and styles that people give them, spread over a canvas of this many points;
/// the same on every run. Each image mark has a picture of its own, of two pixels a point.
QList<Annotation> mixedMarks(int count, QSizeF canvas);

} // namespace tessaly::bench
