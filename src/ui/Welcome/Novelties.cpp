// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/Novelties.h"

#include <QtGlobal>

namespace tessaly {

static constexpr Novelty rows[] = {
    { "keyboard", QT_TRANSLATE_NOOP("Novelties", "Keys that work everywhere"),
        QT_TRANSLATE_NOOP("Novelties",
            "Take a region, a window or the whole screen while you work in another program. The settings record other "
            "combinations.") },
    { "home", QT_TRANSLATE_NOOP("Novelties", "At home in the tray"),
        QT_TRANSLATE_NOOP("Novelties",
            "Tessaly waits as an icon in the tray, with every way to capture, a timer and your pinned screenshots.") },
    { "search", QT_TRANSLATE_NOOP("Novelties", "Find any command"),
        QT_TRANSLATE_NOOP("Novelties",
            "Press Ctrl+Shift+P and type: commands, settings and tools are one word away.") },
    { "lock", QT_TRANSLATE_NOOP("Novelties", "Still yours alone"),
        QT_TRANSLATE_NOOP(
            "Novelties", "Captures are kept only on this computer. Tessaly opens no network connection.") },
};

std::span<const Novelty> novelties() { return rows; }

} // namespace tessaly
