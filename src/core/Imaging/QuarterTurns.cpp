// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/QuarterTurns.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"
#include "core/Imaging/WideVectors.h"

#include <algorithm>
#include <cstring>

namespace tessaly {

Orientation Orientation::then(Orientation next) const
{
    // Mirroring turns the other way what was turned before it.
    const int turns = mirrored ? quarterTurns - next.quarterTurns : quarterTurns + next.quarterTurns;
    return { (turns + 4) % 4, mirrored != next.mirrored };
}

Orientation Orientation::inverse() const { return mirrored ? *this : Orientation { (4 - quarterTurns) % 4, false }; }

namespace {

/// `count` pixels that end at `last`, the last one first.
TESSALY_WIDE_VECTORS void copyReversed(const QRgb *last, QRgb *target, int count)
{
    for (int index = 0; index < count; ++index)
        target[index] = last[-index];
}

/// Copies a block so that what stands below each other comes to stand beside each other.
void transposeBlock(
    const uchar *source, qptrdiff sourceRow, qptrdiff sourceColumn, uchar *target, qptrdiff targetRow, QSize block)
{
    for (int y = 0; y < block.height(); ++y) {
        const uchar *from = source + y * sourceColumn;
        auto *to = reinterpret_cast<QRgb *>(target + y * targetRow);
        for (int x = 0; x < block.width(); ++x, from += sourceRow)
            to[x] = *reinterpret_cast<const QRgb *>(from);
    }
}

/// Where the target's first pixel lies in the source, and how far apart its neighbours are there, in bytes.
struct Walk {
    const uchar *origin;
    qptrdiff right;
    qptrdiff down;
};

Walk walkOf(const QImage &source, Orientation orientation)
{
    const bool swapped = orientation.swapsSides();
    // Which ends of the source the target's left and top sides are.
    const bool fromRight = swapped ? orientation.quarterTurns == 3 : orientation.quarterTurns == 2;
    const bool fromBottom = swapped ? orientation.quarterTurns == 1 : orientation.quarterTurns == 2;
    const qptrdiff row = source.bytesPerLine(), column = sizeof(QRgb);
    Walk walk { source.constBits(), fromRight ? -column : column, fromBottom ? -row : row };
    if (fromRight)
        walk.origin += column * (source.width() - 1);
    if (fromBottom)
        walk.origin += row * (source.height() - 1);
    if (swapped)
        std::swap(walk.right, walk.down);
    if (orientation.mirrored) {
        walk.origin += walk.right * ((swapped ? source.height() : source.width()) - 1);
        walk.right = -walk.right;
    }
    return walk;
}

/// The target's rows `first` to before `end`.
void copyRows(const Walk &walk, QImage &target, uchar *bits, int first, int end)
{
    const int width = target.width();
    if (std::abs(walk.right) == sizeof(QRgb)) {
        for (int y = first; y < end; ++y) {
            auto *row = reinterpret_cast<QRgb *>(bits + y * target.bytesPerLine());
            const auto *from = reinterpret_cast<const QRgb *>(walk.origin + y * walk.down);
            if (walk.right > 0)
                std::memcpy(row, from, size_t(width) * sizeof(QRgb));
            else
                copyReversed(from, row, width);
        }
        return;
    }
    constexpr int side = 16; // a cache line of pixels, both ways
    for (int y = first; y < end; y += side) {
        for (int x = 0; x < width; x += side) {
            transposeBlock(walk.origin + x * walk.right + y * walk.down, walk.right, walk.down,
                bits + y * target.bytesPerLine() + x * qptrdiff(sizeof(QRgb)), target.bytesPerLine(),
                { std::min(side, width - x), std::min(side, end - y) });
        }
    }
}

} // namespace

std::optional<RasterImage> oriented(
    const RasterImage &image, Orientation orientation, int threads, const Cancellation &cancellation)
{
    if (orientation.isUpright())
        return image;
    const QImage &source = image.pixels;
    const bool swapped = orientation.swapsSides();
    QImage target = PixelMemory::allocate(swapped ? source.size().transposed() : source.size(), source.format());
    if (target.isNull())
        return std::nullopt;
    const Walk walk = walkOf(source, orientation);
    uchar *bits = target.bits();
    constexpr int rowsPerBand = 128;
    Parallel::inBands(
        target.height(), (target.height() + rowsPerBand - 1) / rowsPerBand, threads, [&](int row, int end) {
            if (!cancellation.isCancelled())
                copyRows(walk, target, bits, row, end);
        });
    if (cancellation.isCancelled())
        return std::nullopt;
    return RasterImage { std::move(target), swapped ? image.pointSize.transposed() : image.pointSize };
}

} // namespace tessaly
