// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureService.h"

namespace tessaly {

class HiddenForCapture;

/// One request on its way to a picture: own windows away, countdown, selection, pixels. Every step returns at once; the
/// next follows when the desktop or the user has answered. Main thread only.
class CaptureRun : public std::enable_shared_from_this<CaptureRun> {
public:
    /// The screen could be captured, but not what was asked for.
    struct NothingThere {
        Failure failure;
    };
    using End = std::variant<RasterImage, CaptureCancelled, Failure, NothingThere>;

    /// Own windows are hidden by the run and shown again by who owns it.
    CaptureRun(const CaptureService::Surroundings &with, HiddenForCapture &hidden, CaptureRequest request);

    /// Called once, unless the run is abandoned.
    std::function<void(End)> ended;

    void begin();
    /// Closes what the run has opened. No answer of the desktop or the user changes anything any more.
    void abandon();

    const CaptureRequest &request() const { return m_request; }
    /// That the user has selected, to be remembered.
    const std::optional<RegionSelection> &area() const { return m_area; }

private:
    using Step = std::function<void()>;

    /// The call happens only while the run goes on, and keeps it alive.
    template <class Work>
    auto whileRunning(Work work)
    {
        return [weak = weak_from_this(), work = std::move(work)](auto &&...arguments) {
            if (const auto run = weak.lock(); run && !run->m_over)
                work(std::forward<decltype(arguments)>(arguments)...);
        };
    }

    int delay() const;
    bool leavesOutDesktopIcons() const;
    void countDown(int seconds, Step then);
    /// Once nothing of this program is in the picture. `least` is the least time since own windows were hidden.
    void whenClear(std::chrono::milliseconds least, Step then);

    void select();
    void openOverPictures();
    void openWithMagnifier();
    void openOverlay(const QList<Display> &displays, DisplaySnapshots pictures, DisplaySnapshots magnified);
    void preparePicker();
    void selected(const OverlayResult &result);
    void selectedArea(const RegionSelection &selection);
    bool keepsPictures() const;

    void captureFrontWindow();
    /// What the caller has named instead of letting the user select.
    void captureNamedRect(const QRectF &rect);
    void captureNamedWindow(quint64 id);
    void captureLastRegion();
    /// The whole display without a rectangle, the primary one without an id.
    void capturePixels(std::optional<quint32> displayID, std::optional<QRect> pixelRect);
    void captureWindow(const ScreenWindow &window);

    void endWith(Result<RasterImage> picture);
    void end(End how);

    CaptureService::Surroundings m_with;
    HiddenForCapture &m_hidden;
    CaptureRequest m_request;
    bool m_over = false;
    bool m_freezes = false;
    bool m_covered = false; ///< a window of the capture itself, overlay or countdown, was shown
    DisplaySnapshots m_pictures; ///< that the selection is cut from; none when the capture is taken anew
    std::optional<RegionSelection> m_area;
};

} // namespace tessaly
