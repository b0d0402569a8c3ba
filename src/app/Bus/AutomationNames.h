// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Where the running program is found on the session bus.
namespace tessaly::AutomationNames {

inline constexpr char service[] = "org.tessaly.Tessaly";
inline constexpr char object[] = "/org/tessaly/Tessaly";
inline constexpr char interface[] = "org.tessaly.Automation1";
inline constexpr char applicationInterface[] = "org.freedesktop.Application";

/// The action that opens captures of the history, whose ids are its parameters. The others are named after Intent.
inline constexpr char openHistoryEntry[] = "OpenHistoryEntry";

/// The error where there is no capture to open.
inline constexpr char noCaptures[] = "org.tessaly.Automation1.Error.NoCaptures";

/// Set, a request is cancelled when whoever made it leaves the bus; shell scripts do so before the end.
inline constexpr char untilCallerLeaves[] = "until-caller-leaves";

// What a capture answers: "outcome" is one of the three, "path" that of the file, "message" a sentence.
inline constexpr char captured[] = "captured";
inline constexpr char cancelled[] = "cancelled";
inline constexpr char failed[] = "failed";

// What the bus's library says when the bus has ended.
inline constexpr char localObject[] = "/org/freedesktop/DBus/Local";
inline constexpr char localInterface[] = "org.freedesktop.DBus.Local";
inline constexpr char disconnected[] = "Disconnected";

} // namespace tessaly::AutomationNames
