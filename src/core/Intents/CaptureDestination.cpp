// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Intents/CaptureDestination.h"

#include <QtGlobal>

#include <algorithm>

namespace tessaly {

static constexpr CaptureDestinationRow rows[] {
    { CaptureDestination::Editor, "editor", QT_TRANSLATE_NOOP("Intents", "Open in Editor"), CaptureSink::Editor },
    { CaptureDestination::Clipboard, "clipboard", QT_TRANSLATE_NOOP("Intents", "Copy to clipboard"),
        CaptureSink::Clipboard },
    { CaptureDestination::File, "file", QT_TRANSLATE_NOOP("Intents", "Save to file"), CaptureSink::File },
};

std::span<const CaptureDestinationRow> captureDestinations() { return rows; }

std::optional<CaptureDestination> captureDestination(QStringView rawValue)
{
    const auto hasName
        = [rawValue](const CaptureDestinationRow &row) { return rawValue == QLatin1StringView(row.rawValue); };
    const auto found = std::ranges::find_if(rows, hasName);
    return found == std::end(rows) ? std::nullopt : std::optional(found->destination);
}

} // namespace tessaly
