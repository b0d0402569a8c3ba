// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Intents/CaptureDestination.h"

#include <functional>

class QUuid;

namespace tessaly {

class CaptureHistory;
class CaptureService;

/// The five operations that other programs can ask for by name.
enum class Intent { CaptureRegion, CaptureWindow, CaptureFullScreen, CopyTextFromRegion, OpenLastCapture };

struct IntentRow {
    Intent intent;
    const char *name; ///< on the bus and as an action of the desktop entry: "CaptureRegion"
    const char *phrase; ///< English, without the program's name: "Capture a region with"
    const char *shortTitle; ///< English; translated in the context "Intents"
    const char *icon; ///< name in Icons
    bool takesDestination;
};

/// The ready-made list, in its order.
std::span<const IntentRow> tessalyShortcuts();

std::optional<Intent> intentNamed(QStringView name);

/// What only these operations can fail with.
enum class ShortcutsIntentError { NoCaptures };
QString message(ShortcutsIntentError error);

/// Does what other programs ask for. Every operation returns once its work has begun.
class Intents {
public:
    struct Surroundings {
        std::function<CaptureService &()> captures; ///< asked for with the first capture
        CaptureHistory &history;
        std::function<void(const QUuid &id)> openEntry;
    };
    explicit Intents(Surroundings surroundings) : m_with(std::move(surroundings)) { }

    /// An empty destination is the editor. Fails for a destination that there is not, and with "There are no captures
    /// in the history yet.".
    Outcome perform(Intent intent, const QString &destination = {});

private:
    Outcome openLastCapture();

    Surroundings m_with;
};

} // namespace tessaly
