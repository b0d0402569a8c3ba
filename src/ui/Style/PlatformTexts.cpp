// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/PlatformTexts.h"

#include <algorithm>
#include <cstring>

namespace tessaly {

namespace {

constexpr PlatformTexts::Row table[] = {
    { "Document size in real pixels and its resolution. Retina captures are 2× (144 dpi) and some apps paste them at "
      "half size — turn on “Copy to clipboard at full size” in Settings ▸ Capture to always paste at 1×.",
        "Document size in real pixels and its resolution. High-density captures are 2× (144 dpi) and some apps paste "
        "them at half size — with “Copy to clipboard at full size” they are always pasted at 1×." },
    { "Press a letter on the canvas to switch tools. The ⌥⌘ shortcuts in the Tools menu still work.",
        "Press a letter on the canvas to switch tools. The Ctrl+Alt shortcuts in the Tools menu still work." },
    { "Show in Finder", "Show in File Manager" },
    { "Captures are kept only on this Mac, until you delete them.",
        "Captures are kept only on this computer, until you delete them." },
    { "Captures are kept only on this Mac, for %1 days.", "Captures are kept only on this computer, for %1 days." },
    { "Live Text isn't available on this Mac", "Live Text isn't available on this computer" },
    { "Choose the folder where macOS saves screenshots (usually the Desktop).",
        "Choose the folder where your desktop saves screenshots (usually Screenshots in Pictures)." },
    { "Can't grant the permission? Keep using the macOS shortcut ⇧⌘4 and Tessaly will open each screenshot in the "
      "editor, or paste a screenshot with ⇧⌘N.",
        "You can also keep using the screenshot key of your desktop: Tessaly will open each screenshot in the editor. "
        "Or paste a screenshot with Ctrl+Shift+N." },
    { "Clicks now pass through. To unlock, choose Unlock Pinned Screenshots from the Tessaly menu bar icon or the "
      "Window menu.",
        "Clicks now pass through. To unlock, choose Unlock Pinned Screenshots from the menu of Tessaly’s tray icon, or "
        "from the Image menu of a Tessaly window (Ctrl+Alt+U)." },
    { "Show in Dock", "Open a window when Tessaly starts" },
    { "Show in menu bar", "Show in the tray" },
    { "Retina screenshots are 2× (144 dpi) and some apps paste them at half size. Turn this on to always paste at full "
      "pixel size — just as sharp, but the image lands larger in the document.",
        "High-density screenshots are 2× (144 dpi) and some apps paste them at half size. Turn this on to always paste "
        "at full pixel size — just as sharp, but the image lands larger in the document." },
    { "Keep using macOS's ⇧⌘4 shortcut — Tessaly watches the folder where screenshots are saved and opens each new one "
      "in the editor.",
        "Keep using the screenshot key of your desktop — Tessaly watches the folder where screenshots are saved and "
        "opens each new one in the editor." },
    { "This works without the Screen Recording permission — as does pasting a screenshot with ⇧⌘N.",
        "This works also where your desktop lets no program capture the screen — as does pasting a screenshot with "
        "Ctrl+Shift+N." },
    { "Each capture is saved on this Mac with its annotations, so you can reopen it from the start window and keep "
      "editing. Nothing leaves your Mac.",
        "Each capture is saved on this computer with its annotations, so you can reopen it from the start window and "
        "keep editing. Nothing leaves your computer." },
    { "1 capture in the history will be deleted from this Mac. This can't be undone.",
        "1 capture in the history will be deleted from this computer. This can't be undone." },
    { "%1 captures in the history will be deleted from this Mac. This can't be undone.",
        "%1 captures in the history will be deleted from this computer. This can't be undone." },
};

} // namespace

std::span<const PlatformTexts::Row> PlatformTexts::rows() { return table; }

QString PlatformTexts::translate(const char *, const char *source, const char *, int) const
{
    const auto row
        = std::ranges::find_if(table, [source](const Row &each) { return std::strcmp(each.source, source) == 0; });
    return row == std::end(table) ? QString() : QString::fromUtf8(row->shown);
}

} // namespace tessaly
