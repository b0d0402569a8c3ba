// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/WindowFacts.h"

namespace tessaly {

namespace {

constexpr quint32 allDesktops = 0xffffffff;

/// Everything that is asked of one window, under way together with that of the others.
struct Request {
    Request(xcb_connection_t *xcb, xcb_window_t root, const X11Atoms &atoms, xcb_window_t window) :
        id(window),
        attributes(xcb_get_window_attributes(xcb, window)),
        geometry(xcb_get_geometry(xcb, window)),
        place(xcb_translate_coordinates(xcb, window, root, 0, 0)),
        types(xcb, window, atoms[X11Atom::NetWmWindowType]),
        states(xcb, window, atoms[X11Atom::NetWmState]),
        desktop(xcb, window, atoms[X11Atom::NetWmDesktop]),
        frameExtents(xcb, window, atoms[X11Atom::NetFrameExtents]),
        shadowExtents(xcb, window, atoms[X11Atom::GtkFrameExtents]),
        processId(xcb, window, atoms[X11Atom::NetWmPid]),
        title(xcb, window, atoms[X11Atom::NetWmName]),
        oldTitle(xcb, window, XCB_ATOM_WM_NAME),
        windowClass(xcb, window, XCB_ATOM_WM_CLASS)
    {
    }

    xcb_window_t id;
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t place;
    PropertyRequest types;
    PropertyRequest states;
    PropertyRequest desktop;
    PropertyRequest frameExtents;
    PropertyRequest shadowExtents;
    PropertyRequest processId;
    PropertyRequest title;
    PropertyRequest oldTitle;
    PropertyRequest windowClass;
};

/// From left, right, top, bottom; absurd values, as broken programs set, are none.
QMargins extents(const QList<quint32> &values)
{
    constexpr quint32 most = 1000;
    if (values.size() < 4 || std::any_of(values.begin(), values.end(), [](quint32 value) { return value > most; }))
        return {};
    return QMargins(int(values[0]), int(values[2]), int(values[1]), int(values[3]));
}

} // namespace

/// A window without a type is usual; one may name types of one desktop only before a usual one.
static bool isUsual(const QList<quint32> &types, const X11Atoms &atoms)
{
    const auto isOneOf = [&](quint32 type, std::initializer_list<X11Atom> known) {
        return std::any_of(known.begin(), known.end(), [&](X11Atom atom) { return atoms[atom] == type; });
    };
    return types.isEmpty() || std::any_of(types.begin(), types.end(), [&](quint32 type) {
        return isOneOf(type,
            { X11Atom::NetWmWindowTypeNormal, X11Atom::NetWmWindowTypeDialog, X11Atom::NetWmWindowTypeUtility,
                X11Atom::NetWmWindowTypeToolbar });
    });
}

static std::optional<WindowFacts> answerTo(const X11Connection &connection, Request &request, quint32 currentDesktop)
{
    xcb_connection_t *xcb = connection.xcb();
    const X11Atoms &atoms = connection.atoms();
    const XcbReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(xcb, request.attributes, nullptr));
    const XcbReply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(xcb, request.geometry, nullptr));
    const XcbReply<xcb_translate_coordinates_reply_t> place(
        xcb_translate_coordinates_reply(xcb, request.place, nullptr));
    if (!attributes || !geometry || !place)
        return {};
    WindowFacts facts;
    facts.id = request.id;
    facts.pixelRect = QRect(place->dst_x, place->dst_y, geometry->width, geometry->height)
                          .marginsAdded(extents(request.frameExtents.numbers()))
                          .marginsRemoved(extents(request.shadowExtents.numbers()));
    const quint32 desktop = request.desktop.number(allDesktops);
    facts.visible = attributes->map_state == XCB_MAP_STATE_VIEWABLE
        && attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT
        && !request.states.numbers().contains(atoms[X11Atom::NetWmStateHidden])
        && (desktop == allDesktops || currentDesktop == allDesktops || desktop == currentDesktop);
    facts.usual = attributes->override_redirect == 0 && isUsual(request.types.numbers(), atoms);
    facts.processId = request.processId.number(0);
    const QByteArray title = request.title.bytes();
    facts.title = title.isEmpty() ? QString::fromLatin1(request.oldTitle.bytes()) : QString::fromUtf8(title);
    const QList<QByteArray> classes = request.windowClass.bytes().split('\0');
    facts.instance = QString::fromUtf8(classes.value(0));
    facts.className = QString::fromUtf8(classes.value(1));
    return facts;
}

QList<WindowFacts> WindowFacts::of(const X11Connection &connection, const QList<xcb_window_t> &windows)
{
    const X11Atoms &atoms = connection.atoms();
    PropertyRequest currentDesktop(connection.xcb(), connection.root(), atoms[X11Atom::NetCurrentDesktop]);
    std::vector<Request> requests;
    requests.reserve(static_cast<size_t>(windows.size()));
    for (const xcb_window_t window : windows)
        requests.emplace_back(connection.xcb(), connection.root(), atoms, window);
    QList<WindowFacts> found;
    for (Request &request : requests) {
        if (auto facts = answerTo(connection, request, currentDesktop.number(allDesktops)))
            found.append(std::move(*facts));
    }
    return found;
}

} // namespace tessaly
