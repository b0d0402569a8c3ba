// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QString>

/// Colours as text: "#RRGGBB" in sRGB.
namespace tessaly::ColorHex {

/// Reads "#RGB", "#RRGGBB" or "#RRGGBBAA", with or without "#" and with blanks around. Never fails: reading stops at
/// the first character that is no hexadecimal digit, and nothing readable is black.
QColor toColor(QStringView text);

/// Upper-case, six digits; a translucent colour loses its alpha.
QString toHex(const QColor &color);

} // namespace tessaly::ColorHex
