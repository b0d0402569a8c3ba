// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11ScreenSource.h"

namespace tessaly {

struct X11ScreenSource::Connection { };

X11ScreenSource::X11ScreenSource(std::unique_ptr<Connection> connection) : m_connection(std::move(connection)) { }
X11ScreenSource::~X11ScreenSource() = default;
Result<std::unique_ptr<ScreenSource>> X11ScreenSource::create(const QString &) { return Failure { {} }; }
Result<QList<Display>> X11ScreenSource::displays() { return Failure { {} }; }
Result<RasterImage> X11ScreenSource::capture(const QRect &, double) { return Failure { {} }; }

} // namespace tessaly
