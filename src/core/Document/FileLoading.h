// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Document/TessalyDocument.h"

#include <variant>

namespace tessaly {

/// What stands behind a path: a document, a picture, or the sentence that says why neither can be had.
using LoadedFile = std::variant<Failure, TessalyDocument::Contents, RasterImage>;

/// Reads a document package or a picture file. Any thread.
LoadedFile loadFile(const QString &path, const ImageReadOptions &options = {});

} // namespace tessaly
