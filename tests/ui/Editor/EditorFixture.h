// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"
#include "core/Document/DocumentActions.h"
#include "core/Document/RecentDocuments.h"
#include "core/Editing/MarkCommands.h"
#include "core/Frame/FrameSettings.h"
#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"
#include "core/Text/TextCopier.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeRecognition.h"
#include "ui/Editor/EditorView.h"
#include "ui/Style/Appearance.h"

#include <QTemporaryDir>

namespace tessaly::test {

/// Long work done at once, or cancelled before it began.
class FakeWork final : public LongWork {
public:
    QStringList titles;
    bool cancels = false;

    bool run(const QString &title, Body body) override
    {
        titles += title;
        if (!cancels)
            body(Cancellation());
        return !cancels;
    }
};

/// All services of an editor over stand-ins for the desktop.
class EditorFixture {
public:
    QTemporaryDir folder;
    FakeClock clock;
    Settings settings { QString() };
    Appearance appearance { settings };
    SavedStyles styles { settings };
    CopiedStyle copiedStyle;
    FrameSettings frameSettings { settings, folder.path() };
    RecentDocuments recentDocuments { settings };
    FakeClipboard clipboard;
    FakeSharing sharing;
    FakeAlerts alerts;
    FakeSavePanels panels;
    FakeOpenPanels openPanels;
    FakeWork work;
    ExportService exports { { settings, clipboard, alerts, panels, sharing, work, clock } };
    DocumentActions documents { { settings, alerts, panels, work, exports, recentDocuments } };
    CaptureHistory history { { { folder.filePath(QStringLiteral("History")) }, settings, clock } };
    FakeRecognizer recognizer;
    FakeToasts toasts;
    FakeLinks links;
    TextCopier textCopier { recognizer, clipboard, toasts, links };
    EditorServices services { settings, styles, copiedStyle, frameSettings, clipboard, alerts, work, exports, documents,
        recentDocuments, appearance, clock, history, recognizer, textCopier, toasts, links, openPanels };

    /// An editor with a grey capture at two pixels a point.
    std::unique_ptr<EditorView> makeView(QSize pixels = { 400, 300 })
    {
        QImage picture(pixels, QImage::Format_RGB32);
        picture.fill(Qt::gray);
        auto store = std::make_unique<AnnotationStore>(RasterImage::fromPixels(picture, 2), settings);
        return std::make_unique<EditorView>(std::move(store), services);
    }
};

} // namespace tessaly::test
