// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/CodeRegions.h"

#include "platform/recognition/Engine/ConnectedInk.h"

namespace tessaly {

namespace {

// What the modules of a code differ by from each other and from its quiet zone, also when they are smoothed.
constexpr int edgeStep = 40;
// Edges this many pixels apart, or fewer, are one patch. A quiet zone of a module or two is wider than the first for
// all but the smallest modules; the second joins what large modules leave apart.
constexpr int fineCell = 2, coarseCells = 3;
// The smallest symbols have ten modules a side.
constexpr int minimumSide = 10;
constexpr double maximumElongation = 1.4;
// Changes between dark and light that a row or column has in the mean: a letter has fewer, ten modules have more.
constexpr double minimumChanges = 3.2;
constexpr qsizetype maximumRegions = 40;

/// A pixel for each cell, 255 where it has an edge.
QImage edgeCells(const QImage &gray)
{
    QImage cells(
        (gray.width() + fineCell - 1) / fineCell, (gray.height() + fineCell - 1) / fineCell, QImage::Format_Grayscale8);
    cells.fill(0);
    for (int y = 0; y < gray.height(); ++y) {
        const uchar *row = gray.constScanLine(y);
        const uchar *below = gray.constScanLine(std::min(y + 1, gray.height() - 1));
        uchar *out = cells.scanLine(y / fineCell);
        for (int x = 0; x + 1 < gray.width(); ++x) {
            if (std::abs(row[x] - row[x + 1]) >= edgeStep || std::abs(row[x] - below[x]) >= edgeStep)
                out[x / fineCell] = 255;
        }
    }
    return cells;
}

QImage coarsened(const QImage &cells)
{
    QImage coarse((cells.width() + coarseCells - 1) / coarseCells, (cells.height() + coarseCells - 1) / coarseCells,
        QImage::Format_Grayscale8);
    coarse.fill(0);
    for (int y = 0; y < cells.height(); ++y) {
        const uchar *row = cells.constScanLine(y);
        uchar *out = coarse.scanLine(y / coarseCells);
        for (int x = 0; x < cells.width(); ++x)
            out[x / coarseCells] |= row[x];
    }
    return coarse;
}

/// How often the rows and the columns of a region change between dark and light, in the mean of the poorer direction.
double changesIn(const QImage &gray, const QRect &region)
{
    int least = 255, most = 0;
    for (int y = region.top(); y <= region.bottom(); ++y) {
        const uchar *row = gray.constScanLine(y);
        const auto [low, high] = std::minmax_element(row + region.left(), row + region.right() + 1);
        least = std::min(least, int(*low));
        most = std::max(most, int(*high));
    }
    const int middle = (least + most) / 2;
    qint64 across = 0, down = 0;
    for (int y = region.top(); y <= region.bottom(); ++y) {
        const uchar *row = gray.constScanLine(y), *above = gray.constScanLine(std::max(y - 1, region.top()));
        for (int x = region.left(); x <= region.right(); ++x) {
            const bool isDark = row[x] <= middle;
            across += isDark != (row[std::max(x - 1, region.left())] <= middle);
            down += isDark != (above[x] <= middle);
        }
    }
    return std::min(double(across) / region.height(), double(down) / region.width());
}

bool isSquare(const QRect &box)
{
    const int shorter = std::min(box.width(), box.height()), longer = std::max(box.width(), box.height());
    return shorter >= minimumSide && longer <= maximumElongation * shorter;
}

bool isSame(const QRect &one, const QRect &other)
{
    const QRect common = one & other, both = one | other;
    return qint64(common.width()) * common.height() * 10 > qint64(both.width()) * both.height() * 9;
}

struct Region {
    QRect box;
    double changes = 0;
};

} // namespace

QList<QRect> codeRegions(const QImage &gray)
{
    if (gray.isNull())
        return {};
    QList<Region> regions;
    const QImage fine = edgeCells(gray), coarse = coarsened(fine);
    for (const auto &[cells, size] : { std::pair(&fine, fineCell), std::pair(&coarse, fineCell * coarseCells) }) {
        for (const InkPiece &piece : connectedInk(*cells, 255)) {
            const QRect box = QRect(piece.box.topLeft() * size, piece.box.size() * size) & gray.rect();
            if (!isSquare(box)
                || std::ranges::any_of(regions, [&box](const Region &other) { return isSame(box, other.box); }))
                continue;
            if (const double changes = changesIn(gray, box); changes >= minimumChanges)
                regions += { box, changes };
        }
    }
    std::ranges::stable_sort(regions, std::greater(), &Region::changes);
    QList<QRect> boxes;
    for (const Region &region : regions.mid(0, maximumRegions))
        boxes += region.box;
    return boxes;
}

} // namespace tessaly
