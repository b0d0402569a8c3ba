// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/InkPicture.h"

#include <array>
#include <cstdint>

namespace tessaly {

namespace {

// Background is what is flat: runs of at least this many pixels with as flat ones above and below. The longest bars
// of letters in interface sizes are shorter.
constexpr int flatRun = 24;
constexpr int flatStep = 1, flatRowStep = 3, grownStep = 2;
// A flat patch that is smaller is a stroke of a large letter or a piece of an icon.
constexpr int minimumFlatArea = 150;
// Where nothing is flat (photographs, noise) the most frequent level around a tile of this size is the background.
constexpr int tileSize = 16, tileTolerance = 10;

constexpr std::int16_t unknown = -1;

/// A level for each pixel, `unknown` where it has none yet.
struct Levels {
    int width = 0, height = 0;
    std::vector<std::int16_t> at;

    std::int16_t *row(int y) { return at.data() + std::size_t(y) * std::size_t(width); }
    const std::int16_t *row(int y) const { return at.data() + std::size_t(y) * std::size_t(width); }
};

/// The rows' flat runs.
Levels flatRuns(const QImage &gray)
{
    Levels flat { gray.width(), gray.height(), {} };
    flat.at.assign(std::size_t(flat.width) * std::size_t(flat.height), unknown);
    for (int y = 0; y < flat.height; ++y) {
        const uchar *pixels = gray.constScanLine(y);
        std::int16_t *row = flat.row(y);
        for (int start = 0; start < flat.width;) {
            int end = start + 1;
            while (end < flat.width && std::abs(pixels[end] - pixels[end - 1]) <= flatStep)
                ++end;
            if (end - start >= flatRun)
                std::copy(pixels + start, pixels + end, row + start);
            start = end;
        }
    }
    return flat;
}

bool isFlatBeside(std::int16_t level, std::int16_t other)
{
    return other != unknown && std::abs(level - other) <= flatRowStep;
}

/// Those pixels of flat runs that have flat rows above and below; the picture's edge counts as flat.
Levels flatPatches(const QImage &gray)
{
    const Levels runs = flatRuns(gray);
    Levels patches = runs;
    for (int y = 0; y < runs.height; ++y) {
        const std::int16_t *above = runs.row(std::max(y - 1, 0)), *row = runs.row(y);
        const std::int16_t *below = runs.row(std::min(y + 1, runs.height - 1));
        std::int16_t *out = patches.row(y);
        for (int x = 0; x < runs.width; ++x) {
            if (row[x] == unknown || !isFlatBeside(row[x], above[x]) || !isFlatBeside(row[x], below[x]))
                out[x] = unknown;
        }
    }
    return patches;
}

/// Forgets the patches that are too small to be a background.
void dropSmallPatches(Levels &levels)
{
    std::vector<char> seen(levels.at.size(), 0);
    std::vector<std::size_t> patch;
    const auto width = std::size_t(levels.width);
    for (std::size_t start = 0; start < levels.at.size(); ++start) {
        if (seen[start] || levels.at[start] == unknown)
            continue;
        patch.assign(1, start);
        seen[start] = 1;
        const auto visit = [&](std::size_t from, std::size_t to) {
            if (!seen[to] && isFlatBeside(levels.at[from], levels.at[to])) {
                seen[to] = 1;
                patch.push_back(to);
            }
        };
        for (std::size_t next = 0; next < patch.size(); ++next) {
            const std::size_t here = patch[next], x = here % width;
            if (x > 0)
                visit(here, here - 1);
            if (x + 1 < width)
                visit(here, here + 1);
            if (here >= width)
                visit(here, here - width);
            if (here + width < levels.at.size())
                visit(here, here + width);
        }
        if (patch.size() < std::size_t(minimumFlatArea)) {
            for (const std::size_t pixel : patch)
                levels.at[pixel] = unknown;
        }
    }
}

/// The most frequent level of the rectangle, levels beside each other counted together.
int mostFrequentLevel(const QImage &gray, const QRect &rect)
{
    std::array<int, 256> count {};
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const uchar *pixels = gray.constScanLine(y);
        for (int x = rect.left(); x <= rect.right(); ++x)
            ++count[pixels[x]];
    }
    int best = 0, bestCount = -1;
    for (int level = 0; level < 256; ++level) {
        int near = 0;
        for (int other = std::max(0, level - 3); other <= std::min(255, level + 3); ++other)
            near += count[std::size_t(other)];
        if (near > bestCount) {
            best = level;
            bestCount = near;
        }
    }
    return best;
}

bool hasLevel(const Levels &levels, const QRect &rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        const std::int16_t *row = levels.row(y);
        if (std::any_of(row + rect.left(), row + rect.right() + 1, [](std::int16_t level) { return level != unknown; }))
            return true;
    }
    return false;
}

/// Gives tiles that have nothing flat around them the level that is most frequent there.
void fillRestlessTiles(Levels &levels, const QImage &gray)
{
    const Levels flat = levels;
    for (int top = 0; top < levels.height; top += tileSize) {
        for (int left = 0; left < levels.width; left += tileSize) {
            const QRect tile = QRect(left, top, tileSize, tileSize) & gray.rect();
            const QRect around = tile.adjusted(-tileSize, -tileSize, tileSize, tileSize) & gray.rect();
            if (hasLevel(flat, around))
                continue;
            const int level = mostFrequentLevel(gray, around);
            for (int y = tile.top(); y <= tile.bottom(); ++y) {
                const uchar *pixels = gray.constScanLine(y);
                for (int x = tile.left(); x <= tile.right(); ++x) {
                    if (std::abs(pixels[x] - level) <= tileTolerance)
                        levels.row(y)[x] = std::int16_t(level);
                }
            }
        }
    }
}

/// Lets the patches grow into what is connected with them and of the same level, such as the narrow rest of a panel
/// between a text and its edge, which lies nearer to the next panel.
void grow(Levels &levels, const QImage &gray)
{
    std::vector<std::size_t> front;
    const auto width = std::size_t(levels.width);
    for (std::size_t i = 0; i < levels.at.size(); ++i) {
        if (levels.at[i] != unknown)
            front.push_back(i);
    }
    while (!front.empty()) {
        const std::size_t here = front.back();
        front.pop_back();
        const auto visit = [&](std::size_t to) {
            const int pixel = gray.constScanLine(int(to / width))[to % width];
            if (levels.at[to] == unknown && std::abs(pixel - levels.at[here]) <= grownStep) {
                levels.at[to] = levels.at[here];
                front.push_back(to);
            }
        };
        if (here % width > 0)
            visit(here - 1);
        if (here % width + 1 < width)
            visit(here + 1);
        if (here >= width)
            visit(here - width);
        if (here + width < levels.at.size())
            visit(here + width);
    }
}

/// Gives every pixel the level of the nearest one that has one: a chamfer distance in two sweeps.
void spread(Levels &levels)
{
    constexpr int straight = 3, diagonal = 4, far = 1 << 28;
    const int width = levels.width, height = levels.height;
    std::vector<int> distance(levels.at.size());
    for (std::size_t i = 0; i < distance.size(); ++i)
        distance[i] = levels.at[i] == unknown ? far : 0;
    const auto take = [&](std::size_t to, std::size_t from, int step) {
        if (distance[from] + step < distance[to]) {
            distance[to] = distance[from] + step;
            levels.at[to] = levels.at[from];
        }
    };
    const auto sweep = [&](bool forward) {
        for (int i = 0; i < height; ++i) {
            const int y = forward ? i : height - 1 - i, before = forward ? y - 1 : y + 1;
            const bool hasBefore = before >= 0 && before < height;
            for (int j = 0; j < width; ++j) {
                const int x = forward ? j : width - 1 - j, behind = forward ? x - 1 : x + 1, ahead = 2 * x - behind;
                const std::size_t row = std::size_t(y) * std::size_t(width);
                const std::size_t other = std::size_t(std::max(before, 0)) * std::size_t(width);
                if (behind >= 0 && behind < width)
                    take(row + std::size_t(x), row + std::size_t(behind), straight);
                if (!hasBefore)
                    continue;
                take(row + std::size_t(x), other + std::size_t(x), straight);
                if (behind >= 0 && behind < width)
                    take(row + std::size_t(x), other + std::size_t(behind), diagonal);
                if (ahead >= 0 && ahead < width)
                    take(row + std::size_t(x), other + std::size_t(ahead), diagonal);
            }
        }
    };
    sweep(true);
    sweep(false);
}

} // namespace

QImage inkPicture(const QImage &gray)
{
    if (gray.isNull())
        return gray;
    Levels background = flatPatches(gray);
    dropSmallPatches(background);
    grow(background, gray);
    fillRestlessTiles(background, gray);
    spread(background);
    QImage ink(gray.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < gray.height(); ++y) {
        const uchar *pixels = gray.constScanLine(y);
        const std::int16_t *levels = background.row(y);
        uchar *out = ink.scanLine(y);
        for (int x = 0; x < gray.width(); ++x)
            out[x] = levels[x] == unknown ? 0 : uchar(std::abs(pixels[x] - levels[x]));
    }
    return ink;
}

} // namespace tessaly
