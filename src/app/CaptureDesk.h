// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureCountdown.h"
#include "core/Capture/CaptureService.h"
#include "core/Capture/PostCaptureRouter.h"
#include "core/Capture/SystemScreenshotWatcher.h"
#include "core/Desktop/WindowLayers.h"
#include "platform/desktop/DesktopSounds.h"
#include "ui/Overlay/CountdownWindow.h"
#include "ui/Overlay/HiddenWindows.h"
#include "ui/Overlay/OverlayController.h"
#include "ui/QuickAccess/PinnedScreenshotController.h"
#include "ui/QuickAccess/QuickAccessController.h"

namespace tessaly {

class Clipboard;
class Clock;
class OpenPanels;

/// All services of capturing, made and joined.
class CaptureDesk {
public:
    struct Surroundings {
        Settings &settings;
        Clipboard &clipboard;
        ExportService &exports;
        CaptureHistory &history;
        TextCopier &textCopier;
        TextCopier *quickAccessCopier; ///< of the thumbnails; null is none
        Toasts &toasts;
        Alerts &alerts;
        OpenPanels &openPanels;
        const Clock &clock;
        WindowLayers &layers;
        std::function<void(RasterImage image, QString title)> openEditor;
    };
    explicit CaptureDesk(const Surroundings &surroundings);

    CaptureService &captures() { return m_captures; }
    const CaptureService &captures() const { return m_captures; }
    PinnedScreenshotController &pins() { return m_pins; }
    const PinnedScreenshotController &pins() const { return m_pins; }
    QuickAccessController &thumbnails() { return m_thumbnails; }
    SystemScreenshotWatcher &watcher() { return m_watcher; }

private:
    std::unique_ptr<ScreenSource> m_screen;
    std::unique_ptr<WindowSource> m_windows;
    DesktopSounds m_sounds;
    WindowPicker m_picker;
    OverlayController m_overlay;
    CountdownWindow m_countdownWindow;
    CaptureCountdown m_countdown;
    HiddenWindows m_ownWindows;
    SystemScreenshotWatcher m_watcher;
    PostCaptureRouter m_router;
    PinnedScreenshotController m_pins;
    QuickAccessController m_thumbnails;
    CaptureService m_captures;
};

} // namespace tessaly
