// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

#include <QObject>
#include <QRect>

#include <functional>
#include <memory>
#include <optional>

namespace tessaly {

class ExportService;
class Settings;
class Toasts;
class WindowLayers;

/// The pictures that stay above other windows. One for the program. There must be a QApplication.
class PinnedScreenshotController : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        const Settings &settings;
        ExportService &exports;
        WindowLayers &layers;
        Toasts &toasts;
    };
    explicit PinnedScreenshotController(const Surroundings &surroundings);
    ~PinnedScreenshotController() override;

    /// "Open in Editor".
    std::function<void(RasterImage image)> openEditor = [](const RasterImage &) {};

    /// `near` is in Qt's points of the whole desktop; in the middle of the screen without it.
    void pin(const RasterImage &image, std::optional<QRect> near = {});
    void closeAll();
    /// Lets all of them be moved and clicked again.
    void unlockAll();
    int count() const;
    int lockedCount() const; ///< of those that clicks pass through

Q_SIGNALS:
    void countsChanged();

private:
    void tellLocked(bool locked);

    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
