// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// What can be done with a capture of the history.
namespace tessaly {

enum class EntryCommand { Open, Reveal, Copy, Delete };

/// A row of the menu of a capture, in its order.
struct EntryCommandRow {
    EntryCommand command;
    const char *title; ///< translated in the context "EntryCommands"
    const char *key; ///< in Qt's portable form; may be empty
    bool startsGroup = false;
};

inline constexpr EntryCommandRow entryCommands[] = {
    { EntryCommand::Open, QT_TRANSLATE_NOOP("EntryCommands", "Open"), "Return" },
    { EntryCommand::Reveal, QT_TRANSLATE_NOOP("EntryCommands", "Show in Finder"), "" },
    { EntryCommand::Copy, QT_TRANSLATE_NOOP("EntryCommands", "Copy"), "Ctrl+C" },
    { EntryCommand::Delete, QT_TRANSLATE_NOOP("EntryCommands", "Delete from History"), "Del", true },
};

} // namespace tessaly
