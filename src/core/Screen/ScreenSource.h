// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Imaging/RasterImage.h"
#include "core/Screen/Display.h"

#include <QList>

#include <functional>
#include <optional>

namespace tessaly {

/// Whether a source is asked once, as by a command that then ends, or again and again by a program that stays.
enum class CaptureUse { Once, Repeated };

/// Where the pixels of the screen come from. Main thread only.
class ScreenSource {
public:
    using Answer = std::function<void(Result<RasterImage>)>;
    struct Shot {
        Display display;
        QRect pixelRect; ///< within the display
        bool leavesOutDesktopIcons = false; ///< only where canLeaveOutDesktopIcons()
        bool isBrief = false; ///< the picture is looked at and let go of
    };

    virtual ~ScreenSource();

    /// The monitors, the primary one first; asked for anew each time. Never an empty list.
    virtual Result<QList<Display>> displays() = 0;

    /// What the screen shows now, without the pointer; opaque. The picture's points are its pixels divided by the
    /// display's scale. `answer` is called once, before this returns where the desktop gives pixels at once. A failure
    /// has the sentence for the user; one that is `cancelled` was the user's own wish, and no alert is due.
    virtual void capture(const Shot &shot, Answer answer) = 0;

    virtual bool canLeaveOutDesktopIcons() const { return false; }

    /// Whether capture() answers at once and without asking the user, so that a picture may be taken while selecting.
    virtual bool isImmediate() const { return true; }

    /// What the user can do about the capture that failed last, in a sentence for the alert; it stands there instead of
    /// the general paragraph about a permission. Absent on a desktop that needs none.
    virtual std::optional<QString> wayOut() const { return {}; }

    /// Calls back when what windows of this program covered has been drawn again, after they were hidden.
    virtual void whenSettled(std::function<void()> then) = 0;

    /// Makes ready what the first capture would wait for, and gives back what is kept for the next one.
    virtual void prepare() { }
    virtual void release() { }
};

} // namespace tessaly
