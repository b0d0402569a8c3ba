// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/Surfaces/LayerWindow.h"

#include "platform/wayland/LayerShellProtocol.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPlatformSurfaceEvent>

#include <wayland-client.h>

namespace tessaly {

namespace {

constexpr uint32_t topLeft = ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT;
constexpr uint32_t allEdges = topLeft | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;

/// Most compositors tell the pointer's place in a surface as though it still lay where a button went down on it, until
/// the button is released; these tell it where the surface is.
bool followsWhilePressed()
{
    static constexpr const char *desktops[] { "KDE", "Hyprland", "Wayfire" };
    const QList<QByteArray> names = qgetenv("XDG_CURRENT_DESKTOP").split(':');
    return std::ranges::any_of(desktops, [&names](const char *desktop) { return names.contains(desktop); });
}

uint32_t interactivity(zwlr_layer_surface_v1 *layer, LayerPlace::Keyboard keyboard)
{
    switch (keyboard) {
    case LayerPlace::Keyboard::Always:
        return ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE;
    case LayerPlace::Keyboard::OnClick:
        // Older compositors know all or nothing, and all would take the keyboard from everyone.
        if (zwlr_layer_surface_v1_get_version(layer)
            >= ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_ON_DEMAND_SINCE_VERSION)
            return ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_ON_DEMAND;
        break;
    case LayerPlace::Keyboard::Never:
        break;
    }
    return ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE;
}

} // namespace

LayerWindow::LayerWindow(std::shared_ptr<LayerConnection> connection, QWindow &window, const LayerPlace &place) :
    QObject(&window),
    m_connection(std::move(connection)),
    m_window(window),
    m_place(place)
{
    // Qt believes every window but these two kinds to lie at its screen's top left, and would say so to their owners.
    const bool keepsItsPlace = m_window.type() == Qt::Popup || m_window.type() == Qt::ToolTip;
    if (!place.rect.isEmpty() && !keepsItsPlace)
        m_window.setFlags((m_window.flags() & ~Qt::WindowType_Mask) | Qt::ToolTip);
    m_window.setFlag(Qt::BypassWindowManagerHint);
    m_window.installEventFilter(this);
    // Comes before Qt drops the surface, whose role must go first.
    connect(&m_window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            leavePlace();
    });
    setPlace(place);
}

LayerWindow::~LayerWindow() { leavePlace(); }

void LayerWindow::setPlace(const LayerPlace &place)
{
    const bool changesScreen = m_place.screen != place.screen;
    m_place = place;
    if (!m_place.screen)
        m_place.screen = QGuiApplication::primaryScreen();
    if (!m_place.screen)
        return;
    // A surface keeps its monitor for life.
    const bool shownAgain = changesScreen && m_layer;
    if (shownAgain)
        m_window.hide();
    if (m_window.screen() != m_place.screen)
        m_window.setScreen(m_place.screen);
    tellPlace();
    if (shownAgain)
        m_window.show();
    if (m_layer) {
        // Sway 1.7 does not draw anew what a surface has left, unless its pixels have changed there in the same frame.
        wl_surface *surface = LayerConnection::surfaceOf(m_window);
        wl_surface_damage(surface, 0, 0, std::numeric_limits<int32_t>::max(), std::numeric_limits<int32_t>::max());
        wl_surface_commit(surface);
        applyPlace();
        m_connection->commit(surface);
    }
}

/// Tells Qt, which makes places on the desktop of those in the window.
void LayerWindow::tellPlace()
{
    if (!m_place.screen)
        return;
    const QRect whole = m_place.screen->geometry();
    QRect rect = m_place.rect.isEmpty() ? whole : m_place.rect.translated(whole.topLeft());
    if (m_isPressed && !followsWhilePressed())
        rect.moveTopLeft(m_window.position());
    m_window.setGeometry(rect);
}

void LayerWindow::stepBack(bool back)
{
    m_stepsBack = back;
    if (!m_layer || zwlr_layer_surface_v1_get_version(m_layer) < ZWLR_LAYER_SURFACE_V1_SET_LAYER_SINCE_VERSION)
        return;
    zwlr_layer_surface_v1_set_layer(m_layer, layer());
    m_connection->commit(LayerConnection::surfaceOf(m_window));
}

uint32_t LayerWindow::layer() const
{
    return m_stepsBack ? ZWLR_LAYER_SHELL_V1_LAYER_TOP : ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY;
}

void LayerWindow::setPassesClicks(bool passes)
{
    m_passesClicks = passes;
    if (!m_layer)
        return;
    applyInput();
    m_connection->commit(LayerConnection::surfaceOf(m_window));
}

bool LayerWindow::eventFilter(QObject *object, QEvent *event)
{
    if (object != &m_window)
        return false;
    if (event->type() == QEvent::PlatformSurface) {
        const auto *surface = static_cast<QPlatformSurfaceEvent *>(event);
        if (surface->surfaceEventType() == QPlatformSurfaceEvent::SurfaceAboutToBeDestroyed)
            leavePlace();
    } else if (!m_layer && m_window.isVisible()) {
        takePlace();
    }
    const bool isMouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove
        || event->type() == QEvent::MouseButtonRelease;
    if (isMouse && m_isPressed != (static_cast<QMouseEvent *>(event)->buttons() != Qt::NoButton)) {
        m_isPressed = !m_isPressed;
        if (!m_isPressed)
            QMetaObject::invokeMethod(this, &LayerWindow::tellPlace, Qt::QueuedConnection); // when it has been handled
    }
    return false;
}

void LayerWindow::takePlace()
{
    static const zwlr_layer_surface_v1_listener listener {
        .configure =
            [](void *data, zwlr_layer_surface_v1 *, uint32_t serial, uint32_t width, uint32_t height) {
                static_cast<LayerWindow *>(data)->configured(serial, QSize(int(width), int(height)));
            },
        .closed = [](void *data, zwlr_layer_surface_v1 *) { static_cast<LayerWindow *>(data)->closedByCompositor(); },
    };
    wl_surface *surface = LayerConnection::surfaceOf(m_window);
    if (!surface || !m_place.screen)
        return;
    m_layer = zwlr_layer_shell_v1_get_layer_surface(
        m_connection->layers(), surface, LayerConnection::outputOf(*m_place.screen), layer(), "tessaly");
    zwlr_layer_surface_v1_add_listener(m_layer, &listener, this);
    applyPlace();
    applyInput();
    m_connection->commit(surface);
    Q_EMIT shown(true);
    // No pixels may come before the compositor has answered.
    m_connection->roundTrip();
}

void LayerWindow::leavePlace()
{
    if (!m_layer)
        return;
    zwlr_layer_surface_v1_destroy(m_layer);
    m_layer = nullptr;
    m_isPressed = false;
    Q_EMIT shown(false);
}

void LayerWindow::applyPlace()
{
    const QRect &rect = m_place.rect;
    zwlr_layer_surface_v1_set_anchor(m_layer, rect.isEmpty() ? allEdges : topLeft);
    zwlr_layer_surface_v1_set_size(
        m_layer, uint32_t(rect.isEmpty() ? 0 : rect.width()), uint32_t(rect.isEmpty() ? 0 : rect.height()));
    zwlr_layer_surface_v1_set_margin(m_layer, rect.y(), 0, 0, rect.x());
    zwlr_layer_surface_v1_set_exclusive_zone(m_layer, -1); // over panels, not beside them
    zwlr_layer_surface_v1_set_keyboard_interactivity(m_layer, interactivity(m_layer, m_place.keyboard));
}

void LayerWindow::applyInput()
{
    wl_region *region = m_passesClicks ? wl_compositor_create_region(m_connection->compositor()) : nullptr;
    wl_surface_set_input_region(LayerConnection::surfaceOf(m_window), region);
    if (region)
        wl_region_destroy(region);
}

void LayerWindow::configured(uint32_t serial, QSize size)
{
    zwlr_layer_surface_v1_ack_configure(m_layer, serial);
    if (!size.isEmpty() && m_place.rect.isEmpty() && size != m_window.size())
        m_window.resize(size);
}

void LayerWindow::closedByCompositor()
{
    // The monitor has gone. A cover ends with it; a float goes to another one.
    QMetaObject::invokeMethod(
        this,
        [this] {
            const bool floats = !m_place.rect.isEmpty() && m_window.isVisible();
            m_window.hide();
            LayerPlace other = m_place;
            other.screen = QGuiApplication::primaryScreen();
            setPlace(other);
            if (floats)
                m_window.show();
        },
        Qt::QueuedConnection);
}

} // namespace tessaly
