// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"
#include "core/Capture/PostCaptureRouter.h"
#include "core/Capture/SystemScreenshotWatcher.h"
#include "core/Export/ExportService.h"
#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"
#include "core/Text/TextCopier.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeLayers.h"
#include "tests/support/FakeRecognition.h"
#include "tests/support/OffscreenScreens.h"
#include "ui/QuickAccess/PinnedScreenshotController.h"

#include <QApplication>
#include <QCursor>
#include <QTest>

namespace tessaly::test {

/// Screens of 1, 2 and 1.5 pixels per point. Before the QApplication is made.
inline void useThreeScreens(const QTemporaryDir &folder)
{
    constexpr QSize size(1600, 1200);
    useOffscreenScreens(folder, { { "one", 0, size, 1 }, { "two", 1600, size, 2 }, { "half", 3200, size, 1.5 } });
}

/// The services around thumbnails and pins over stand-ins for the desktop.
class FloatsFixture {
public:
    QTemporaryDir folder;
    FakeClock clock;
    Settings settings { QString() };
    FakeClipboard clipboard;
    FakeAlerts alerts;
    FakeSavePanels panels;
    FakeOpenPanels openPanels;
    FakeSharing sharing;
    FakeToasts toasts;
    FakeLinks links;
    FakeRecognizer recognizer;
    DirectWork work;
    FakeLayers layers;
    ExportService exports { { settings, clipboard, alerts, panels, sharing, work, clock } };
    CaptureHistory history { { { folder.filePath(QStringLiteral("History")) }, settings, clock } };
    SystemScreenshotWatcher watcher { { settings, openPanels, clock } };
    PostCaptureRouter router { { settings, exports, history, watcher, alerts, clock } };
    TextCopier textCopier { recognizer, clipboard, toasts, links };
    PinnedScreenshotController pins { { settings, exports, layers, toasts } };

    /// The windows of that class that can be seen.
    template <class Window>
    static QList<Window *> shown()
    {
        QList<Window *> windows;
        for (QWidget *each : QApplication::topLevelWidgets()) {
            if (auto *window = qobject_cast<Window *>(each); window && window->isVisible())
                windows += window;
        }
        return windows;
    }

    static RasterImage picture(QSize pixels, double pixelsPerPoint = 1, QColor color = Qt::darkCyan)
    {
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(color);
        return RasterImage::fromPixels(image, pixelsPerPoint);
    }
};

} // namespace tessaly::test
