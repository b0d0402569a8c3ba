// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/DesktopIcons.h"

#include "platform/x11/DrawablePixels.h"
#include "platform/x11/WindowStack.h"

#include <QPainter>
#include <QSet>

namespace tessaly::DesktopIcons {

/// The top-level windows that are, or hold, a window of the type.
static QSet<xcb_window_t> desktopTopLevels(const X11Connection &connection)
{
    xcb_connection_t *xcb = connection.xcb();
    const X11Atoms &atoms = connection.atoms();
    QList<xcb_window_t> candidates
        = PropertyRequest(xcb, connection.root(), atoms[X11Atom::NetClientListStacking]).numbers();
    candidates += WindowStack::children(connection);
    std::vector<PropertyRequest> types;
    for (const xcb_window_t window : candidates)
        types.emplace_back(xcb, window, atoms[X11Atom::NetWmWindowType]);
    QList<xcb_window_t> desktops;
    for (size_t index = 0; index < types.size(); ++index) {
        if (types[index].numbers().contains(atoms[X11Atom::NetWmWindowTypeDesktop]))
            desktops.append(candidates[static_cast<qsizetype>(index)]);
    }
    const QList<xcb_window_t> topLevels = WindowStack::topLevelsOf(connection, desktops);
    return QSet<xcb_window_t>(topLevels.begin(), topLevels.end());
}

/// Where such windows are seen: below what covers them.
static QRegion visibleRegion(const X11Connection &connection, const QRect &pixelRect)
{
    const QSet<xcb_window_t> desktops = desktopTopLevels(connection);
    if (desktops.isEmpty())
        return {};
    QRegion visible;
    for (const auto &topLevel : WindowStack::visibleTopLevels(connection)) {
        if (desktops.contains(topLevel.id))
            visible += topLevel.pixelRegion;
        else
            visible -= topLevel.pixelRegion;
    }
    return visible & pixelRect;
}

/// The server's picture that desktops set as the background, as large as it is; null without one.
static QImage background(const X11Connection &connection)
{
    xcb_connection_t *xcb = connection.xcb();
    const xcb_pixmap_t pixmap
        = PropertyRequest(xcb, connection.root(), connection.atoms()[X11Atom::XRootPixmap]).number(XCB_PIXMAP_NONE);
    if (pixmap == XCB_PIXMAP_NONE)
        return {};
    const XcbReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(xcb, xcb_get_geometry(xcb, pixmap), nullptr));
    if (!geometry || geometry->depth != connection.rootDepth())
        return {};
    return DrawablePixels::read(connection, pixmap, QRect(0, 0, geometry->width, geometry->height),
        connection.rootPixelLayout(), DrawablePixels::Alpha::Ignored);
}

void replaceWithBackground(const X11Connection &connection, QImage &picture, QPoint pixelOrigin)
{
    const QRegion region = visibleRegion(connection, QRect(pixelOrigin, picture.size()));
    if (region.isEmpty())
        return;
    const QImage tile = background(connection);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.translate(-pixelOrigin);
    for (const QRect &rect : region)
        painter.fillRect(rect, tile.isNull() ? QBrush(Qt::black) : QBrush(tile));
}

} // namespace tessaly::DesktopIcons
