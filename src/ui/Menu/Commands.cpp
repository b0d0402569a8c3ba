// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/Commands.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace tessaly {

namespace {

using enum CommandId;
using Menu = CommandMenu;

/// In the order of the enumeration, which is the order of the menus.
constexpr auto rows = std::to_array<CommandRow>({
    { NewBlankCanvas, QT_TRANSLATE_NOOP("Commands", "New Blank Canvas"), "Ctrl+N", Menu::File, 0, "new" },
    { NewFromClipboard, QT_TRANSLATE_NOOP("Commands", "New from Clipboard"), "Ctrl+Shift+N", Menu::File, 0,
        "clipboard" },
    { Open, QT_TRANSLATE_NOOP("Commands", "Open…"), "Ctrl+O", Menu::File, 0, "open" },
    { OpenRecent, QT_TRANSLATE_NOOP("Commands", "Open Recent"), "", Menu::File, 0, "" },
    { NewTab, QT_TRANSLATE_NOOP("Commands", "New Tab"), "Ctrl+T", Menu::File, 0, "plus" },
    { CloseTab, QT_TRANSLATE_NOOP("Commands", "Close Tab"), "Ctrl+W", Menu::File, 0, "close" },
    { Save, QT_TRANSLATE_NOOP("Commands", "Save…"), "Ctrl+S", Menu::File, 1, "save" },
    { SaveAsDocument, QT_TRANSLATE_NOOP("Commands", "Save as Tessaly Document…"), "Ctrl+Shift+S", Menu::File, 1, "" },
    { ExportAs, QT_TRANSLATE_NOOP("Commands", "Export As…"), "", Menu::File, 1, "export" },

    { Settings, QT_TRANSLATE_NOOP("Commands", "Settings…"), "Ctrl+,", Menu::Application, 0, "" },
    { Quit, QT_TRANSLATE_NOOP("Commands", "Quit Tessaly"), "Ctrl+Q", Menu::Application, 1, "" },

    { Undo, QT_TRANSLATE_NOOP("Commands", "Undo"), "Ctrl+Z", Menu::Edit, 0, "undo" },
    { Redo, QT_TRANSLATE_NOOP("Commands", "Redo"), "Ctrl+Shift+Z; Ctrl+Y", Menu::Edit, 0, "redo" },
    { Cut, QT_TRANSLATE_NOOP("Commands", "Cut"), "Ctrl+X", Menu::Edit, 1, "cut" },
    { Copy, QT_TRANSLATE_NOOP("Commands", "Copy"), "Ctrl+C", Menu::Edit, 1, "copy" },
    { Paste, QT_TRANSLATE_NOOP("Commands", "Paste"), "Ctrl+V", Menu::Edit, 1, "paste" },
    { Delete, QT_TRANSLATE_NOOP("Commands", "Delete"), "Del; Backspace", Menu::Edit, 1, "trash", KeyScope::Canvas },
    { Duplicate, QT_TRANSLATE_NOOP("Commands", "Duplicate"), "Ctrl+D", Menu::Edit, 1, "duplicate" },
    { CopyImage, QT_TRANSLATE_NOOP("Commands", "Copy Image"), "Ctrl+Shift+C", Menu::Edit, 2, "copy-image" },
    { Share, QT_TRANSLATE_NOOP("Commands", "Share…"), "", Menu::Edit, 2, "share" },
    { CopyTextFromImage, QT_TRANSLATE_NOOP("Commands", "Copy Text from Image"), "", Menu::Edit, 2, "" },
    { CopyStyle, QT_TRANSLATE_NOOP("Commands", "Copy Style"), "Ctrl+Alt+C", Menu::Edit, 3, "copy-style" },
    // The key is also the Select tool's: the canvas takes it only when there is a style and a mark to give it to.
    { PasteStyle, QT_TRANSLATE_NOOP("Commands", "Paste Style"), "Ctrl+Alt+V", Menu::Edit, 3, "paste-style",
        KeyScope::Canvas },
    { SaveStyle, QT_TRANSLATE_NOOP("Commands", "Save Style"), "", Menu::Edit, 3, "saved-styles" },
    { EditText, QT_TRANSLATE_NOOP("Commands", "Edit Text"), "F2; Return; Enter", Menu::Edit, 4, "edit-text",
        KeyScope::Canvas },
    { BringForward, QT_TRANSLATE_NOOP("Commands", "Bring Forward"), "PgUp", Menu::Edit, 4, "bring-forward",
        KeyScope::Canvas, "", QT_TRANSLATE_NOOP("Commands", "Order") },
    { SendBackward, QT_TRANSLATE_NOOP("Commands", "Send Backward"), "PgDown", Menu::Edit, 4, "send-backward",
        KeyScope::Canvas, "", QT_TRANSLATE_NOOP("Commands", "Order") },
    { BringToFront, QT_TRANSLATE_NOOP("Commands", "Bring to Front"), "Home", Menu::Edit, 4, "bring-to-front",
        KeyScope::Canvas, "", QT_TRANSLATE_NOOP("Commands", "Order") },
    { SendToBack, QT_TRANSLATE_NOOP("Commands", "Send to Back"), "End", Menu::Edit, 4, "send-to-back", KeyScope::Canvas,
        "", QT_TRANSLATE_NOOP("Commands", "Order") },
    { SelectNext, QT_TRANSLATE_NOOP("Commands", "Select Next"), "Tab", Menu::Edit, 5, "", KeyScope::Canvas },
    { SelectPrevious, QT_TRANSLATE_NOOP("Commands", "Select Previous"), "Shift+Tab", Menu::Edit, 5, "",
        KeyScope::Canvas },
    { Deselect, QT_TRANSLATE_NOOP("Commands", "Deselect"), "Esc", Menu::Edit, 5, "", KeyScope::Canvas },
    { ToggleSnapping, QT_TRANSLATE_NOOP("Commands", "Turn On Snapping"), "Ctrl+;", Menu::Edit, 6, "snap",
        KeyScope::Window, QT_TRANSLATE_NOOP("Commands", "Turn Off Snapping") },

    { ZoomIn, QT_TRANSLATE_NOOP("Commands", "Zoom In"), "Ctrl++; Ctrl+=", Menu::View, 0, "zoom-in" },
    { ZoomOut, QT_TRANSLATE_NOOP("Commands", "Zoom Out"), "Ctrl+-", Menu::View, 0, "zoom-out" },
    { ActualSize, QT_TRANSLATE_NOOP("Commands", "Actual Size"), "Ctrl+0", Menu::View, 0, "actual-size" },
    { ZoomToFit, QT_TRANSLATE_NOOP("Commands", "Zoom to Fit"), "Ctrl+9", Menu::View, 0, "zoom-fit" },
    { CustomizeToolbar, QT_TRANSLATE_NOOP("Commands", "Customize Toolbar…"), "", Menu::View, 1, "" },
    { ToggleOptionsBar, QT_TRANSLATE_NOOP("Commands", "Show Options Bar"), "", Menu::View, 1, "", KeyScope::Window,
        QT_TRANSLATE_NOOP("Commands", "Hide Options Bar") },
    { ToggleLiveText, QT_TRANSLATE_NOOP("Commands", "Show Live Text"), "", Menu::View, 1, "", KeyScope::Window,
        QT_TRANSLATE_NOOP("Commands", "Hide Live Text") },

    { RotateCounterclockwise, QT_TRANSLATE_NOOP("Commands", "Rotate Counterclockwise"), "Ctrl+[", Menu::Image, 0,
        "rotate-left" },
    { RotateClockwise, QT_TRANSLATE_NOOP("Commands", "Rotate Clockwise"), "Ctrl+]", Menu::Image, 0, "rotate-right" },
    { FlipHorizontal, QT_TRANSLATE_NOOP("Commands", "Flip Horizontal"), "", Menu::Image, 0, "flip-horizontal" },
    { FlipVertical, QT_TRANSLATE_NOOP("Commands", "Flip Vertical"), "", Menu::Image, 0, "flip-vertical" },
    { ResizeImage, QT_TRANSLATE_NOOP("Commands", "Resize Image…"), "Ctrl+Shift+R", Menu::Image, 1, "resize" },
    { Sharpen, QT_TRANSLATE_NOOP("Commands", "Sharpen…"), "", Menu::Image, 1, "sharpen" },
    { Crop, QT_TRANSLATE_NOOP("Commands", "Crop…"), "", Menu::Image, 1, "crop" },

    { PinToScreen, QT_TRANSLATE_NOOP("Commands", "Pin to Screen"), "", Menu::Image, 2, "pin" },
    { UnlockPinnedScreenshots, QT_TRANSLATE_NOOP("Commands", "Unlock Pinned Screenshots"), "Ctrl+Alt+U", Menu::Image, 2,
        "" },
    { ClosePinnedScreenshots, QT_TRANSLATE_NOOP("Commands", "Close Pinned Screenshots"), "Ctrl+Alt+W", Menu::Image, 2,
        "" },

    { CaptureRegion, QT_TRANSLATE_NOOP("Commands", "Capture Region"), "Ctrl+Alt+4", Menu::Capture, 0,
        "capture-region" },
    { CaptureWindow, QT_TRANSLATE_NOOP("Commands", "Capture Window"), "Ctrl+Alt+5", Menu::Capture, 0,
        "capture-window" },
    { CaptureFrontWindow, QT_TRANSLATE_NOOP("Commands", "Capture Front Window"), "Ctrl+Alt+Shift+5", Menu::Capture, 0,
        "" },
    { CaptureFullScreen, QT_TRANSLATE_NOOP("Commands", "Capture Full Screen"), "Ctrl+Alt+3", Menu::Capture, 0,
        "capture-screen" },
    { FullScreenOn, QT_TRANSLATE_NOOP("Commands", "Full Screen on…"), "", Menu::Capture, 0, "" },
    { RecaptureLastRegion, QT_TRANSLATE_NOOP("Commands", "Recapture Last Region"), "Ctrl+Alt+Shift+4", Menu::Capture, 0,
        "" },
    { CopyTextFromRegion, QT_TRANSLATE_NOOP("Commands", "Copy Text from Region"), "Ctrl+Alt+7", Menu::Capture, 0,
        "text-viewfinder" },
    { RegionToClipboard, QT_TRANSLATE_NOOP("Commands", "Region to Clipboard"), "", Menu::Capture, 1, "",
        KeyScope::Window, "", QT_TRANSLATE_NOOP("Commands", "Quick Capture") },
    { RegionToFile, QT_TRANSLATE_NOOP("Commands", "Region to File"), "", Menu::Capture, 1, "", KeyScope::Window, "",
        QT_TRANSLATE_NOOP("Commands", "Quick Capture") },
    { FullScreenToClipboard, QT_TRANSLATE_NOOP("Commands", "Full Screen to Clipboard"), "", Menu::Capture, 1, "",
        KeyScope::Window, "", QT_TRANSLATE_NOOP("Commands", "Quick Capture") },
    { FullScreenToFile, QT_TRANSLATE_NOOP("Commands", "Full Screen to File"), "", Menu::Capture, 1, "",
        KeyScope::Window, "", QT_TRANSLATE_NOOP("Commands", "Quick Capture") },
    { NewCollageSideBySide, QT_TRANSLATE_NOOP("Commands", "New Collage — Side by side"), "", Menu::Capture, 2, "" },
    { NewCollageStacked, QT_TRANSLATE_NOOP("Commands", "New Collage — Stacked"), "", Menu::Capture, 2, "" },

    { StartWindow, QT_TRANSLATE_NOOP("Commands", "Start Window"), "Ctrl+Shift+1", Menu::Window, 0, "" },

    { Help, QT_TRANSLATE_NOOP("Commands", "Tessaly Help"), "Ctrl+?; F1", Menu::Help, 0, "questionmark" },
    { KeyboardShortcuts, QT_TRANSLATE_NOOP("Commands", "Keyboard Shortcuts"), "", Menu::Help, 0, "keyboard" },
    { CommandPalette, QT_TRANSLATE_NOOP("Commands", "Command Palette…"), "Ctrl+Shift+P", Menu::Help, 0, "search" },
    { WelcomeGuide, QT_TRANSLATE_NOOP("Commands", "Welcome Guide"), "", Menu::Help, 1, "" },
    { WhatsNew, QT_TRANSLATE_NOOP("Commands", "What’s New in Tessaly"), "", Menu::Help, 1, "" },
    { About, QT_TRANSLATE_NOOP("Commands", "About Tessaly"), "", Menu::Help, 2, "" },

    { OpenTessaly, QT_TRANSLATE_NOOP("Commands", "Open Tessaly"), "", Menu::Tray, 0, "" },
    { OpenLastCapture, QT_TRANSLATE_NOOP("Commands", "Open Last Capture"), "", Menu::Tray, 0, "" },
    { CaptureTimer, QT_TRANSLATE_NOOP("Commands", "Capture Timer"), "", Menu::Tray, 0, "" },
});

consteval bool inOrder()
{
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (rows[index].id != static_cast<CommandId>(index))
            return false;
    }
    return true;
}
static_assert(inOrder(), "command() finds a row by its place");

} // namespace

std::span<const CommandRow> commandTable() { return rows; }
const CommandRow &command(CommandId id) { return rows.at(static_cast<std::size_t>(id)); }

QString commandTitle(const CommandRow &row, bool on)
{
    return QCoreApplication::translate("Commands", on && *row.titleWhenOn ? row.titleWhenOn : row.title);
}

QList<QKeySequence> commandKeys(const CommandRow &row)
{
    if (!*row.key)
        return {}; // no text reads as one empty key
    return QKeySequence::listFromString(QLatin1StringView(row.key), QKeySequence::PortableText);
}

QString commandKeyText(const CommandRow &row)
{
    const auto keys = commandKeys(row);
    return keys.isEmpty() ? QString() : keys.first().toString(QKeySequence::NativeText);
}

QString commandToolTip(const CommandRow &row, bool on)
{
    QString title = commandTitle(row, on);
    title.remove(u'…');
    const QString key = commandKeyText(row);
    return key.isEmpty() ? title : QStringLiteral("%1 (%2)").arg(title, key);
}

} // namespace tessaly
