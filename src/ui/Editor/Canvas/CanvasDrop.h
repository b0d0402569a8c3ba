// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QPointF>

class QMimeData;

namespace tessaly {

class AnnotationStore;

/// Pictures that are dropped onto a canvas.
namespace CanvasDrop {

/// Whether there is a picture in it. Documents of this program are for the window to open.
bool canTake(const QMimeData &data);

/// Puts what was dropped at an image point.
Outcome take(const QMimeData &data, AnnotationStore &store, QPointF at);

} // namespace CanvasDrop

} // namespace tessaly
