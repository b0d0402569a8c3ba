// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EarlyReading.h"

#include <QThread>

namespace tessaly {

EarlyReading::EarlyReading(const QString &path)
{
    if (path.isEmpty())
        return;
    m_path = path;
    QThread::currentThread(); // the first thread that Qt meets is the main thread to it
    m_loaded = std::async(std::launch::async, [path] { return loadFile(path, { .withPlugIns = false }); });
}

std::optional<LoadedFile> EarlyReading::take(const QString &path)
{
    if (!m_loaded.valid() || path != m_path)
        return std::nullopt;
    LoadedFile loaded = m_loaded.get();
    // What failed without plug-ins may be read with them, and says better what is wrong when it cannot.
    return std::holds_alternative<Failure>(loaded) ? std::nullopt : std::optional(std::move(loaded));
}

} // namespace tessaly
