// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/X11Connection.h"

#include <QImage>
#include <QProcess>
#include <QRect>

namespace tessaly::test {

/// Another program's window on a server: it draws one colour wherever the server asks it to.
class ServerWindow {
public:
    enum class Managed { Yes, No };

    /// `depth` 32 gives a window with alpha; its colour is then premultiplied by the caller.
    ServerWindow(
        const QString &display, const QRect &pixelRect, QRgb color, Managed managed = Managed::No, uint8_t depth = 24);
    ~ServerWindow();

    xcb_window_t id() const { return m_id; }
    const X11Connection &connection() const { return *m_connection; }

    void show();
    void hide();
    /// Paints the whole window anew, as a program that got an expose event.
    void draw();
    void setNumbers(const char *property, xcb_atom_t type, const QList<quint32> &values);
    void setAtoms(const char *property, const QList<QByteArray> &names);
    void setText(const char *property, const QByteArray &text);
    /// Makes the picture the screen's background, as a desktop does; its top bytes do not matter.
    void setBackground(const QImage &picture);
    /// A property of the root window, which belongs to the window manager.
    void setRootNumbers(const char *property, xcb_atom_t type, const QList<quint32> &values);
    xcb_atom_t atom(const QByteArray &name) const;
    /// After everything that was asked before.
    void sync() const;

private:
    void setNumbersOf(xcb_window_t window, const char *property, xcb_atom_t type, const QList<quint32> &values);

    std::unique_ptr<X11Connection> m_connection;
    xcb_window_t m_id = XCB_WINDOW_NONE;
};

/// A window manager on a server, ready for windows when this is made.
class WindowManager {
public:
    explicit WindowManager(const QString &display);
    ~WindowManager();

    bool isReady() const { return m_ready; }

private:
    QProcess m_process;
    bool m_ready = false;
};

} // namespace tessaly::test
