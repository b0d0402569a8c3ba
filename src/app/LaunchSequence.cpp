// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LaunchSequence.h"

#include "app/DesktopServices.h"
#include "app/Presence.h"
#include "core/Preferences/AppPresence.h"
#include "core/Preferences/LanguageChoice.h"

#include <QTimer>

namespace tessaly {

namespace {

using namespace std::chrono_literals;

/// After the start: not before the first window has been painted.
constexpr std::chrono::milliseconds historyDelay = 300ms;
constexpr std::chrono::milliseconds quietDelay = 500ms;

/// Nothing is recognised for the history while the program is first used.
constexpr std::chrono::milliseconds leisureDelay = 3500ms;

} // namespace

LaunchSequence::LaunchSequence(DesktopServices &services, Presence &presence, Kind kind) :
    m_services(services),
    m_presence(presence),
    m_kind(kind)
{
}

void LaunchSequence::run()
{
    using Step = LaunchSequence;
    loadHistory();

    giveQuickAccessItsTextCopier();
    atLeisure(&Step::installTextRecognizer);
    atLeisure(&Step::prewarmTextRecognizer);
    soon(&Step::noteLaunch);
    soon(&Step::migrateLanguage);
    // The defaults of all settings stand in their tables.
    // Launches are not counted; nothing would ask for the number.
    applyPresence();
    applyAppearance();
    soon(&Step::reloadHotkeys);
    soon(&Step::startWatcher);
    soon(&Step::showOnboardingIfNeeded);
    soon(&Step::pruneHistory);
    showWindows();
    soon(&Step::showWhatsNewIfDue); // after the windows

    soon(&Step::prepareCaptures);
    soon(&Step::followSettings);
    schedule(m_kind == Kind::Resident ? 0ms : quietDelay, std::move(m_soon));
    schedule(leisureDelay, std::move(m_atLeisure));
}

void LaunchSequence::soon(void (LaunchSequence::*step)()) { m_soon.push_back(step); }
void LaunchSequence::atLeisure(void (LaunchSequence::*step)()) { m_atLeisure.push_back(step); }

void LaunchSequence::schedule(std::chrono::milliseconds delay, std::vector<void (LaunchSequence::*)()> steps)
{
    QTimer::singleShot(delay, &m_services, [this, steps = std::move(steps)] {
        for (const auto step : steps)
            (this->*step)();
    });
}

void LaunchSequence::loadHistory()
{
    if (m_kind == Kind::Plain) // it may be shown at once
        m_services.history.load();
    else
        QTimer::singleShot(historyDelay, &m_services, [this] {
            if (!m_services.history.isLoaded()) // a capture of it may have been opened
                m_services.history.load();
        });
}

void LaunchSequence::giveQuickAccessItsTextCopier() { m_services.quickAccessCopier = &m_services.textCopier; }

void LaunchSequence::installTextRecognizer()
{
    WorkerRecognizer &recognizer = m_services.recognizer;
    if (!recognizer.isSupported())
        return;
    m_services.history.setTextRecognizer([this, &recognizer](const RasterImage &image, auto answer) {
        m_services.reading = recognizer.recognize({ .image = image, .urgency = TextRecognizer::Urgency::Background },
            [answer = std::move(answer)](const Result<RecognizedContent> &content) {
                if (content)
                    return answer(content->text());
                qWarning("Tessaly: the text of a capture couldn't be read: %s", qPrintable(content.failure().message));
                answer(std::nullopt);
            });
    });
}

void LaunchSequence::prewarmTextRecognizer()
{
    if (m_services.recognizer.isSupported() && m_services.history.isEnabled())
        m_services.recognizer.prewarm();
}

void LaunchSequence::noteLaunch() { m_services.welcome().noteLaunch(); }

void LaunchSequence::migrateLanguage()
{
    if (const auto outcome = LanguageChoice::migrate(m_services.settings); !outcome)
        qWarning("Tessaly: %s", qPrintable(outcome.failure().message));
}

void LaunchSequence::applyPresence()
{
    AppPresence::apply(m_services.settings);
    if (m_kind == Kind::Resident)
        m_presence.showInTray();
}

void LaunchSequence::applyAppearance() { m_services.appearance.refresh(); }

/// Some desktops ask the user first, which one capture is no occasion for.
void LaunchSequence::reloadHotkeys()
{
    if (m_kind != Kind::Errand)
        m_services.hotkeys().reload();
}

void LaunchSequence::startWatcher() { m_services.followWatchSetting(); }

void LaunchSequence::showOnboardingIfNeeded()
{
    if (m_kind == Kind::Plain || m_kind == Kind::Files)
        m_services.welcome().showGuideIfNeeded();
}

void LaunchSequence::pruneHistory() { m_services.history.pruneExpired(m_services.clock.now()); }

void LaunchSequence::showWindows()
{
    if (m_kind == Kind::Plain && AppPresence::showInDock(m_services.settings))
        m_services.editors.activateOrOpenBlank();
    if (m_kind == Kind::Plain)
        m_presence.ensureVisible();
}

void LaunchSequence::showWhatsNewIfDue()
{
    if (m_kind == Kind::Files) // its icon is no part of what the user waits for
        m_presence.showInTray();
    if (m_kind != Kind::Errand && m_kind != Kind::Resident && m_services.welcome().owesWhatsNew())
        m_services.welcome().showWhatsNew();
}

/// What "tessaly settings" changes holds at once.
void LaunchSequence::followSettings() { m_services.settings.followOthers(); }

/// The first selection then opens as fast as the later ones.
void LaunchSequence::prepareCaptures()
{
    if (m_kind == Kind::Plain || m_kind == Kind::Resident)
        m_services.captureDesk().captures().prepare();
}

} // namespace tessaly
