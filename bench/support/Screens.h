// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

/// Pictures made by code that stand for what people capture; the same on every run.
namespace tessaly::bench {

/// Windows with text-like glyph rows, icons, gradients and a textured wallpaper; Format_RGB32.
QImage busyDesktop(QSize pixelSize = { 3840, 2160 });

/// Smooth shapes of many scales with sensor-like noise; Format_RGB32.
QImage photoLike(QSize pixelSize = { 3840, 2160 });

/// Flat panels, hairlines and a few rows of text-like glyphs; Format_RGB32.
QImage flatInterface(QSize pixelSize = { 3840, 2160 });

} // namespace tessaly::bench
