// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/EnumNames.h"
#include "core/Base/Result.h"

#include <QRectF>
#include <QString>

#include <functional>
#include <optional>
#include <variant>

namespace tessaly {

/// What to select in; the numbers are those that other programs name them by.
enum class CaptureMode { Region = 0, Window = 1, FullScreen = 2 };

/// Where a capture goes; the numbers are those that other programs name them by.
enum class CaptureSink { Editor = 0, Clipboard = 1, File = 2, Text = 3 };

/// Everything that can be captured.
enum class CaptureSubject { Region, Window, FrontWindow, FullScreen, LastRegion };

/// As the command line and the bus name them.
template <>
inline constexpr auto enumNames<CaptureSubject> = std::to_array<EnumName<CaptureSubject>>({
    { CaptureSubject::Region, QLatin1StringView("region") },
    { CaptureSubject::Window, QLatin1StringView("window") },
    { CaptureSubject::FrontWindow, QLatin1StringView("front-window") },
    { CaptureSubject::FullScreen, QLatin1StringView("full-screen") },
    { CaptureSubject::LastRegion, QLatin1StringView("last-region") },
});
template <>
inline constexpr auto enumNames<CaptureSink> = std::to_array<EnumName<CaptureSink>>({
    { CaptureSink::Editor, QLatin1StringView("editor") },
    { CaptureSink::Clipboard, QLatin1StringView("clipboard") },
    { CaptureSink::File, QLatin1StringView("file") },
    { CaptureSink::Text, QLatin1StringView("text") },
});

/// How a request ended. A capture that was saved has its path.
struct Captured {
    QString path = {};
};
struct CaptureCancelled { };
using CaptureOutcome = std::variant<Captured, CaptureCancelled, Failure>;

/// One request with all that a caller may say; what is absent follows the settings.
struct CaptureRequest {
    CaptureSubject subject = CaptureSubject::Region;
    CaptureSink sink = CaptureSink::Editor;
    std::optional<int> delaySeconds = {};
    std::optional<quint32> display = {}; ///< of FullScreen and of `rect`; the primary one without
    std::optional<QRectF> rect = {}; ///< of Region: this area, in points of the display, and nothing to select
    std::optional<quint64> window = {}; ///< of Window: this one, by ScreenWindow::id, and nothing to select
    std::optional<QString> outputPath = {}; ///< of the sink File: this very file, its format by its extension
    /// Called once, at the end. A failure has then been shown to the user.
    std::function<void(const CaptureOutcome &)> finished = [](const CaptureOutcome &) {};
};

} // namespace tessaly
