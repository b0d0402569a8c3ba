// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/WindowPicker.h"

#include <QHash>

#include <functional>
#include <variant>

namespace tessaly {

enum class OverlayMode { Region, Window };

/// What was selected on one monitor.
struct RegionSelection {
    Display display;
    QRect pixelRect; ///< within the display
    std::optional<ScreenWindow> window; ///< when a window was picked instead of an area

    /// The area in points of the display, origin at its top left.
    QRectF rect() const
    {
        return QRectF(QPointF(pixelRect.topLeft()) / display.scale, QSizeF(pixelRect.size()) / display.scale);
    }
};

/// The whole of one monitor.
struct FullScreenSelection {
    Display display;
};

/// Absent when the user cancelled.
using OverlayResult = std::optional<std::variant<RegionSelection, FullScreenSelection>>;

/// Pictures of whole monitors at their own pixels, by Display::id().
using DisplaySnapshots = QHash<quint32, QImage>;

/// When the overlay is going to be shown: perhaps some time, or as soon as the screen has been read.
enum class OverlayUse : quint8 { Later, AtOnce };

/// Lets the user select an area, a window or a monitor on all monitors at once. One for the program; main thread only.
class SelectionOverlay {
public:
    struct Opening {
        OverlayMode mode = OverlayMode::Region;
        QList<Display> displays;
        /// Shown instead of the live screen: always when the screen is frozen, else where showsLiveScreen() is false.
        DisplaySnapshots pictures = {};
    };
    using Completion = std::function<void(OverlayResult)>;

    virtual ~SelectionOverlay();

    /// Whether the screen goes on living under the overlay; where it cannot, pictures are needed.
    virtual bool showsLiveScreen() const = 0;

    /// Makes its windows ahead of time, unseen. Before the next begin() only what is sooner made than done without.
    virtual void prepare(OverlayUse use) = 0;
    /// Gives back what prepare() has made and is not needed while nothing is selected.
    virtual void release() { }

    /// Opens on every display. `completion` is called once, when all its windows are hidden. The number of this
    /// opening. What was open before ends cancelled.
    virtual int begin(Opening opening, Completion completion) = 0;

    /// Pictures for the magnifier; ignored when `session` is not the present opening.
    virtual void setSnapshots(DisplaySnapshots snapshots, int session) = 0;

    virtual void setMode(OverlayMode mode) = 0;
    virtual bool isOpen() const = 0;

    /// Closes, without a result.
    virtual void cancel() = 0;
};

} // namespace tessaly
