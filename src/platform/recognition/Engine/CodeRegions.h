// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QList>
#include <QRect>

namespace tessaly {

/// Where in a picture in Format_Grayscale8 a matrix code could be: square patches full of edges in both directions,
/// apart from what is around them. The likeliest first, and not more than there is time to look at.
[[nodiscard]] QList<QRect> codeRegions(const QImage &gray);

} // namespace tessaly
