// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace tessaly {

class Alerts;
class Appearance;
class CaptureHistory;
class Clipboard;
class Clock;
class CommandTarget;
class CopiedStyle;
class DocumentActions;
class ExportService;
class FrameSettings;
class LongWork;
class OpenPanels;
class PaletteSupply;
class RecentDocuments;
class SavedStyles;
class Settings;
class TextCopier;
class TextRecognizer;
class Toasts;
class Links;
struct RasterImage;

/// What every editor needs of the program. Each outlives all editors.
struct EditorServices {
    Settings &settings;
    SavedStyles &styles;
    CopiedStyle &copiedStyle;
    FrameSettings &frameSettings;
    Clipboard &clipboard;
    Alerts &alerts;
    LongWork &work;
    ExportService &exports;
    DocumentActions &documents;
    RecentDocuments &recentDocuments;
    Appearance &appearance;
    const Clock &clock;
    CaptureHistory &history;
    TextRecognizer &recognizer;
    TextCopier &textCopier;
    Toasts &toasts;
    Links &links;
    OpenPanels &openPanels;
    CommandTarget *captures = nullptr; ///< the commands that capture; without it there are none
    std::function<void(const RasterImage &)> pin = {}; ///< shows a picture above all windows; nothing can be without
    PaletteSupply *palette = nullptr; ///< of the command palette of all windows
};

} // namespace tessaly
