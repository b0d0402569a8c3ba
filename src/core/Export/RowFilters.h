// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRgb>

#include <cstdint>

/// The filters of PNG rows. Each function writes the byte that names the filter and then the filtered samples.
namespace tessaly::RowFilters {

/// What a row is filtered from; `above` is all zero for the first row of a picture.
struct Row {
    const uint8_t *samples;
    const uint8_t *above;
    int count; ///< samples in the row
    int bytesPerPixel;
};

/// The samples as they are.
void writeUnfiltered(const Row &row, uint8_t *target);

/// All zero: for a row that equals the one above.
void writeSameAsAbove(const Row &row, uint8_t *target);

/// The filter whose differences are smallest in sum. `spare` has room for `count` bytes.
void writeSmallest(const Row &row, uint8_t *spare, uint8_t *target);

/// How many pixels of a row equal the one to the left or the one above.
int repeatedPixels(const QRgb *row, const QRgb *above, int count);

} // namespace tessaly::RowFilters
