// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

namespace tessaly::bench {

/// The picture (Format_RGB32) as an RGB PNG by libpng at level 6 with its default filters: what PNG writers usually do.
QByteArray libpngLevel6(const QImage &picture);

} // namespace tessaly::bench
