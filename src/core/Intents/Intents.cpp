// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Intents/Intents.h"

#include "core/Capture/CaptureService.h"
#include "core/History/CaptureHistory.h"

#include <QCoreApplication>

#include <algorithm>

namespace tessaly {

namespace {

constexpr IntentRow rows[] {
    { Intent::CaptureRegion, "CaptureRegion", QT_TRANSLATE_NOOP("Intents", "Capture a region with"),
        QT_TRANSLATE_NOOP("Intents", "Capture Region"), "capture-region", true },
    { Intent::CaptureWindow, "CaptureWindow", QT_TRANSLATE_NOOP("Intents", "Capture a window with"),
        QT_TRANSLATE_NOOP("Intents", "Capture Window"), "capture-window", true },
    { Intent::CaptureFullScreen, "CaptureFullScreen", QT_TRANSLATE_NOOP("Intents", "Capture the screen with"),
        QT_TRANSLATE_NOOP("Intents", "Capture Full Screen"), "capture-screen", true },
    { Intent::CopyTextFromRegion, "CopyTextFromRegion", QT_TRANSLATE_NOOP("Intents", "Copy text with"),
        QT_TRANSLATE_NOOP("Intents", "Copy Text"), "text-viewfinder", false },
    { Intent::OpenLastCapture, "OpenLastCapture", QT_TRANSLATE_NOOP("Intents", "Open the last capture in"),
        QT_TRANSLATE_NOOP("Intents", "Open Last Capture"), "image", false },
};

QString text(const char *source) { return QCoreApplication::translate("Intents", source); }

/// Where the capture goes; a failure for a destination that there is not.
Result<CaptureSink> sinkFor(const IntentRow &row, const QString &destination)
{
    if (!row.takesDestination) {
        if (!destination.isEmpty())
            return Failure {
                text(QT_TRANSLATE_NOOP("Intents", "%1 takes no destination.")).arg(QLatin1StringView(row.name))
            };
        return CaptureSink::Text;
    }
    const auto chosen = destination.isEmpty() ? CaptureDestination::Editor : captureDestination(destination);
    const auto found = std::ranges::find(captureDestinations(), chosen, &CaptureDestinationRow::destination);
    if (found == captureDestinations().end())
        return Failure { text(
            QT_TRANSLATE_NOOP("Intents", "There is no destination \"%1\"; it is one of editor, clipboard and file."))
                             .arg(destination) };
    return found->sink;
}

} // namespace

std::span<const IntentRow> tessalyShortcuts() { return rows; }

std::optional<Intent> intentNamed(QStringView name)
{
    const auto hasName = [name](const IntentRow &row) { return name == QLatin1StringView(row.name); };
    const auto found = std::ranges::find_if(rows, hasName);
    return found == std::end(rows) ? std::nullopt : std::optional(found->intent);
}

QString message(ShortcutsIntentError)
{
    return text(QT_TRANSLATE_NOOP("Intents", "There are no captures in the history yet."));
}

Outcome Intents::perform(Intent intent, const QString &destination)
{
    const auto sink = sinkFor(*std::ranges::find(rows, intent, &IntentRow::intent), destination);
    if (!sink)
        return sink.failure();
    switch (intent) {
    case Intent::CaptureRegion:
    case Intent::CopyTextFromRegion:
        m_with.captures().capture(CaptureMode::Region, *sink);
        return Done {};
    case Intent::CaptureWindow:
        m_with.captures().capture(CaptureMode::Window, *sink);
        return Done {};
    case Intent::CaptureFullScreen:
        m_with.captures().capture(CaptureMode::FullScreen, *sink);
        return Done {};
    case Intent::OpenLastCapture:
        break;
    }
    return openLastCapture();
}

Outcome Intents::openLastCapture()
{
    CaptureHistory &history = m_with.history;
    if (!history.isEnabled())
        return Failure { message(ShortcutsIntentError::NoCaptures) };
    if (!history.isLoaded()) // asked so soon after the start
        history.load();
    history.flush(); // what was just captured may still be being written
    if (history.entries().isEmpty())
        return Failure { message(ShortcutsIntentError::NoCaptures) };
    m_with.openEntry(history.entries().first().id);
    return Done {};
}

} // namespace tessaly
