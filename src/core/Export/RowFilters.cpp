// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/RowFilters.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

// The sanitizers' start-up code and the resolver that picks a variant get into each other's way.
#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__)
#define TESSALY_VECTOR_VARIANTS __attribute__((target_clones("avx2", "default")))
#else
#define TESSALY_VECTOR_VARIANTS
#endif

namespace tessaly::RowFilters {

namespace {

enum FilterName : uint8_t { None = 0, Sub = 1, Up = 2, Average = 3, Paeth = 4 };

TESSALY_VECTOR_VARIANTS
void subtract(
    const uint8_t *__restrict samples, const uint8_t *__restrict foreseen, int count, uint8_t *__restrict target)
{
    for (int index = 0; index < count; ++index)
        target[index] = static_cast<uint8_t>(samples[index] - foreseen[index]);
}

TESSALY_VECTOR_VARIANTS
void subtractAverage(const uint8_t *__restrict samples, const uint8_t *__restrict left, const uint8_t *__restrict above,
    int count, uint8_t *__restrict target)
{
    for (int index = 0; index < count; ++index)
        target[index] = static_cast<uint8_t>(samples[index] - ((left[index] + above[index]) >> 1));
}

/// Foresees with whichever of left, above and above-left is nearest to left + above − above-left.
TESSALY_VECTOR_VARIANTS
void subtractPaeth(const uint8_t *__restrict samples, const uint8_t *__restrict left, const uint8_t *__restrict above,
    const uint8_t *__restrict corner, int count, uint8_t *__restrict target)
{
    for (int index = 0; index < count; ++index) {
        const int16_t a = left[index], b = above[index], c = corner[index];
        const int16_t fromLeft = static_cast<int16_t>(std::abs(b - c));
        const int16_t fromAbove = static_cast<int16_t>(std::abs(a - c));
        const int16_t fromCorner = static_cast<int16_t>(std::abs(a + b - 2 * c));
        const int16_t side = fromLeft <= fromAbove ? a : b;
        const int16_t fromSide = std::min(fromLeft, fromAbove);
        target[index] = static_cast<uint8_t>(samples[index] - (fromSide <= fromCorner ? side : c));
    }
}

TESSALY_VECTOR_VARIANTS
uint64_t sumOfDifferences(const uint8_t *filtered, int count)
{
    uint64_t total = 0;
    for (int start = 0; start < count; start += 1 << 16) {
        uint32_t sum = 0;
        const int end = std::min(count, start + (1 << 16));
        for (int index = start; index < end; ++index)
            sum += static_cast<uint8_t>(std::abs(static_cast<int8_t>(filtered[index])));
        total += sum;
    }
    return total;
}

// The first pixel has nothing to its left, which counts as zero.

void filterUp(const Row &row, uint8_t *target) { subtract(row.samples, row.above, row.count, target); }

void filterSub(const Row &row, uint8_t *target)
{
    const int first = row.bytesPerPixel;
    std::copy_n(row.samples, first, target);
    subtract(row.samples + first, row.samples, row.count - first, target + first);
}

void filterAverage(const Row &row, uint8_t *target)
{
    const int first = row.bytesPerPixel;
    for (int index = 0; index < first; ++index)
        target[index] = static_cast<uint8_t>(row.samples[index] - (row.above[index] >> 1));
    subtractAverage(row.samples + first, row.samples, row.above + first, row.count - first, target + first);
}

void filterPaeth(const Row &row, uint8_t *target)
{
    const int first = row.bytesPerPixel;
    subtract(row.samples, row.above, first, target);
    subtractPaeth(row.samples + first, row.samples, row.above + first, row.above, row.count - first, target + first);
}

struct Filter {
    FilterName name;
    void (*write)(const Row &row, uint8_t *target);
};

// Of equal sums the first is taken.
constexpr std::array<Filter, 4> filters { {
    { Up, filterUp },
    { Paeth, filterPaeth },
    { Sub, filterSub },
    { Average, filterAverage },
} };

} // namespace

void writeUnfiltered(const Row &row, uint8_t *target)
{
    target[0] = None;
    std::copy_n(row.samples, row.count, target + 1);
}

void writeSameAsAbove(const Row &row, uint8_t *target)
{
    target[0] = Up;
    std::fill_n(target + 1, row.count, uint8_t(0));
}

void writeSmallest(const Row &row, uint8_t *spare, uint8_t *target)
{
    uint64_t smallest = ~uint64_t(0);
    for (const Filter &filter : filters) {
        filter.write(row, spare);
        const uint64_t sum = sumOfDifferences(spare, row.count);
        if (sum >= smallest)
            continue;
        smallest = sum;
        target[0] = filter.name;
        std::copy_n(spare, row.count, target + 1);
    }
}

TESSALY_VECTOR_VARIANTS
int repeatedPixels(const QRgb *row, const QRgb *above, int count)
{
    int repeated = count > 0 && row[0] == above[0] ? 1 : 0;
    for (int x = 1; x < count; ++x)
        repeated += (row[x] == row[x - 1]) | (row[x] == above[x]);
    return repeated;
}

} // namespace tessaly::RowFilters
