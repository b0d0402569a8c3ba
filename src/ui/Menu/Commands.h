// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeySequence>
#include <QLatin1StringView>
#include <QString>

#include <span>

namespace tessaly {

/// Every command of the program by name. Menus, tool bar, context menus, shortcuts sheet and the command palette are
/// walks over one table of them.
enum class CommandId {
    NewBlankCanvas,
    NewFromClipboard,
    Open,
    OpenRecent,
    NewTab,
    CloseTab,
    Save,
    SaveAsDocument,
    ExportAs,
    Settings,
    Quit,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    Delete,
    Duplicate,
    CopyImage,
    Share,
    CopyTextFromImage,
    CopyStyle,
    PasteStyle,
    SaveStyle,
    EditText,
    BringForward,
    SendBackward,
    BringToFront,
    SendToBack,
    SelectNext,
    SelectPrevious,
    Deselect,
    ToggleSnapping,
    ZoomIn,
    ZoomOut,
    ActualSize,
    ZoomToFit,
    CustomizeToolbar,
    ToggleOptionsBar,
    ToggleLiveText,
    RotateCounterclockwise,
    RotateClockwise,
    FlipHorizontal,
    FlipVertical,
    ResizeImage,
    Sharpen,
    Crop,
    PinToScreen,
    UnlockPinnedScreenshots,
    ClosePinnedScreenshots,
    CaptureRegion,
    CaptureWindow,
    CaptureFrontWindow,
    CaptureFullScreen,
    FullScreenOn,
    RecaptureLastRegion,
    CopyTextFromRegion,
    RegionToClipboard,
    RegionToFile,
    FullScreenToClipboard,
    FullScreenToFile,
    NewCollageSideBySide,
    NewCollageStacked,
    StartWindow,
    Help,
    KeyboardShortcuts,
    CommandPalette,
    WelcomeGuide,
    WhatsNew,
    About,
    OpenTessaly,
    OpenLastCapture,
    CaptureTimer,
};

/// The menus, in their order, with the groups that separators divide. The commands of Application stand at the end of
/// the File menu; those of Tray in the menu of the tray only, which has many of the others too.
enum class CommandMenu { File, Application, Edit, View, Tools, Image, Capture, Window, Help, Tray };

/// Who listens for the key of a command.
enum class KeyScope {
    Window, ///< an action of the window, whatever has the focus
    Canvas, ///< the canvas alone, while it has the focus and can do it; otherwise the key keeps its usual meaning
};

struct CommandRow {
    CommandId id;
    const char *title; ///< English; translated in the context "Commands"
    const char *key; ///< portable ("Ctrl+Shift+S"); several divided by "; ", the first is shown; empty for none
    CommandMenu menu;
    int group; ///< within the menu; a separator stands between groups
    const char *icon; ///< name in Icons; empty for none
    KeyScope scope = KeyScope::Window;
    const char *titleWhenOn = ""; ///< what a switch is called while it is on; empty for a command that is none
    const char *submenu = ""; ///< title of the submenu that it stands in; empty for none
};

std::span<const CommandRow> commandTable();
const CommandRow &command(CommandId id);

/// The title as the user reads it.
QString commandTitle(const CommandRow &row, bool on = false);
/// All keys of the command, the one to show first.
QList<QKeySequence> commandKeys(const CommandRow &row);
/// The key to show, written as on this desktop ("Ctrl+Shift+S"); empty for none.
QString commandKeyText(const CommandRow &row);
/// The title without its dots and, in brackets, the key: "Save (Ctrl+S)".
QString commandToolTip(const CommandRow &row, bool on = false);

} // namespace tessaly
