// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <memory>

namespace tessaly {
class X11Connection;
}

namespace tessaly::bench {

/// A picture as the background of an X server's root window, which comes back wherever nothing covers it any more.
class ShownPicture {
public:
    /// Null when the server does not answer. The picture is in Format_RGB32.
    static std::unique_ptr<ShownPicture> show(const QString &display, const QImage &picture);
    ~ShownPicture();

    /// What the server has at that pixel now, without its top byte.
    QRgb pixelAt(QPoint pixel) const;

private:
    explicit ShownPicture(std::unique_ptr<X11Connection> connection);

    std::unique_ptr<X11Connection> m_connection;
};

} // namespace tessaly::bench
