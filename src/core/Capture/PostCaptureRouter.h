// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Imaging/RasterImage.h"

#include <functional>
#include <memory>
#include <optional>

namespace tessaly {

class Alerts;
class CaptureHistory;
class Clock;
class ExportService;
class Settings;
class SystemScreenshotWatcher;

/// Does with a capture what the settings say. Main thread only.
class PostCaptureRouter {
public:
    struct Surroundings {
        Settings &settings;
        ExportService &exports;
        CaptureHistory &history;
        SystemScreenshotWatcher &watcher;
        Alerts &alerts;
        const Clock &clock;
    };
    explicit PostCaptureRouter(const Surroundings &surroundings) : m_surroundings(surroundings) { }

    /// Opens an editor that the history follows.
    std::function<void(RasterImage image, QString title)> openEditor = [](const RasterImage &, const QString &) {};
    /// Shows a quick-access thumbnail.
    std::function<void(RasterImage image)> showThumbnail = [](const RasterImage &) {};

    /// A capture for the editor. `historyTitle` names it where no editor shows it.
    void handleCapturedImage(const RasterImage &image, const QString &title, const QString &historyTitle);
    /// Adds a capture that no editor shows to the history. Waits for the disk when several are still on their way
    /// there: pictures that come faster than they are encoded must not fill the memory.
    void record(const RasterImage &image, const QString &title);
    /// A file of the desktop's own tool, by its name. It is never saved again.
    void handleSystemScreenshot(const RasterImage &image, const QString &title);

    /// Saves in the default folder under the time's name. Without such a folder, and when it could not be saved there,
    /// the user is asked where. The path; empty when the user cancelled. A failure has been told to the user.
    Result<QString> saveToDisk(const RasterImage &image);
    /// The same to this very file, which is replaced; its format by its extension, PNG by any other.
    Result<QString> saveTo(const QString &path, const RasterImage &image);

    /// The file name's time: "2024-01-31 at 09.15.02".
    QString timestamp() const;
    Outcome setDefaultSaveFolder(const QString &folder);
    /// Absent when none is chosen or it is gone.
    std::optional<QString> resolveDefaultFolder() const;

private:
    /// In the folder, under the first free name.
    Result<QString> writeInto(const QString &folder, const QByteArray &bytes, QLatin1StringView extension);
    Failure tell(Failure failure);

    Surroundings m_surroundings;
    std::shared_ptr<int> m_unwritten
        = std::make_shared<int>(0); ///< of what was recorded; shared with the history's answers
};

} // namespace tessaly
