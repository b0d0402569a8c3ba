// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CaptureDesk.h"

#include "core/Export/PictureTitle.h"
#include "platform/Choice/PlatformChoice.h"

namespace tessaly {

namespace {

std::unique_ptr<ScreenSource> screenOfThisDesktop()
{
    auto source = PlatformChoice::screenSource(CaptureUse::Repeated);
    return source ? std::move(*source) : PlatformChoice::missingScreenSource(source.failure());
}

} // namespace

CaptureDesk::CaptureDesk(const Surroundings &with) :
    m_screen(screenOfThisDesktop()),
    m_windows(PlatformChoice::windowSource(*m_screen)),
    m_picker(*m_windows),
    m_overlay({ with.layers, m_picker, with.settings, with.clipboard }),
    m_countdownWindow(with.layers),
    m_countdown(m_countdownWindow),
    m_watcher({ with.settings, with.openPanels, with.clock }),
    m_router({ with.settings, with.exports, with.history, m_watcher, with.alerts, with.clock }),
    m_pins({ with.settings, with.exports, with.layers, with.toasts }),
    m_thumbnails({ with.settings, with.exports, m_router, with.quickAccessCopier, m_pins, with.layers, with.toasts }),
    m_captures({ with.settings, *m_screen, *m_windows, m_picker, m_overlay, m_countdown, m_ownWindows, m_router,
        with.history, with.exports, with.textCopier, m_watcher, m_sounds, with.toasts, with.alerts })
{
    m_router.openEditor = with.openEditor;
    m_router.showThumbnail = [this](const RasterImage &image) { m_thumbnails.show(image); };
    m_pins.openEditor
        = [open = with.openEditor](RasterImage image) { open(std::move(image), PictureTitle::untitled()); };
    m_watcher.found
        = [this](const RasterImage &image, const QString &name) { m_router.handleSystemScreenshot(image, name); };
}

} // namespace tessaly
