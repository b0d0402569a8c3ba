// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/CaptureRun.h"

#include "core/Capture/CaptureCountdown.h"
#include "core/Capture/HiddenForCapture.h"
#include "core/Capture/LastRegion.h"
#include "core/Preferences/Settings.h"
#include "core/Screen/CaptureEngine.h"

namespace tessaly {

using std::chrono::milliseconds;

CaptureRun::CaptureRun(const CaptureService::Surroundings &with, HiddenForCapture &hidden, CaptureRequest request) :
    m_with(with),
    m_hidden(hidden),
    m_request(std::move(request))
{
}

void CaptureRun::begin()
{
    if (m_request.subject == CaptureSubject::FrontWindow)
        return countDown(delay(), [this] { captureFrontWindow(); });
    m_hidden.hide();
    if (m_request.rect)
        return countDown(delay(), [this, rect = *m_request.rect] { captureNamedRect(rect); });
    if (m_request.window)
        return countDown(delay(), [this, id = *m_request.window] { captureNamedWindow(id); });
    switch (m_request.subject) {
    case CaptureSubject::Region:
    case CaptureSubject::Window:
        return select();
    case CaptureSubject::FullScreen:
        return countDown(delay(), [this] { capturePixels(m_request.display, {}); });
    case CaptureSubject::LastRegion:
        return captureLastRegion();
    case CaptureSubject::FrontWindow:
        break; // needs none of its own windows hidden, and began above
    }
}

void CaptureRun::abandon()
{
    m_over = true;
    m_hidden.stopWaiting();
    m_with.countdown.cancel();
    if (m_with.overlay.isOpen())
        m_with.overlay.cancel();
    m_with.picker.release();
}

int CaptureRun::delay() const
{
    constexpr int longest = 24 * 60 * 60;
    const int stored = std::clamp(m_with.settings.value(SettingKeys::captureDelay), 0, longest);
    return m_request.delaySeconds.value_or(stored);
}

bool CaptureRun::leavesOutDesktopIcons() const
{
    return m_with.settings.value(SettingKeys::hideDesktopIconsWhileCapturing)
        && m_with.screen.canLeaveOutDesktopIcons();
}

void CaptureRun::countDown(int seconds, Step then)
{
    m_covered |= seconds >= 1;
    m_with.countdown.start(seconds, whileRunning(std::move(then)), whileRunning([this] { end(CaptureCancelled {}); }));
}

void CaptureRun::whenClear(milliseconds least, Step then)
{
    m_hidden.whenGone(least, whileRunning([this, then = std::move(then)] {
        if (m_covered || m_hidden.hidesAny())
            m_with.screen.whenSettled(whileRunning(then));
        else
            then();
    }));
}

void CaptureRun::captureFrontWindow()
{
    const auto listed = m_with.windows.windows();
    if (!listed)
        return end(listed.failure());
    if (listed->isEmpty())
        return end(NothingThere { CaptureEngine::noFrontWindow() });
    captureWindow(listed->first());
}

void CaptureRun::captureNamedRect(const QRectF &rect)
{
    const auto displays = m_with.screen.displays();
    if (!displays)
        return end(displays.failure());
    const auto display = CaptureEngine::display(*displays, m_request.display);
    if (!display)
        return end(CaptureEngine::noDisplay());
    capturePixels(display->id(), CaptureEngine::pixelsOf(rect, display->scale));
}

void CaptureRun::captureNamedWindow(quint64 id)
{
    const auto listed = m_with.windows.windows();
    if (!listed)
        return end(listed.failure());
    const auto window = std::ranges::find(*listed, id, &ScreenWindow::id);
    if (window == listed->end())
        return end(NothingThere { CaptureEngine::noSuchWindow(id) });
    captureWindow(*window);
}

void CaptureRun::captureLastRegion()
{
    const auto displays = m_with.screen.displays();
    if (!displays)
        return end(displays.failure());
    const auto area = LastRegion::load(m_with.settings, *displays);
    if (!area)
        return end(CaptureEngine::noDisplay());
    countDown(delay(), [this, area] { capturePixels(area->display.id(), area->pixelRect); });
}

void CaptureRun::capturePixels(std::optional<quint32> displayID, std::optional<QRect> pixelRect)
{
    whenClear(m_with.hidden, [this, displayID, pixelRect] {
        // A monitor may have gone, moved or shrunk since it was selected on.
        const auto displays = m_with.screen.displays();
        if (!displays)
            return end(displays.failure());
        const auto display = CaptureEngine::display(*displays, displayID);
        if (!display)
            return end(CaptureEngine::noDisplay());
        const QRect inside = pixelRect.value_or(display->pixelRect()) & display->pixelRect();
        if (inside.isEmpty())
            return end(CaptureEngine::cropFailed());
        m_with.screen.capture({ *display, inside, leavesOutDesktopIcons() },
            whileRunning([this](Result<RasterImage> picture) { endWith(std::move(picture)); }));
    });
}

void CaptureRun::captureWindow(const ScreenWindow &window)
{
    whenClear(m_with.hidden, [this, window] {
        const bool shadow = m_with.settings.value(SettingKeys::windowCaptureShadow);
        const bool transparent = m_with.settings.value(SettingKeys::windowCaptureTransparentBackground);
        m_with.windows.capture(
            window, { .transparentBackground = transparent || shadow }, whileRunning([this, shadow](auto picture) {
                if (!picture && !picture.failure().cancelled)
                    return end(NothingThere { picture.failure() }); // mostly since it was closed
                if (picture && shadow)
                    return endWith(CaptureEngine::withShadow(*picture));
                endWith(std::move(picture));
            }));
    });
}

void CaptureRun::endWith(Result<RasterImage> picture)
{
    if (!picture && picture.failure().cancelled)
        end(CaptureCancelled {});
    else if (!picture)
        end(picture.failure());
    else if (picture->isEmpty())
        end(CaptureEngine::cropFailed());
    else
        end(std::move(*picture));
}

void CaptureRun::end(End how)
{
    m_over = true;
    m_with.picker.release();
    m_pictures.clear(); // whole screens, which nobody needs while an editor opens or a panel waits
    ended(std::move(how));
}

} // namespace tessaly
