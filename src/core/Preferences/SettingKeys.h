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
inline constexpr SettingKey<double> historyRetentionDays { "historyRetentionDays", 30.0 };

/// Where the start window was when it was last closed.
inline constexpr SettingKey<Bytes> startWindowFrame { "TessalyStartWindow", {} };
inline constexpr SettingKey<const char *> appearance { "appearance", "system" };
inline constexpr SettingKey<Bytes> savedAnnotationStyles { "savedAnnotationStyles", {} };
inline constexpr SettingKey<Bytes> recentDocuments { "recentDocuments", {} };

} // namespace SettingKeys

} // namespace tessaly
