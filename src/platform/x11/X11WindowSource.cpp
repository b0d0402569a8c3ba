// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11WindowSource.h"

#include "platform/Entries/DesktopEntries.h"
#include "platform/x11/DrawablePixels.h"
#include "platform/x11/WindowFacts.h"
#include "platform/x11/WindowStack.h"

#include <QCoreApplication>
#include <QPainter>
#include <QTimer>

#include <xcb/composite.h>

namespace tessaly {

static Failure closedFailure(const ScreenWindow &window)
{
    if (window.title.isEmpty())
        return { QCoreApplication::translate("X11WindowSource", "The window was closed before it was captured.") };
    return { QCoreApplication::translate("X11WindowSource", "The window “%1” was closed before it was captured.")
                 .arg(window.title) };
}

X11WindowSource::X11WindowSource(ScreenSource &screen, std::shared_ptr<X11Connection> connection) :
    m_screen(screen),
    m_connection(std::move(connection)),
    m_entries(std::make_unique<DesktopEntries>())
{
}

X11WindowSource::~X11WindowSource() = default;

Result<std::unique_ptr<WindowSource>> X11WindowSource::create(ScreenSource &screen, const QString &display)
{
    auto connection = X11Connection::open(display);
    if (!connection)
        return connection.failure();
    return std::unique_ptr<WindowSource>(new X11WindowSource(screen, std::move(*connection)));
}

std::optional<Display> X11WindowSource::displayAt(const QRect &pixelRect) const
{
    const auto displays = m_screen.displays();
    if (!displays)
        return {};
    const auto areaOn = [&](const Display &display) {
        const QRect common = display.layoutRect & pixelRect;
        return qint64(common.width()) * common.height();
    };
    return *std::max_element(displays->begin(), displays->end(),
        [&](const Display &first, const Display &second) { return areaOn(first) < areaOn(second); });
}

ScreenWindow X11WindowSource::described(const WindowFacts &facts)
{
    return { facts.id, facts.title, m_entries->applicationName(facts.instance, facts.className), facts.processId,
        QRectF(facts.pixelRect) };
}

Result<QList<ScreenWindow>> X11WindowSource::windows()
{
    m_connection->dropEvents();
    const auto displays = m_screen.displays();
    if (!displays)
        return displays.failure();
    QList<quint32> ids = PropertyRequest(
        m_connection->xcb(), m_connection->root(), m_connection->atoms()[X11Atom::NetClientListStacking])
                             .numbers();
    if (ids.isEmpty())
        ids = WindowStack::children(*m_connection);
    std::reverse(ids.begin(), ids.end());

    const auto scaleAt = [&](QPoint place) {
        for (const Display &display : *displays) {
            if (display.layoutRect.contains(place))
                return display.scale;
        }
        return displays->first().scale;
    };
    QList<ScreenWindow> windows;
    for (const WindowFacts &facts : WindowFacts::of(*m_connection, ids)) {
        const double onePoint = scaleAt(facts.pixelRect.center());
        const bool largeEnough = facts.pixelRect.width() > onePoint && facts.pixelRect.height() > onePoint;
        if (facts.visible && facts.usual && largeEnough && facts.processId != QCoreApplication::applicationPid())
            windows.append(described(facts));
    }
    return windows;
}

std::optional<WindowSource::Application> X11WindowSource::frontApplication()
{
    const quint32 active
        = PropertyRequest(m_connection->xcb(), m_connection->root(), m_connection->atoms()[X11Atom::NetActiveWindow])
              .number(XCB_WINDOW_NONE);
    if (active == XCB_WINDOW_NONE)
        return {};
    const QList<WindowFacts> facts = WindowFacts::of(*m_connection, { active });
    if (facts.isEmpty())
        return {};
    return Application { described(facts.first()).applicationName, facts.first().processId };
}

bool X11WindowSource::canComposite()
{
    if (!m_canComposite) {
        m_canComposite = m_connection->hasExtension(xcb_composite_id);
        // The server answers the extension's requests only to those who have asked for its version.
        if (*m_canComposite)
            xcb_discard_reply(m_connection->xcb(), xcb_composite_query_version(m_connection->xcb(), 0, 4).sequence);
    }
    return *m_canComposite;
}

void X11WindowSource::keep(FrameId frame, Keeping keeping)
{
    if (m_kept.contains(frame)) {
        if (keeping == Keeping::UntilReleased)
            m_kept[frame].keeping = keeping;
        return;
    }
    xcb_composite_redirect_window(m_connection->xcb(), frame, XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    Kept &kept = m_kept[frame];
    kept.keeping = keeping;
    kept.since.start();
}

void X11WindowSource::letGo(FrameId frame)
{
    if (m_kept.remove(frame))
        xcb_composite_unredirect_window(m_connection->xcb(), frame, XCB_COMPOSITE_REDIRECT_AUTOMATIC);
    xcb_flush(m_connection->xcb());
}

void X11WindowSource::prepare(const QList<ScreenWindow> &windows)
{
    if (!canComposite())
        return;
    QList<xcb_window_t> ids;
    for (const ScreenWindow &window : windows)
        ids.append(static_cast<xcb_window_t>(window.id));
    for (const xcb_window_t frame : WindowStack::topLevelsOf(*m_connection, ids)) {
        if (frame != XCB_WINDOW_NONE)
            keep(frame, Keeping::UntilReleased);
    }
    xcb_flush(m_connection->xcb());
}

void X11WindowSource::release()
{
    const QList<FrameId> frames = m_kept.keys();
    for (const FrameId frame : frames) {
        if (m_kept[frame].keeping == Keeping::UntilReleased)
            letGo(frame);
    }
    m_connection->dropEvents();
}

qint64 X11WindowSource::timeToDraw(FrameId frame) const
{
    constexpr qint64 enough = 80; // ms; programs draw within a few frames
    const auto kept = m_kept.constFind(frame);
    if (kept == m_kept.cend() || kept->since.hasExpired(enough) || m_connection->hasCompositingManager())
        return 0;
    QRegion own;
    QRegion above;
    for (const auto &topLevel : WindowStack::visibleTopLevels(*m_connection)) {
        if (topLevel.id == frame)
            own = topLevel.pixelRegion;
        else if (!own.isEmpty())
            above += topLevel.pixelRegion;
    }
    const QRegion shown = own & m_connection->rootPixelRect();
    const bool covered = shown != own || above.intersects(own);
    return covered ? enough - kept->since.elapsed() : 0;
}

void X11WindowSource::capture(const ScreenWindow &window, Look look, ScreenSource::Answer answer)
{
    m_connection->dropEvents();
    const auto id = static_cast<xcb_window_t>(window.id);
    const xcb_window_t frame = WindowStack::topLevelsOf(*m_connection, { id }).first();
    if (frame == XCB_WINDOW_NONE)
        return answer(closedFailure(window));
    if (canComposite())
        keep(frame, Keeping::ForOneCapture);
    const qint64 wait = timeToDraw(frame);
    if (wait <= 0)
        return captureNow(window, frame, look, answer);
    QTimer::singleShot(std::chrono::milliseconds(wait), Qt::PreciseTimer, &m_waiting,
        [=, this, answer = std::move(answer)] { captureNow(window, frame, look, answer); });
}

void X11WindowSource::captureNow(
    const ScreenWindow &window, FrameId frame, Look look, const ScreenSource::Answer &answer)
{
    const QList<WindowFacts> facts = WindowFacts::of(*m_connection, { static_cast<xcb_window_t>(window.id) });
    const bool gone = facts.isEmpty() || !facts.first().visible;
    const QRect pixelRect = gone ? QRect() : facts.first().pixelRect;
    QImage pixels = gone ? QImage() : pixelsOf(frame, pixelRect, look);
    const auto kept = m_kept.constFind(frame);
    if (kept != m_kept.cend() && kept->keeping == Keeping::ForOneCapture)
        letGo(frame);
    if (gone)
        return answer(closedFailure(window));
    if (pixels.isNull())
        return captureVisible(pixelRect, answer);
    const auto display = displayAt(pixelRect);
    const QSizeF pointSize = QSizeF(pixels.size()) / (display ? display->scale : 1);
    answer(RasterImage { std::move(pixels), pointSize });
}

QImage X11WindowSource::pixelsOf(FrameId frame, const QRect &pixelRect, Look look) const
{
    if (!m_canComposite.value_or(false))
        return {};
    xcb_connection_t *xcb = m_connection->xcb();
    const xcb_pixmap_t pixmap = xcb_generate_id(xcb);
    const auto named = xcb_composite_name_window_pixmap_checked(xcb, frame, pixmap);
    const auto attributesRequest = xcb_get_window_attributes(xcb, frame);
    const auto geometryRequest = xcb_get_geometry(xcb, frame);
    const XcbReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(xcb, attributesRequest, nullptr));
    const XcbReply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(xcb, geometryRequest, nullptr));
    if (XcbReply<xcb_generic_error_t>(xcb_request_check(xcb, named)))
        return {};
    QImage pixels;
    if (attributes && geometry) {
        const int border = 2 * geometry->border_width;
        const QRect all(0, 0, geometry->width + border, geometry->height + border);
        const QRect wanted = pixelRect.translated(-geometry->x, -geometry->y) & all;
        const auto layout = m_connection->pixelLayout(geometry->depth, attributes->visual);
        const auto alpha = geometry->depth == 32 ? DrawablePixels::Alpha::Kept : DrawablePixels::Alpha::Ignored;
        if (!wanted.isEmpty())
            pixels = DrawablePixels::read(*m_connection, pixmap, wanted, layout, alpha);
    }
    xcb_free_pixmap(xcb, pixmap);
    xcb_flush(xcb);
    if (look.transparentBackground || !pixels.hasAlphaChannel())
        return pixels;
    QImage opaque(pixels.size(), QImage::Format_RGB32);
    opaque.fill(Qt::black);
    QPainter(&opaque).drawImage(0, 0, pixels);
    return opaque;
}

void X11WindowSource::captureVisible(const QRect &pixelRect, const ScreenSource::Answer &answer)
{
    const auto display = displayAt(pixelRect);
    const QRect visible = display ? display->pixelsOf(pixelRect) : QRect();
    if (visible.isEmpty())
        return answer(
            Failure { QCoreApplication::translate("X11WindowSource", "The window lies outside the screen.") });
    m_screen.capture({ *display, visible }, answer);
}

bool X11WindowSource::showsAny(const QList<quint64> &ownWindows)
{
    xcb_connection_t *xcb = m_connection->xcb();
    QList<xcb_window_t> windows;
    for (const quint64 id : ownWindows)
        windows.append(static_cast<xcb_window_t>(id));
    // A window manager hides a frame some time after the window in it.
    windows += WindowStack::topLevelsOf(*m_connection, windows);
    QList<xcb_get_window_attributes_cookie_t> requests;
    for (const xcb_window_t window : windows)
        requests.append(xcb_get_window_attributes(xcb, window));
    bool shown = false;
    for (const auto &request : requests) {
        const XcbReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(xcb, request, nullptr));
        shown = shown || (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE);
    }
    m_connection->dropEvents();
    return shown;
}

} // namespace tessaly
