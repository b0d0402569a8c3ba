// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/FileLoading.h"

namespace tessaly {

LoadedFile loadFile(const QString &path, const ImageReadOptions &options)
{
    if (TessalyDocument::isDocument(path)) {
        auto contents = TessalyDocument::contents(path, options);
        if (!contents)
            return Failure { contents.failure().description() };
        return std::move(*contents);
    }
    auto image = readImageFile(path, options);
    if (!image)
        return image.failure();
    return std::move(*image);
}

} // namespace tessaly
