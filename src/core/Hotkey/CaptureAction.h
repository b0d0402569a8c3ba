// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/EnumNames.h"

#include <QtGlobal>

#include <span>

class QString;

namespace tessaly {

class CaptureService;

/// What a key combination can start while any program is in front, in the order in which combinations are registered,
/// searched and listed.
enum class CaptureAction { Region, Window, FrontWindow, FullScreen, LastRegion, CopyText };

template <>
inline constexpr auto enumNames<CaptureAction> = std::to_array<EnumName<CaptureAction>>({
    { CaptureAction::Region, QLatin1StringView("region") },
    { CaptureAction::Window, QLatin1StringView("window") },
    { CaptureAction::FrontWindow, QLatin1StringView("frontWindow") },
    { CaptureAction::FullScreen, QLatin1StringView("fullScreen") },
    { CaptureAction::LastRegion, QLatin1StringView("lastRegion") },
    { CaptureAction::CopyText, QLatin1StringView("copyText") },
});

struct CaptureActionRow {
    CaptureAction action;
    const char *rawValue;
    const char *label; ///< English; translated in the context "Commands"
    const char *icon; ///< name in Icons; empty for none
    const char *commandLine; ///< the same from a terminal, and from the desktop's own shortcut settings
};

std::span<const CaptureActionRow> captureActions();
const CaptureActionRow &captureAction(CaptureAction action);
QString captureActionLabel(CaptureAction action);

void run(CaptureAction action, CaptureService &captures);

} // namespace tessaly
