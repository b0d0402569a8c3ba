// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/ScreenTaking.h"

#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/Text.h"
#include "core/Capture/LastRegion.h"
#include "core/Screen/CaptureEngine.h"

#include <QEventLoop>

namespace tessaly {

namespace {

/// What `ask` is answered, now or later.
Result<RasterImage> answerTo(const std::function<void(ScreenSource::Answer)> &ask)
{
    std::optional<Result<RasterImage>> answer;
    QEventLoop *waiting = nullptr;
    ask([&](Result<RasterImage> given) {
        answer = std::move(given);
        if (waiting)
            waiting->quit();
    });
    if (!answer) {
        QEventLoop loop;
        waiting = &loop;
        loop.exec();
    }
    return std::move(*answer);
}

} // namespace

Result<ScreenTaking> ScreenTaking::create(CommandContext &context)
{
    auto screen = context.environment().screenSource();
    if (!screen)
        return screen.failure();
    if (!(*screen)->isImmediate())
        context.requireEventLoop();
    return ScreenTaking(context, std::move(*screen));
}

WindowSource &ScreenTaking::windowSource()
{
    if (!m_windows) {
        m_context.requireEventLoop();
        m_windows = m_context.environment().windowSource(*m_screen);
    }
    return *m_windows;
}

Result<QList<ScreenWindow>> ScreenTaking::windows() { return windowSource().windows(); }

Result<RasterImage> ScreenTaking::take(const CaptureOptions &options)
{
    if (options.subject == CaptureSubject::Window || options.subject == CaptureSubject::FrontWindow)
        return takeWindow(options.window);
    const auto all = displays();
    if (!all)
        return all.failure();
    if (options.subject == CaptureSubject::LastRegion)
        return takeLastRegion(*all);
    const qint64 number = options.display.value_or(1);
    if (number > all->size())
        return Failure { Text::tr("There is no display %1; the last one is %2.")
                             .arg(QString::number(number), QString::number(all->size())) };
    const Display &display = all->at(number - 1);
    return options.rectText ? takeRect(display, *options.rect()) : takePart(display, display.pixelRect());
}

Result<RasterImage> ScreenTaking::takePart(const Display &display, const QRect &pixelRect)
{
    const bool leavesOutIcons = m_screen->canLeaveOutDesktopIcons()
        && m_context.settings().value(SettingKeys::hideDesktopIconsWhileCapturing);
    return answerTo([&](ScreenSource::Answer answer) {
        m_screen->capture({ display, pixelRect, leavesOutIcons }, std::move(answer));
    });
}

Result<RasterImage> ScreenTaking::takeRect(const Display &display, const QRectF &rect)
{
    // What lies beyond the display has no pixels.
    const QRect pixelRect = CaptureEngine::pixelsOf(rect, display.scale) & display.pixelRect();
    if (pixelRect.isEmpty())
        return Failure { Text::tr("The rectangle has no pixel of the display %1, which has %2 by %3 points.")
                             .arg(display.name, QString::number(display.pointSize().width()),
                                 QString::number(display.pointSize().height())) };
    return takePart(display, pixelRect);
}

Result<RasterImage> ScreenTaking::takeLastRegion(const QList<Display> &displays)
{
    const auto region = LastRegion::load(m_context.settings(), displays);
    if (!region)
        return Failure { Text::tr("There is no last region: none was selected yet, or its display is gone.") };
    return takePart(region->display, region->pixelRect);
}

Result<RasterImage> ScreenTaking::takeWindow(std::optional<qint64> id)
{
    const auto listed = windows();
    if (!listed)
        return listed.failure();
    const auto window = id ? std::ranges::find(*listed, static_cast<quint64>(*id), &ScreenWindow::id) : listed->begin();
    if (window == listed->end())
        return id ? CaptureEngine::noSuchWindow(static_cast<quint64>(*id)) : CaptureEngine::noFrontWindow();
    const bool withShadow = m_context.settings().value(SettingKeys::windowCaptureShadow);
    const bool transparent = withShadow || m_context.settings().value(SettingKeys::windowCaptureTransparentBackground);
    auto picture = answerTo(
        [&](ScreenSource::Answer answer) { m_windows->capture(*window, { transparent }, std::move(answer)); });
    if (!picture || !withShadow)
        return picture;
    return CaptureEngine::withShadow(*picture);
}

} // namespace tessaly
