// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRgb>

#include <cstdint>

/// Rows of 8-bit PNG samples on their way to pixels.
namespace tessaly::PngRows {

/// Turns the differences of a filtered row into its samples, in place. `row` follows the byte that names the filter;
/// `above` is the finished row above, zeros for the first. False for a filter that does not exist. Up to three bytes
/// beyond both rows are read.
bool unfilter(int filter, std::uint8_t *row, const std::uint8_t *above, int count, int bytesPerPixel);

/// Samples as pixels: opaque, or premultiplied.
void fromGrey(const std::uint8_t *row, QRgb *target, int width);
void fromGreyAlpha(const std::uint8_t *row, QRgb *target, int width);
void fromRgb(const std::uint8_t *row, QRgb *target, int width);
void fromRgba(const std::uint8_t *row, QRgb *target, int width);

} // namespace tessaly::PngRows
