// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <tuple>

namespace tessaly {

/// A setting: the key it is stored under and the value that holds while nothing is stored.
template <class T>
struct SettingKey {
    const char *name;
    T fallback;
};

/// Every setting that Tessaly knows. Strings are given as char arrays and read as QString; `Bytes` is absent by
/// default.
namespace SettingKeys {

/// Stored JSON of a record, kept as it was written; UTF-8 as all JSON.
struct Bytes { };

inline constexpr SettingKey<const char *> exportFormat { "exportFormat", "png" };
inline constexpr SettingKey<double> jpegQuality { "jpegQuality", 0.9 };
inline constexpr SettingKey<double> webpQuality { "webpQuality", 0.9 };
inline constexpr SettingKey<bool> copyAtFullSize { "copyAtFullSize", false };
inline constexpr SettingKey<const char *> defaultSaveFolder { "defaultSaveFolder", "" };
inline constexpr SettingKey<bool> autoCopyAfterSave { "autoCopyAfterSave", false };
inline constexpr SettingKey<bool> alsoSaveTessalyDocument { "alsoSaveTessalyDocument", false };

inline constexpr SettingKey<const char *> defaultColor { "defaultColor", "#FF3366" };
inline constexpr SettingKey<double> defaultLineWidth { "defaultLineWidth", 20.0 };
inline constexpr SettingKey<const char *> defaultArrowHead { "defaultArrowHead", "tapered" };
inline constexpr SettingKey<double> defaultTextSize { "defaultTextSize", 18.0 };
inline constexpr SettingKey<const char *> defaultObscureStyle { "defaultObscureStyle", "pixelate" };
inline constexpr SettingKey<double> defaultObscureStrength { "defaultObscureStrength", 1.0 };
inline constexpr SettingKey<double> defaultHighlightOpacity { "defaultHighlightOpacity", 0.45 };
inline constexpr SettingKey<double> defaultSpotlightDim { "defaultSpotlightDim", 0.5 };
inline constexpr SettingKey<bool> defaultSpotlightEllipse { "defaultSpotlightEllipse", true };
inline constexpr SettingKey<const char *> defaultStampKind { "defaultStampKind", "check" };

inline constexpr SettingKey<bool> frameApplyAlways { "frameApplyAlways", false };
inline constexpr SettingKey<bool> frameLastOn { "frameLastOn", false };
inline constexpr SettingKey<Bytes> frameStyle { "frameStyle", {} };
inline constexpr SettingKey<bool> watermarkLastOn { "watermarkLastOn", false };
inline constexpr SettingKey<Bytes> watermarkStyle { "watermarkStyle", {} };

/// Of the sharpen dialog, in percent.
inline constexpr SettingKey<double> sharpenAmount { "sharpenAmount", 50.0 };
inline constexpr SettingKey<bool> showOptionsBar { "showOptionsBar", true };
/// The parts of the tool bar that are left out: their names, divided by blanks.
inline constexpr SettingKey<const char *> toolBarHiddenParts { "toolBarHiddenParts", "" };
inline constexpr SettingKey<bool> liveTextEnabled { "liveTextEnabled", false };

inline constexpr SettingKey<bool> historyEnabled { "historyEnabled", true };
/// Whole days; below 1 captures are kept until they are deleted.
inline constexpr SettingKey<int> historyRetentionDays { "historyRetentionDays", 30 };

/// Of a capture. The delay is whole seconds; below 1 there is none.
inline constexpr SettingKey<int> captureDelay { "captureDelay", 0 };
inline constexpr SettingKey<bool> captureSound { "captureSound", false };
inline constexpr SettingKey<bool> freezeScreenWhileSelecting { "freezeScreenWhileSelecting", false };
inline constexpr SettingKey<bool> showMagnifierWhileSelecting { "showMagnifierWhileSelecting", true };
inline constexpr SettingKey<bool> adjustRegionBeforeCapture { "adjustRegionBeforeCapture", false };
inline constexpr SettingKey<bool> hideDesktopIconsWhileCapturing { "hideDesktopIconsWhileCapturing", false };
inline constexpr SettingKey<bool> windowCaptureShadow { "windowCaptureShadow", true };
inline constexpr SettingKey<bool> windowCaptureTransparentBackground { "windowCaptureTransparentBackground", true };
/// An array of five numbers: the display's id, then x, y, width and height in its points.
inline constexpr SettingKey<Bytes> lastRegionRect { "lastRegionRect", {} };
inline constexpr SettingKey<int> newsletterCaptureCount { "newsletterCaptureCount", 0 };

/// What happens to a capture, in any combination.
inline constexpr SettingKey<bool> afterCaptureShow { "afterCaptureShow", true };
inline constexpr SettingKey<bool> afterCaptureCopy { "afterCaptureCopy", false };
inline constexpr SettingKey<bool> afterCaptureSaveToDisk { "afterCaptureSaveToDisk", false };
inline constexpr SettingKey<bool> afterCaptureQuickAccess { "afterCaptureQuickAccess", false };
/// "bottomRight" or "bottomLeft"; anything else counts as the former.
inline constexpr SettingKey<const char *> quickAccessCorner { "quickAccessCorner", "bottomRight" };

inline constexpr SettingKey<bool> watchSystemScreenshots { "watchSystemScreenshots", false };
/// The path of the folder that is watched.
inline constexpr SettingKey<const char *> systemScreenshotsFolder { "systemScreenshotsFolderBookmark", "" };

/// Where the program can be reached: ordinary windows from the start, an icon in the tray. At least one is on.
inline constexpr SettingKey<bool> showInDock { "showInDock", false };
inline constexpr SettingKey<bool> showInMenuBar { "showInMenuBar", true };
inline constexpr SettingKey<bool> showOnboardingOnLaunch { "showOnboardingOnLaunch", true };
inline constexpr SettingKey<bool> didShowOnboarding { "didShowOnboarding", false };
/// The version whose novelties the user has seen or never lacked; empty before the first start.
inline constexpr SettingKey<const char *> whatsNewVersion { "whatsNewVersion", "" };
/// "system" or the name of a language of core/Preferences/AppLanguages.h: "en", "de".
inline constexpr SettingKey<const char *> appLanguage { "appLanguage", "system" };
/// The tab that the settings window shows: "general", "capture", "shortcuts", "editor" or "history".
inline constexpr SettingKey<const char *> settingsTab { "settingsTab", "general" };

/// Where these windows were when they were last closed.
inline constexpr SettingKey<Bytes> startWindowFrame { "TessalyStartWindow", {} };
inline constexpr SettingKey<Bytes> settingsWindowFrame { "TessalySettingsWindow", {} };
inline constexpr SettingKey<const char *> appearance { "appearance", "system" };
inline constexpr SettingKey<Bytes> savedAnnotationStyles { "savedAnnotationStyles", {} };
inline constexpr SettingKey<Bytes> recentDocuments { "recentDocuments", {} };

} // namespace SettingKeys

} // namespace tessaly
