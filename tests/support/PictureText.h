// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QStringList>

namespace tessaly::test {

/// A small picture as text, a line a row: '.' for a transparent or white pixel, '#' for any other.
QStringList asText(const QImage &picture);

} // namespace tessaly::test
