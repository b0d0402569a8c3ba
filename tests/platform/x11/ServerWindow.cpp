// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/platform/x11/ServerWindow.h"
#include "tests/support/Patience.h"

#include "tests/support/VirtualScreen.h"

#include <QTest>

#include <array>

namespace tessaly::test {

static xcb_visualid_t visualOfDepth(const X11Connection &connection, uint8_t depth)
{
    const auto *screen = xcb_setup_roots_iterator(xcb_get_setup(connection.xcb())).data;
    for (auto found = xcb_screen_allowed_depths_iterator(screen); found.rem > 0; xcb_depth_next(&found)) {
        if (found.data->depth == depth && found.data->visuals_len > 0)
            return xcb_depth_visuals_iterator(found.data).data->visual_id;
    }
    return screen->root_visual;
}

ServerWindow::ServerWindow(const QString &display, const QRect &pixelRect, QRgb color, Managed managed, uint8_t depth)
{
    m_connection = std::move(*X11Connection::open(display));
    xcb_connection_t *xcb = m_connection->xcb();
    m_id = xcb_generate_id(xcb);
    const xcb_visualid_t visual = visualOfDepth(*m_connection, depth);
    const xcb_colormap_t colors = xcb_generate_id(xcb);
    xcb_create_colormap(xcb, XCB_COLORMAP_ALLOC_NONE, colors, m_connection->root(), visual);
    // The server itself fills what is uncovered with the background's colour.
    const uint32_t pixel = depth == 32 ? color : color & 0xffffff;
    const std::array<uint32_t, 4> values { pixel, 0, managed == Managed::No ? 1u : 0u, colors };
    xcb_create_window(xcb, depth, m_id, m_connection->root(), int16_t(pixelRect.x()), int16_t(pixelRect.y()),
        uint16_t(pixelRect.width()), uint16_t(pixelRect.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
        XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_COLORMAP, values.data());
    sync();
}

ServerWindow::~ServerWindow() { sync(); }

void ServerWindow::show()
{
    xcb_map_window(m_connection->xcb(), m_id);
    draw();
}

void ServerWindow::hide()
{
    xcb_unmap_window(m_connection->xcb(), m_id);
    sync();
}

void ServerWindow::draw()
{
    xcb_clear_area(m_connection->xcb(), 0, m_id, 0, 0, 0, 0);
    sync();
}

xcb_atom_t ServerWindow::atom(const QByteArray &name) const
{
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection->xcb(),
        xcb_intern_atom(m_connection->xcb(), 0, uint16_t(name.size()), name.constData()), nullptr));
    return reply->atom;
}

void ServerWindow::setNumbers(const char *property, xcb_atom_t type, const QList<quint32> &values)
{
    setNumbersOf(m_id, property, type, values);
}

void ServerWindow::setRootNumbers(const char *property, xcb_atom_t type, const QList<quint32> &values)
{
    setNumbersOf(m_connection->root(), property, type, values);
}

void ServerWindow::setBackground(const QImage &picture)
{
    xcb_connection_t *xcb = m_connection->xcb();
    const xcb_pixmap_t pixmap = xcb_generate_id(xcb);
    xcb_create_pixmap(xcb, m_connection->rootDepth(), pixmap, m_connection->root(), uint16_t(picture.width()),
        uint16_t(picture.height()));
    const xcb_gcontext_t context = xcb_generate_id(xcb);
    xcb_create_gc(xcb, context, pixmap, 0, nullptr);
    xcb_put_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, uint16_t(picture.width()),
        uint16_t(picture.height()), 0, 0, 0, m_connection->rootDepth(), uint32_t(picture.sizeInBytes()),
        picture.constBits());
    setRootNumbers("_XROOTPMAP_ID", XCB_ATOM_PIXMAP, { pixmap });
}

void ServerWindow::setNumbersOf(
    xcb_window_t window, const char *property, xcb_atom_t type, const QList<quint32> &values)
{
    xcb_change_property(m_connection->xcb(), XCB_PROP_MODE_REPLACE, window, atom(property), type, 32,
        uint32_t(values.size()), values.constData());
    sync();
}

void ServerWindow::setAtoms(const char *property, const QList<QByteArray> &names)
{
    QList<quint32> values;
    for (const QByteArray &name : names)
        values.append(atom(name));
    setNumbers(property, XCB_ATOM_ATOM, values);
}

void ServerWindow::setText(const char *property, const QByteArray &text)
{
    xcb_change_property(m_connection->xcb(), XCB_PROP_MODE_REPLACE, m_id, atom(property), XCB_ATOM_STRING, 8,
        uint32_t(text.size()), text.constData());
    sync();
}

void ServerWindow::sync() const
{
    xcb_connection_t *xcb = m_connection->xcb();
    const XcbReply<xcb_get_input_focus_reply_t> done(xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
}

WindowManager::WindowManager(const QString &display)
{
    endWithThisProcess(m_process);
    m_process.setStandardErrorFile(QProcess::nullDevice());
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), display);
    m_process.setProcessEnvironment(environment);
    m_process.start(QStringLiteral("openbox"), { QStringLiteral("--sm-disable") });
    // What is mapped while it starts may be overlooked: it is ready when it takes care of a window, and when it has
    // forgotten it, as the next window may get its number.
    ServerWindow probe(display, { 0, 0, 10, 10 }, qRgb(0, 0, 0), ServerWindow::Managed::Yes);
    const X11Connection &connection = probe.connection();
    const auto managesProbe = [&] {
        return PropertyRequest(connection.xcb(), connection.root(), connection.atoms()[X11Atom::NetClientListStacking])
            .numbers()
            .contains(probe.id());
    };
    const auto begins = [&] { return probe.show(), managesProbe(); };
    const auto ends = [&] { return probe.hide(), !managesProbe(); };
    m_ready = QTest::qWaitFor(begins, patience) && QTest::qWaitFor(ends, patience);
}

WindowManager::~WindowManager()
{
    m_process.terminate();
    m_process.waitForFinished(patience);
}

} // namespace tessaly::test
