// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine/CaptureOptions.h"
#include "core/Screen/WindowSource.h"

#include <memory>

namespace tessaly {

class CommandContext;

/// The screen for commands, which have nothing to do until they have its pictures.
class ScreenTaking {
public:
    /// Takes the context's sources; fails where nothing can be captured. The context outlives it.
    static Result<ScreenTaking> create(CommandContext &context);

    Result<QList<Display>> displays() { return m_screen->displays(); }
    /// Front to back.
    Result<QList<ScreenWindow>> windows();

    /// Options that are settled.
    Result<RasterImage> take(const CaptureOptions &options);

private:
    ScreenTaking(CommandContext &context, std::unique_ptr<ScreenSource> screen) :
        m_context(context),
        m_screen(std::move(screen))
    {
    }
    WindowSource &windowSource();
    Result<RasterImage> takePart(const Display &display, const QRect &pixelRect);
    Result<RasterImage> takeRect(const Display &display, const QRectF &rect);
    Result<RasterImage> takeLastRegion(const QList<Display> &displays);
    Result<RasterImage> takeWindow(std::optional<qint64> id);

    CommandContext &m_context;
    std::unique_ptr<ScreenSource> m_screen;
    std::unique_ptr<WindowSource> m_windows; ///< once it is needed; uses m_screen
};

} // namespace tessaly
