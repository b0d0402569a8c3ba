// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Document/FileLoading.h"

#include <future>

namespace tessaly {

/// Reads the file that the program was started with while the windows are being made.
class EarlyReading {
public:
    /// Begins to read `path`; empty is none.
    explicit EarlyReading(const QString &path);

    /// What was read from the path, once; empty when it needs an application to be read, or cannot be.
    std::optional<LoadedFile> take(const QString &path);

private:
    QString m_path;
    std::future<LoadedFile> m_loaded;
};

} // namespace tessaly
