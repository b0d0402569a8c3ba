// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/CaptureCountdown.h"
#include "core/Capture/CaptureRun.h"
#include "core/Capture/HiddenForCapture.h"
#include "core/Preferences/Settings.h"
#include "core/Screen/CaptureEngine.h"

#include <QTimer>

// The part of a run that goes through the selection overlay.
namespace tessaly {

using std::chrono::milliseconds;

namespace {

/// Until the overlay has been painted: asking for the windows takes a while, and nobody picks one so soon.
constexpr milliseconds beforeListingWindows { 60 };

} // namespace

void CaptureRun::select()
{
    m_with.overlay.prepare(OverlayUse::AtOnce); // goes on while the screen is read
    m_freezes = m_with.settings.value(SettingKeys::freezeScreenWhileSelecting);
    if (m_freezes)
        return countDown(delay(), [this] { openOverPictures(); });
    if (!m_with.overlay.showsLiveScreen())
        return openOverPictures();
    if (m_with.settings.value(SettingKeys::showMagnifierWhileSelecting) && m_with.screen.isImmediate())
        return openWithMagnifier();
    const auto displays = m_with.screen.displays();
    if (!displays)
        return end(displays.failure());
    openOverlay(*displays, {}, {});
}

/// What is selected is cut from the pictures it was selected on when the screen is frozen. The same where each picture
/// may be a question to the user, who is not asked twice, unless a countdown is to let the screen change.
bool CaptureRun::keepsPictures() const { return m_freezes || (!m_with.screen.isImmediate() && delay() < 1); }

void CaptureRun::openOverPictures()
{
    whenClear(keepsPictures() ? m_with.hidden : milliseconds(0), [this] {
        const auto displays = m_with.screen.displays();
        if (!displays)
            return end(displays.failure());
        CaptureEngine::snapshotDisplays(m_with.screen, *displays, leavesOutDesktopIcons(),
            whileRunning([this, displays = *displays](Result<DisplaySnapshots> pictures) {
                if (!pictures)
                    return endWith(pictures.failure());
                if (keepsPictures())
                    m_pictures = *pictures;
                openOverlay(displays, std::move(*pictures), {});
            }));
    });
}

/// The pictures are taken before the overlay is there, or its dimming would be in them.
void CaptureRun::openWithMagnifier()
{
    whenClear(milliseconds(0), [this] {
        const auto displays = m_with.screen.displays();
        if (!displays)
            return end(displays.failure());
        CaptureEngine::snapshotDisplays(m_with.screen, *displays, leavesOutDesktopIcons(),
            whileRunning([this, displays = *displays](const Result<DisplaySnapshots> &pictures) {
                // Selecting works without a magnifier.
                openOverlay(displays, {}, pictures ? *pictures : DisplaySnapshots());
            }));
    });
}

void CaptureRun::openOverlay(const QList<Display> &displays, DisplaySnapshots pictures, DisplaySnapshots magnified)
{
    const bool picks = m_request.subject == CaptureSubject::Window;
    if (picks)
        preparePicker();
    m_covered = true;
    const auto mode = picks ? OverlayMode::Window : OverlayMode::Region;
    const int session = m_with.overlay.begin({ mode, displays, std::move(pictures) },
        whileRunning([this](const OverlayResult &result) { selected(result); }));
    if (m_over)
        return;
    if (!magnified.isEmpty())
        m_with.overlay.setSnapshots(std::move(magnified), session);
    if (!picks)
        QTimer::singleShot(beforeListingWindows, whileRunning([this] {
            if (m_with.overlay.isOpen())
                preparePicker();
        }));
}

void CaptureRun::preparePicker()
{
    // Without a list there is nothing to pick, which the overlay shows by itself.
    if (m_with.picker.isAvailable())
        static_cast<void>(m_with.picker.prepare());
}

void CaptureRun::selected(const OverlayResult &result)
{
    if (!result)
        return end(CaptureCancelled {});
    if (const auto *area = std::get_if<RegionSelection>(&*result))
        return selectedArea(*area);
    const Display display = std::get<FullScreenSelection>(*result).display;
    if (const QImage picture = m_pictures.value(display.id()); !picture.isNull())
        return endWith(CaptureEngine::crop(picture, picture.rect(), display.scale));
    countDown(m_freezes ? 0 : delay(), [this, id = display.id()] { capturePixels(id, {}); });
}

void CaptureRun::selectedArea(const RegionSelection &selection)
{
    const quint32 id = selection.display.id();
    const int seconds = m_freezes ? 0 : delay();
    if (selection.window)
        return countDown(seconds, [this, window = *selection.window] { captureWindow(window); });
    m_area = selection;
    if (const QImage picture = m_pictures.value(id); !picture.isNull())
        return endWith(CaptureEngine::crop(picture, selection.pixelRect, selection.display.scale));
    countDown(seconds, [this, id, rect = selection.pixelRect] { capturePixels(id, rect); });
}

} // namespace tessaly
