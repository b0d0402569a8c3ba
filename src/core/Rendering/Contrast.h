// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

/// Colours that stay readable on, or around, a colour that the user chose.
namespace tessaly::Contrast {

/// 0 for black to 1 for white, as the eye weighs the channels.
double luminance(const QColor &color);

/// White, which is what marks write in; near-black on the few colours on which white could not be seen.
QColor textOn(const QColor &background);

/// White around darker colours and near-black around light ones.
QColor opposite(const QColor &color);

} // namespace tessaly::Contrast
