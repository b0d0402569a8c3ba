// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/PreferenceRows.h"

#include "core/Preferences/AppPresence.h"
#include "core/Preferences/Settings.h"
#include "ui/Preferences/PreferenceOptions.h"

#include <QCoreApplication>

namespace tessaly {

namespace {

namespace Keys = SettingKeys;
using enum PreferenceControl;

constexpr char oneStays[] = QT_TRANSLATE_NOOP("Preferences", "At least one needs to stay active.");

/// A capture must go somewhere: without any of the four the editor opens.
void keepOneDestination(Settings &settings)
{
    for (const auto *key : { &Keys::afterCaptureShow, &Keys::afterCaptureCopy, &Keys::afterCaptureSaveToDisk,
             &Keys::afterCaptureQuickAccess }) {
        if (settings.value(*key))
            return;
    }
    static_cast<void>(settings.set(Keys::afterCaptureShow, true)); // holds for this run where it cannot be written
}

constexpr PreferenceRow check(
    const SettingKey<bool> &key, const char *label, const char *note = "", void (*afterwards)(Settings &) = nullptr)
{
    return { .control = Check, .label = label, .note = note, .key = &key, .afterwards = afterwards };
}

constexpr PreferenceRow behavior[] = {
    check(Keys::showInDock, QT_TRANSLATE_NOOP("Preferences", "Show in Dock"), "", AppPresence::apply),
    check(Keys::showInMenuBar, QT_TRANSLATE_NOOP("Preferences", "Show in menu bar"), oneStays, AppPresence::apply),
    { .control = OpenAtLogin, .label = QT_TRANSLATE_NOOP("Preferences", "Open at login") },
    check(Keys::showOnboardingOnLaunch, QT_TRANSLATE_NOOP("Preferences", "Show welcome on launch")),
};
constexpr PreferenceRow look[] = {
    { .control = Choice,
        .label = QT_TRANSLATE_NOOP("Preferences", "Appearance"),
        .key = &Keys::appearance,
        .options = PreferenceOptions::appearances },
    { .control = Language,
        .label = QT_TRANSLATE_NOOP("Preferences", "Language"),
        .note = QT_TRANSLATE_NOOP("Preferences", "Restart Tessaly to apply the new language."),
        .key = &Keys::appLanguage,
        .options = PreferenceOptions::languages },
};
constexpr PreferenceGroup general[] = {
    { QT_TRANSLATE_NOOP("Preferences", "Behavior"), behavior },
    { "", look },
};

constexpr PreferenceRow afterCapturing[] = {
    check(Keys::afterCaptureShow, QT_TRANSLATE_NOOP("Preferences", "Open the editor"), "", keepOneDestination),
    check(Keys::afterCaptureCopy, QT_TRANSLATE_NOOP("Preferences", "Copy to clipboard"), "", keepOneDestination),
    check(Keys::afterCaptureSaveToDisk, QT_TRANSLATE_NOOP("Preferences", "Save to file"), "", keepOneDestination),
    check(Keys::afterCaptureQuickAccess, QT_TRANSLATE_NOOP("Preferences", "Show a quick access thumbnail"), "",
        keepOneDestination),
    { .control = Choice,
        .label = QT_TRANSLATE_NOOP("Preferences", "Corner of the thumbnail"),
        .key = &Keys::quickAccessCorner,
        .options = PreferenceOptions::corners,
        .enabledBy = &Keys::afterCaptureQuickAccess },
};
constexpr const char *afterCapturingNotes[] = {
    QT_TRANSLATE_NOOP("Preferences",
        "Choose what happens right after you take a screenshot. \"Save to file\" uses your default save folder "
        "when set."),
    oneStays,
};
constexpr PreferenceRow output[] = {
    { .control = Choice,
        .label = QT_TRANSLATE_NOOP("Preferences", "Default format"),
        .key = &Keys::exportFormat,
        .options = PreferenceOptions::formats },
    { .control = Quality,
        .label = QT_TRANSLATE_NOOP("Preferences", "Quality"),
        .note = QT_TRANSLATE_NOOP(
            "Preferences", "Lower values produce smaller files but more compression artefacts. 100% is lossless.") },
    { .control = SaveFolder, .label = QT_TRANSLATE_NOOP("Preferences", "Default save folder") },
    check(Keys::autoCopyAfterSave, QT_TRANSLATE_NOOP("Preferences", "Auto-copy to clipboard after saving")),
    check(Keys::copyAtFullSize, QT_TRANSLATE_NOOP("Preferences", "Copy to clipboard at full size (1×)"),
        QT_TRANSLATE_NOOP("Preferences",
            "Retina screenshots are 2× (144 dpi) and some apps paste them at half size. Turn this on to always "
            "paste at full pixel size — just as sharp, but the image lands larger in the document.")),
};
constexpr PreferenceRow regionCapture[] = {
    check(Keys::adjustRegionBeforeCapture, QT_TRANSLATE_NOOP("Preferences", "Adjust the selection before capturing"),
        QT_TRANSLATE_NOOP("Preferences",
            "After dragging, the selection keeps its handles so you can resize or move it. Press Return or "
            "Space, or double-click inside it, to capture — handy for catching the right frame of a video.")),
    check(Keys::showMagnifierWhileSelecting, QT_TRANSLATE_NOOP("Preferences", "Show a magnifier while selecting"),
        QT_TRANSLATE_NOOP("Preferences",
            "Shows the pixels under the pointer with its position and color, and the size of the selection in "
            "pixels. Press C to copy the color.")),
    check(Keys::freezeScreenWhileSelecting, QT_TRANSLATE_NOOP("Preferences", "Freeze the screen while selecting")),
};
constexpr PreferenceRow whileCapturing[] = {
    check(Keys::hideDesktopIconsWhileCapturing, QT_TRANSLATE_NOOP("Preferences", "Hide desktop icons"),
        QT_TRANSLATE_NOOP("Preferences",
            "Leaves the desktop icons out of region and full-screen captures. Your desktop doesn't change.")),
    { .control = Choice,
        .label = QT_TRANSLATE_NOOP("Preferences", "Timer"),
        .note = QT_TRANSLATE_NOOP("Preferences",
            "Adds a countdown before the shot — time to open a menu or trigger a hover state. For "
            "region and window, the countdown starts after you pick the area."),
        .key = &Keys::captureDelay,
        .options = PreferenceOptions::delays,
        .otherValue = PreferenceOptions::otherDelay },
    check(Keys::captureSound, QT_TRANSLATE_NOOP("Preferences", "Play sound when capturing")),
};
constexpr PreferenceRow windowCapture[] = {
    check(Keys::windowCaptureShadow, QT_TRANSLATE_NOOP("Preferences", "Include the window shadow")),
    check(Keys::windowCaptureTransparentBackground, QT_TRANSLATE_NOOP("Preferences", "Transparent background"),
        QT_TRANSLATE_NOOP("Preferences",
            "Captures the window with its shadow and rounded corners, on transparency instead of the desktop "
            "behind it. JPEG and BMP have no transparency, so those export on white.")),
};
constexpr PreferenceRow systemScreenshots[] = {
    { .control = WatchScreenshots,
        .label = QT_TRANSLATE_NOOP("Preferences", "Open editor after a system screenshot"),
        .key = &Keys::watchSystemScreenshots },
    { .control = WatchedFolder, .label = QT_TRANSLATE_NOOP("Preferences", "Watched folder") },
};
constexpr const char *systemScreenshotsNotes[] = {
    QT_TRANSLATE_NOOP("Preferences",
        "Keep using macOS's ⇧⌘4 shortcut — Tessaly watches the folder where screenshots are saved and opens "
        "each new one in the editor."),
    QT_TRANSLATE_NOOP(
        "Preferences", "This works without the Screen Recording permission — as does pasting a screenshot with ⇧⌘N."),
};
constexpr PreferenceGroup capture[] = {
    { QT_TRANSLATE_NOOP("Preferences", "After capturing"), afterCapturing, afterCapturingNotes },
    { QT_TRANSLATE_NOOP("Preferences", "Output"), output },
    { QT_TRANSLATE_NOOP("Preferences", "Region capture"), regionCapture },
    { QT_TRANSLATE_NOOP("Preferences", "While capturing"), whileCapturing },
    { QT_TRANSLATE_NOOP("Preferences", "Window capture"), windowCapture },
    { QT_TRANSLATE_NOOP("Preferences", "System screenshots"), systemScreenshots, systemScreenshotsNotes },
};

constexpr PreferenceRow drawing[] = {
    { .control = Color, .label = QT_TRANSLATE_NOOP("Preferences", "Default color"), .key = &Keys::defaultColor },
    { .control = Points,
        .label = QT_TRANSLATE_NOOP("Preferences", "Default line width"),
        .key = &Keys::defaultLineWidth },
    { .control = Choice,
        .label = QT_TRANSLATE_NOOP("Preferences", "Arrow head"),
        .key = &Keys::defaultArrowHead,
        .options = PreferenceOptions::arrowHeads },
};
constexpr PreferenceRow texts[] = {
    { .control = Points, .label = QT_TRANSLATE_NOOP("Preferences", "Text size"), .key = &Keys::defaultTextSize },
};
constexpr PreferenceRow tools[] = {
    { .control = Choice,
        .label = QT_TRANSLATE_NOOP("Preferences", "Obscure style"),
        .key = &Keys::defaultObscureStyle,
        .options = PreferenceOptions::obscureStyles },
    { .control = Choice,
        .label = QT_TRANSLATE_NOOP("Preferences", "Spotlight shape"),
        .key = &Keys::defaultSpotlightEllipse,
        .options = PreferenceOptions::spotlightShapes },
    { .control = Choice,
        .label = QT_TRANSLATE_NOOP("Preferences", "Stamp"),
        .key = &Keys::defaultStampKind,
        .options = PreferenceOptions::stamps },
};
constexpr PreferenceGroup editor[] = {
    { QT_TRANSLATE_NOOP("Preferences", "Drawing defaults"), drawing },
    { QT_TRANSLATE_NOOP("Preferences", "Text defaults"), texts },
    { QT_TRANSLATE_NOOP("Preferences", "Tool defaults"), tools },
};

constexpr PreferenceRow historyRows[] = {
    { .control = KeepHistory,
        .label = QT_TRANSLATE_NOOP("Preferences", "Keep a history of captures"),
        .key = &Keys::historyEnabled },
    { .control = Choice,
        .label = QT_TRANSLATE_NOOP("Preferences", "Keep captures for"),
        .key = &Keys::historyRetentionDays,
        .options = PreferenceOptions::retentions,
        .otherValue = PreferenceOptions::otherRetention },
    { .control = HistoryContent, .label = QT_TRANSLATE_NOOP("Preferences", "Captures in the history") },
};
constexpr PreferenceGroup history[] = { { "", historyRows } };

constexpr PreferenceTab tabs[] = {
    { "general", QT_TRANSLATE_NOOP("Preferences", "General"), general },
    { "capture", QT_TRANSLATE_NOOP("Preferences", "Capture"), capture },
    { "shortcuts", QT_TRANSLATE_NOOP("Preferences", "Shortcuts"), {} },
    { "editor", QT_TRANSLATE_NOOP("Preferences", "Editor"), editor },
    { "history", QT_TRANSLATE_NOOP("Preferences", "History"), history },
};

} // namespace

std::span<const PreferenceTab> preferenceTabs() { return tabs; }

QString preferenceText(const char *text) { return QCoreApplication::translate("Preferences", text); }

} // namespace tessaly
