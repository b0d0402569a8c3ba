// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Hotkey/CaptureAction.h"

#include "core/Capture/CaptureService.h"

#include <QCoreApplication>

#include <string_view>

namespace tessaly {

namespace {

using enum CaptureAction;

constexpr auto rows = std::to_array<CaptureActionRow>({
    { Region, "region", QT_TRANSLATE_NOOP("Commands", "Capture Region"), "capture-region", "tessaly capture region" },
    { Window, "window", QT_TRANSLATE_NOOP("Commands", "Capture Window"), "capture-window", "tessaly capture window" },
    { FrontWindow, "frontWindow", QT_TRANSLATE_NOOP("Commands", "Capture Front Window"), "bring-to-front",
        "tessaly capture front-window" },
    { FullScreen, "fullScreen", QT_TRANSLATE_NOOP("Commands", "Capture Full Screen"), "capture-screen",
        "tessaly capture full-screen" },
    { LastRegion, "lastRegion", QT_TRANSLATE_NOOP("Commands", "Recapture Last Region"), "rotate-right",
        "tessaly capture last-region" },
    { CopyText, "copyText", QT_TRANSLATE_NOOP("Commands", "Copy Text from Region"), "text-viewfinder",
        "tessaly capture region --to text" },
});

consteval bool inOrder()
{
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const QLatin1StringView raw = enumNames<CaptureAction>[index].raw;
        const std::string_view name(raw.data(), static_cast<std::size_t>(raw.size()));
        if (rows[index].action != static_cast<CaptureAction>(index) || name != rows[index].rawValue)
            return false;
    }
    return true;
}
static_assert(inOrder(), "captureAction() finds a row by its place");

} // namespace

std::span<const CaptureActionRow> captureActions() { return rows; }

const CaptureActionRow &captureAction(CaptureAction action) { return rows.at(static_cast<std::size_t>(action)); }

QString captureActionLabel(CaptureAction action)
{
    return QCoreApplication::translate("Commands", captureAction(action).label);
}

void run(CaptureAction action, CaptureService &captures)
{
    switch (action) {
    case Region:
        return captures.capture(CaptureMode::Region);
    case Window:
        return captures.capture(CaptureMode::Window);
    case FrontWindow:
        return captures.captureFrontWindow(CaptureSink::Editor);
    case FullScreen:
        return captures.capture(CaptureMode::FullScreen);
    case LastRegion:
        return captures.captureLastRegion();
    case CopyText:
        return captures.capture(CaptureMode::Region, CaptureSink::Text);
    }
}

} // namespace tessaly
