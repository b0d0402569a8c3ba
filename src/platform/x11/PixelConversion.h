// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/X11Connection.h"

#include <QImage>

namespace tessaly::PixelConversion {

/// Sets the undefined top byte of server pixels, which lie as in Format_RGB32, to opaque, in place.
void makeOpaque(uchar *pixels, size_t pixelCount);

/// Copies such pixels and sets the top bytes of the copy; on one thread, for pieces that fit the processor's cache.
void copyOpaque(const uchar *from, uchar *to, size_t pixelCount);

/// Makes pixels valid as Format_ARGB32_Premultiplied: no component above its alpha. Programs draw what they like.
void limitToAlpha(uchar *pixels, size_t pixelCount);

/// A picture in Format_RGB32 of server pixels of any true-colour layout of 16 or 32 bits; null for other layouts.
/// `bytesPerLine` is the length of a row in `pixels`.
QImage toRgb32(const uchar *pixels, qsizetype bytesPerLine, QSize pixelSize, const X11Connection::PixelLayout &layout);

} // namespace tessaly::PixelConversion
