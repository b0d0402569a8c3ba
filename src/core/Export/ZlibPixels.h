// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/PixelRows.h"

#include <QByteArray>

#include <vector>

namespace tessaly {

/// The rows of a picture as one zlib stream, as PNG's IDAT chunks and PDF's Flate filter hold it. The pieces joined in
/// their order are the stream; none is empty. They do not depend on the number of threads, 0 meaning as many as the
/// machine has.
std::vector<QByteArray> zlibPixels(const PixelRows &rows, int threads);

} // namespace tessaly
