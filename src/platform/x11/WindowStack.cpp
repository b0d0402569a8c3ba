// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/WindowStack.h"

#include <xcb/composite.h>
#include <xcb/shape.h>

namespace tessaly::WindowStack {

QList<xcb_window_t> children(const X11Connection &connection)
{
    const XcbReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection.xcb(), xcb_query_tree(connection.xcb(), connection.root()), nullptr));
    if (!tree)
        return {};
    const xcb_window_t *first = xcb_query_tree_children(tree.get());
    return QList<xcb_window_t>(first, first + xcb_query_tree_children_length(tree.get()));
}

/// The window over everything that a compositing manager shows its result in; none without a manager.
static xcb_window_t overlayWindow(const X11Connection &connection)
{
    if (!connection.hasCompositingManager() || !connection.hasExtension(xcb_composite_id))
        return XCB_WINDOW_NONE;
    xcb_connection_t *xcb = connection.xcb();
    xcb_discard_reply(xcb, xcb_composite_query_version(xcb, 0, 4).sequence);
    const XcbReply<xcb_composite_get_overlay_window_reply_t> overlay(
        xcb_composite_get_overlay_window_reply(xcb, xcb_composite_get_overlay_window(xcb, connection.root()), nullptr));
    if (!overlay)
        return XCB_WINDOW_NONE;
    xcb_composite_release_overlay_window(xcb, connection.root());
    return overlay->overlay_win;
}

namespace {

/// What is asked of one window, all under way at once.
struct TopLevelRequest {
    xcb_window_t id;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
    std::optional<xcb_shape_get_rectangles_cookie_t> shape;
};

} // namespace

static QRegion shapeOf(xcb_connection_t *xcb, const TopLevelRequest &request, const QRect &rect, QPoint origin)
{
    if (!request.shape)
        return rect;
    const XcbReply<xcb_shape_get_rectangles_reply_t> reply(
        xcb_shape_get_rectangles_reply(xcb, *request.shape, nullptr));
    if (!reply)
        return rect;
    QRegion region;
    const xcb_rectangle_t *pieces = xcb_shape_get_rectangles_rectangles(reply.get());
    for (int index = 0; index < xcb_shape_get_rectangles_rectangles_length(reply.get()); ++index)
        region += QRect(pieces[index].x, pieces[index].y, pieces[index].width, pieces[index].height);
    return region.translated(origin) & rect;
}

static std::optional<TopLevel> answerTo(xcb_connection_t *xcb, const TopLevelRequest &request)
{
    const XcbReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(xcb, request.attributes, nullptr));
    const XcbReply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(xcb, request.geometry, nullptr));
    const bool drawn = attributes && geometry && attributes->map_state == XCB_MAP_STATE_VIEWABLE
        && attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
    if (!drawn) {
        if (request.shape)
            xcb_discard_reply(xcb, request.shape->sequence);
        return {};
    }
    const int border = geometry->border_width;
    const QRect rect(geometry->x, geometry->y, geometry->width + 2 * border, geometry->height + 2 * border);
    return TopLevel { request.id, shapeOf(xcb, request, rect, rect.topLeft() + QPoint(border, border)) };
}

QList<TopLevel> visibleTopLevels(const X11Connection &connection)
{
    xcb_connection_t *xcb = connection.xcb();
    const bool hasShapes = connection.hasExtension(xcb_shape_id);
    const xcb_window_t overlay = overlayWindow(connection);
    QList<TopLevelRequest> requests;
    for (const xcb_window_t id : children(connection)) {
        if (id == overlay)
            continue;
        requests.append({ id, xcb_get_window_attributes(xcb, id), xcb_get_geometry(xcb, id), {} });
        if (hasShapes)
            requests.last().shape = xcb_shape_get_rectangles(xcb, id, XCB_SHAPE_SK_BOUNDING);
    }
    QList<TopLevel> found;
    for (const TopLevelRequest &request : requests) {
        if (auto topLevel = answerTo(xcb, request))
            found.append(std::move(*topLevel));
    }
    return found;
}

QList<xcb_window_t> topLevelsOf(const X11Connection &connection, const QList<xcb_window_t> &windows)
{
    xcb_connection_t *xcb = connection.xcb();
    QList<xcb_window_t> current = windows;
    QList<qsizetype> climbing(windows.size());
    std::iota(climbing.begin(), climbing.end(), 0);
    while (!climbing.isEmpty()) {
        QList<xcb_query_tree_cookie_t> requests;
        for (const qsizetype index : climbing)
            requests.append(xcb_query_tree(xcb, current[index]));
        QList<qsizetype> higher;
        for (qsizetype at = 0; at < climbing.size(); ++at) {
            const XcbReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(xcb, requests[at], nullptr));
            xcb_window_t &window = current[climbing[at]];
            if (!tree || tree->parent == XCB_WINDOW_NONE)
                window = XCB_WINDOW_NONE;
            else if (tree->parent != tree->root)
                higher.append(climbing[at]), window = tree->parent;
        }
        climbing = higher;
    }
    return current;
}

} // namespace tessaly::WindowStack
