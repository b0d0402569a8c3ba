// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11Layers.h"

#include "platform/x11/KeyboardGrab.h"
#include "platform/x11/Monitors.h"
#include "platform/x11/X11Atoms.h"
#include "platform/x11/X11EscapeKey.h"
#include "platform/x11/X11Reply.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHash>
#include <QScreen>
#include <QWindow>

#include <xcb/shape.h>

namespace tessaly {

/// What the server is told of the windows; made at the first use.
struct X11Layers::Implementation : QObject {
    explicit Implementation(xcb_connection_t *connection);

    bool eventFilter(QObject *watched, QEvent *event) override;

    void setProperty(const QWindow &window, X11Atom property, xcb_atom_t type, const QList<quint32> &values) const;
    void placeCover(const QWindow &window) const;
    void prepareNativeCover(const QWindow &window, bool transparent) const;
    void prepareNativeFloat(const QWindow &window) const;
    void setInputShape(const QWindow &window, bool passesClicks) const;
    void leaveCover(const QObject *window);
    void forget(QObject *window);

    xcb_connection_t *xcb;
    xcb_window_t root = XCB_WINDOW_NONE;
    int screenNumber = 0;
    X11Atoms atoms;
    KeyboardGrab keyboard;
    std::unique_ptr<X11EscapeKey> escape; ///< made at the first use
    QList<QWindow *> shownCovers; ///< the last one has the keyboard
    QHash<const QObject *, bool> floats; ///< whether clicks pass through
};

static xcb_window_t nativeId(const QWindow &window) { return static_cast<xcb_window_t>(window.winId()); }

X11Layers::Implementation::Implementation(xcb_connection_t *connection) :
    xcb(connection),
    atoms(connection),
    keyboard(connection)
{
    char *host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screenNumber))
        std::free(host);
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(xcb));
    for (int number = 0; number < screenNumber && screens.rem > 1; ++number)
        xcb_screen_next(&screens);
    root = screens.data->root;
}

/// A window manager takes the states off a window that is hidden, so they are put on each time, before it is mapped.
bool X11Layers::Implementation::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && floats.contains(watched))
        prepareNativeFloat(*static_cast<QWindow *>(watched));
    return false;
}

void X11Layers::Implementation::setProperty(
    const QWindow &window, X11Atom property, xcb_atom_t type, const QList<quint32> &values) const
{
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, nativeId(window), atoms[property], type, 32,
        static_cast<uint32_t>(values.size()), values.constData());
}

/// Onto the monitor's device pixels, above everything. Qt's points are whole numbers: with a broken scale they miss the
/// monitor's edge by a pixel.
void X11Layers::Implementation::placeCover(const QWindow &window) const
{
    for (const Display &monitor : Monitors::list(xcb, root)) {
        if (!window.screen() || monitor.name != window.screen()->name())
            continue;
        const QRect &place = monitor.layoutRect;
        const std::array<uint32_t, 5> values { static_cast<uint32_t>(place.x()), static_cast<uint32_t>(place.y()),
            static_cast<uint32_t>(place.width()), static_cast<uint32_t>(place.height()), XCB_STACK_MODE_ABOVE };
        xcb_configure_window(xcb, nativeId(window),
            XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT
                | XCB_CONFIG_WINDOW_STACK_MODE,
            values.data());
    }
}

void X11Layers::Implementation::prepareNativeCover(const QWindow &window, bool transparent) const
{
    constexpr quint32 neverBypass = 2;
    setProperty(window, X11Atom::NetWmBypassCompositor, XCB_ATOM_CARDINAL, { neverBypass });
    if (transparent) {
        // Until it is painted it lets everything through, instead of what its memory held.
        const uint32_t clear = 0;
        xcb_change_window_attributes(xcb, nativeId(window), XCB_CW_BACK_PIXEL, &clear);
    }
    placeCover(window);
    xcb_flush(xcb);
}

void X11Layers::Implementation::prepareNativeFloat(const QWindow &window) const
{
    constexpr quint32 allDesktops = 0xffffffff;
    setProperty(window, X11Atom::NetWmState, XCB_ATOM_ATOM,
        { atoms[X11Atom::NetWmStateAbove], atoms[X11Atom::NetWmStateSticky], atoms[X11Atom::NetWmStateSkipTaskbar],
            atoms[X11Atom::NetWmStateSkipPager] });
    setProperty(window, X11Atom::NetWmDesktop, XCB_ATOM_CARDINAL, { allDesktops });
    setInputShape(window, floats.value(&window));
}

/// The shape that takes the pointer: none at all, or the window's own.
void X11Layers::Implementation::setInputShape(const QWindow &window, bool passesClicks) const
{
    if (passesClicks)
        xcb_shape_rectangles(
            xcb, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED, nativeId(window), 0, 0, 0, nullptr);
    else
        xcb_shape_mask(xcb, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, nativeId(window), 0, 0, XCB_PIXMAP_NONE);
    xcb_flush(xcb);
}

/// Passes the keyboard on to the cover that is left, if any.
void X11Layers::Implementation::leaveCover(const QObject *window)
{
    const auto left = shownCovers.removeIf([=](const QWindow *cover) { return cover == window; });
    if (left == 0)
        return;
    if (shownCovers.isEmpty())
        keyboard.giveBack();
    else
        keyboard.take(nativeId(*shownCovers.last()));
}

void X11Layers::Implementation::forget(QObject *window)
{
    floats.remove(window);
    leaveCover(window);
}

X11Layers::X11Layers()
{
    // Qt's offscreen platform answers as X11, without a connection.
    auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 && x11->connection())
        m_implementation = std::make_unique<Implementation>(x11->connection());
}

X11Layers::~X11Layers() = default;

bool X11Layers::showsTransparency() const
{
    return m_implementation && hasCompositingManager(m_implementation->xcb, m_implementation->screenNumber);
}

void X11Layers::prepareCover(QWindow &window, QScreen &screen)
{
    const bool transparent = showsTransparency();
    QSurfaceFormat format = window.requestedFormat();
    const int alphaBits = transparent ? 8 : -1;
    if (window.handle() && format.alphaBufferSize() != alphaBits)
        window.destroy();
    format.setAlphaBufferSize(alphaBits);
    window.setFormat(format);
    window.setFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::BypassWindowManagerHint);
    window.setScreen(&screen);
    window.setGeometry(screen.geometry());
    window.create();
    if (!m_implementation)
        return;
    m_implementation->prepareNativeCover(window, transparent);
    QObject::connect(
        &window, &QObject::destroyed, m_implementation.get(), &Implementation::forget, Qt::UniqueConnection);
}

void X11Layers::showCover(QWindow &window)
{
    // A compositing manager may have come or gone since, and a monitor may have moved.
    const bool hasAlpha = window.requestedFormat().alphaBufferSize() > 0;
    const bool moved = window.screen() && window.geometry() != window.screen()->geometry();
    if (window.screen() && (!window.handle() || hasAlpha != showsTransparency() || moved))
        prepareCover(window, *window.screen());
    if (m_implementation)
        m_implementation->placeCover(window);
    window.show();
    if (!m_implementation)
        return;
    m_implementation->shownCovers.removeAll(&window);
    m_implementation->shownCovers.append(&window);
    m_implementation->keyboard.take(nativeId(window));
}

void X11Layers::hideCover(QWindow &window)
{
    if (m_implementation)
        m_implementation->leaveCover(&window);
    window.hide();
    if (!m_implementation)
        return;
    // An answer comes after everything that was asked before.
    xcb_connection_t *xcb = m_implementation->xcb;
    const XcbReply<xcb_get_input_focus_reply_t> done(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
}

bool X11Layers::canStayAbove() const
{
    if (!m_implementation)
        return false;
    const auto &own = *m_implementation;
    return PropertyRequest(own.xcb, own.root, own.atoms[X11Atom::NetSupported])
        .numbers()
        .contains(own.atoms[X11Atom::NetWmStateAbove]);
}

void X11Layers::prepareFloat(QWindow &window, QScreen &screen, const QRect &rect, Keyboard keyboard)
{
    Qt::WindowFlags flags = Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;
    flags.setFlag(Qt::WindowDoesNotAcceptFocus, keyboard == Keyboard::Never);
    window.setFlags(flags);
    // Qt's name for "mapped without the focus", known to its windows of widgets by an attribute.
    window.setProperty("_q_showWithoutActivating", true);
    window.setScreen(&screen);
    window.setGeometry(rect.translated(screen.geometry().topLeft()));
    window.create();
    if (!m_implementation)
        return;
    m_implementation->floats.insert(&window, m_implementation->floats.value(&window));
    window.installEventFilter(m_implementation.get());
    QObject::connect(
        &window, &QObject::destroyed, m_implementation.get(), &Implementation::forget, Qt::UniqueConnection);
}

void X11Layers::moveFloat(QWindow &window, const QRect &rect)
{
    if (window.screen())
        window.setGeometry(rect.translated(window.screen()->geometry().topLeft()));
}

void X11Layers::setPassesClicks(QWindow &window, bool passes)
{
    if (!m_implementation || !m_implementation->floats.contains(&window))
        return;
    m_implementation->floats[&window] = passes;
    if (window.handle())
        m_implementation->setInputShape(window, passes);
}

bool X11Layers::watchEscape(std::function<void()> pressed)
{
    if (!m_implementation)
        return false;
    auto &own = *m_implementation;
    if (!own.escape)
        own.escape = std::make_unique<X11EscapeKey>(own.xcb, own.root);
    own.escape->watch(std::move(pressed));
    return true;
}

} // namespace tessaly
