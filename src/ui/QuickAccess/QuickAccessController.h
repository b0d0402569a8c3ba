// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

#include <QObject>

#include <functional>
#include <memory>

namespace tessaly {

class Clipboard;
class ExportService;
class PinnedScreenshotController;
class PostCaptureRouter;
class Settings;
class TextCopier;
class Toasts;
class WindowLayers;

/// The thumbnails of the last captures in a corner of the screen. One for the program. There must be a QApplication.
class QuickAccessController : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        const Settings &settings;
        ExportService &exports;
        PostCaptureRouter &router; ///< saves, and opens the editor
        TextCopier *textCopier = nullptr; ///< without one thumbnails have no "Copy Text"
        PinnedScreenshotController &pins;
        WindowLayers &layers;
        Toasts &toasts;
        std::chrono::milliseconds lifetime { 6000 };
        std::chrono::milliseconds afterHover { 3000 };
    };
    explicit QuickAccessController(const Surroundings &surroundings);
    ~QuickAccessController() override;

    void show(const RasterImage &image);
    bool isEmpty() const;

Q_SIGNALS:
    /// The last thumbnail has gone.
    void emptied();

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
