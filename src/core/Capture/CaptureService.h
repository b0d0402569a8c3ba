// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureRequest.h"
#include "core/Screen/SelectionOverlay.h"

#include <QObject>

#include <chrono>
#include <memory>

namespace tessaly {

class Alerts;
class CaptureCountdown;
class CaptureHistory;
class ExportService;
class OwnWindows;
class PostCaptureRouter;
class Settings;
class Sounds;
class SystemScreenshotWatcher;
class TextCopier;
class Toasts;

/// The one way to a capture: from a request over the user's selection to the picture's destination. Every operation
/// returns at once. One for the program; main thread only.
class CaptureService : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        Settings &settings;
        ScreenSource &screen;
        WindowSource &windows;
        WindowPicker &picker;
        SelectionOverlay &overlay;
        CaptureCountdown &countdown;
        OwnWindows &ownWindows;
        PostCaptureRouter &router;
        CaptureHistory &history;
        ExportService &exports;
        TextCopier &textCopier;
        SystemScreenshotWatcher &watcher;
        Sounds &sounds;
        Toasts &toasts;
        Alerts &alerts;
        /// The least time between hiding own windows and the picture, and the most that is waited for them.
        std::chrono::milliseconds hidden { 150 };
        std::chrono::milliseconds longestWait { 500 };
        /// Without a request for so long, what captures keep for the next one is given back.
        std::chrono::milliseconds rest { 60'000 };
    };
    explicit CaptureService(const Surroundings &surroundings);
    ~CaptureService() override;

    /// A request that runs is cancelled, and ends so. Without a last region a request for it only beeps.
    void start(CaptureRequest request);
    /// Ends the request that waits for the user or for its picture, where there is one, as cancelled.
    void cancel();

    void capture(CaptureMode mode, CaptureSink sink = CaptureSink::Editor);
    void captureFrontWindow(CaptureSink sink);
    /// To the editor; the primary display without an id.
    void captureFullScreen(std::optional<quint32> displayID);
    void captureLastRegion();
    bool hasLastRegion() const;
    /// Whether a request has not ended, also while its failure or a panel is shown.
    bool isBusy() const;

    /// For menus: the monitors, and whether windows can be picked.
    QList<Display> displays() const;
    bool canPickWindows() const;

    /// Makes ready what the first selection would wait for, until the rest.
    void prepare();

Q_SIGNALS:
    /// isBusy() has become false.
    void becameIdle();

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
