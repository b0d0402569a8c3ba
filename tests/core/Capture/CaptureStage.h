// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureService.h"
#include "core/Capture/PostCaptureRouter.h"
#include "core/Capture/SystemScreenshotWatcher.h"
#include "core/Export/ExportService.h"
#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"
#include "core/Text/TextCopier.h"
#include "tests/support/FakeCapture.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeRecognition.h"
#include "tests/support/FakeScreen.h"

#include <QTemporaryDir>

namespace tessaly::test {

using std::chrono::milliseconds;

/// Everything around captures, over a desktop of fakes: a monitor of scale 2 at the left of one of scale 1, whose
/// pixels tell where they are.
struct CaptureStage {
    explicit CaptureStage(milliseconds hidden = milliseconds(1), milliseconds rest = milliseconds(60'000)) :
        service({ settings, screen, windows, picker, overlay, countdown, ownWindows, router, history, exports, copier,
            watcher, sounds, toasts, alerts, hidden, milliseconds(60), rest })
    {
        screen.add(QStringLiteral("left"), QRect(0, 0, 80, 60), 2, placePicture({ 80, 60 }));
        screen.add(QStringLiteral("right"), QRect(80, 0, 50, 40), 1, placePicture({ 50, 40 }));
        windows.list = { { .id = 7, .title = QStringLiteral("seven"), .layoutRect = { 10, 10, 20, 10 } } };
        windows.front = WindowSource::Application { QStringLiteral("Files"), 1 };
        const auto note = [this](const QString &event) { events += event; };
        screen.note = windows.note = overlay.note = view.note = ownWindows.note = sounds.note = note;
        QObject::connect(&clipboard, &Clipboard::changed, &clipboard, [this] { events += QStringLiteral("copy"); });
        router.openEditor = [this](const RasterImage &image, const QString &title) {
            events += QStringLiteral("editor ") + title;
            shown = image;
        };
        router.showThumbnail = [this](const RasterImage &image) {
            events += QStringLiteral("thumbnail");
            shown = image;
        };
    }

    static QImage placePicture(QSize size)
    {
        QImage picture(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                picture.setPixel(x, y, qRgb(x, y, 99));
        return picture;
    }

    CaptureRequest request(CaptureSubject subject, CaptureSink sink = CaptureSink::Editor)
    {
        return { .subject = subject, .sink = sink, .finished = [this](const CaptureOutcome &how) { outcomes += how; } };
    }
    RegionSelection area(QRect pixelRect) const { return { screen.monitors.first(), pixelRect, {} }; }
    RegionSelection window() const { return { screen.monitors.first(), QRect(10, 10, 20, 10), windows.list.first() }; }

    QTemporaryDir folder;
    QStringList events;
    QList<CaptureOutcome> outcomes;
    RasterImage shown; ///< by the editor or the thumbnail

    Settings settings { {} };
    FakeClock clock;
    FakeScreen screen;
    FakeWindows windows;
    WindowPicker picker { windows };
    FakeOverlay overlay;
    FakeCountdownView view;
    CaptureCountdown countdown { view, { milliseconds(1), milliseconds(1) } };
    FakeOwnWindows ownWindows;
    FakeClipboard clipboard;
    FakeAlerts alerts;
    FakeSavePanels savePanels;
    FakeSharing sharing;
    DirectWork work;
    ExportService exports { { settings, clipboard, alerts, savePanels, sharing, work, clock } };
    CaptureHistory history { { { folder.filePath(QStringLiteral("History")) }, settings, clock } };
    FakeRecognizer recognizer;
    FakeToasts toasts;
    FakeLinks links;
    TextCopier copier { recognizer, clipboard, toasts, links };
    FakeOpenPanels openPanels;
    SystemScreenshotWatcher watcher { { settings, openPanels, clock, milliseconds(5) } };
    PostCaptureRouter router { { settings, exports, history, watcher, alerts, clock } };
    FakeSounds sounds;
    CaptureService service;
};

} // namespace tessaly::test
