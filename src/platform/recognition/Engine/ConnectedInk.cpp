// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/ConnectedInk.h"

#include <numeric>

namespace tessaly {

namespace {

/// A stretch of a row; `end` is one past its last pixel.
struct Run {
    int start = 0, end = 0, piece = 0;
};

/// Pieces that turn out to be one are joined by a forest of parents.
class Pieces {
public:
    int add()
    {
        m_parents.push_back(int(m_parents.size()));
        m_pieces.push_back({});
        return m_parents.back();
    }

    int rootOf(int piece)
    {
        while (m_parents[std::size_t(piece)] != piece) {
            m_parents[std::size_t(piece)] = m_parents[std::size_t(m_parents[std::size_t(piece)])];
            piece = m_parents[std::size_t(piece)];
        }
        return piece;
    }

    void join(int one, int other)
    {
        one = rootOf(one);
        other = rootOf(other);
        if (one != other)
            m_parents[std::size_t(std::max(one, other))] = std::min(one, other);
    }

    void extend(int piece, const InkPiece &by)
    {
        InkPiece &to = m_pieces[std::size_t(piece)];
        to.box |= by.box;
        to.area += by.area;
        to.strongest = std::max(to.strongest, by.strongest);
    }

    QList<InkPiece> roots()
    {
        for (int piece = int(m_pieces.size()) - 1; piece >= 0; --piece) {
            if (const int root = rootOf(piece); root != piece)
                extend(root, m_pieces[std::size_t(piece)]);
        }
        QList<InkPiece> result;
        for (int piece = 0; piece < int(m_pieces.size()); ++piece) {
            if (rootOf(piece) == piece)
                result += m_pieces[std::size_t(piece)];
        }
        return result;
    }

private:
    std::vector<int> m_parents;
    std::vector<InkPiece> m_pieces;
};

} // namespace

QList<InkPiece> connectedInk(const QImage &ink, int threshold)
{
    Pieces pieces;
    std::vector<Run> above, row;
    for (int y = 0; y < ink.height(); ++y) {
        const uchar *pixels = ink.constScanLine(y);
        row.clear();
        std::size_t first = 0; // of the runs above that can still touch
        for (int x = 0; x < ink.width();) {
            if (pixels[x] < threshold) {
                ++x;
                continue;
            }
            Run run { x, x, -1 };
            int strongest = 0;
            for (; x < ink.width() && pixels[x] >= threshold; ++x)
                strongest = std::max(strongest, int(pixels[x]));
            run.end = x;
            while (first < above.size() && above[first].end < run.start)
                ++first;
            for (std::size_t other = first; other < above.size() && above[other].start <= run.end; ++other) {
                if (run.piece < 0)
                    run.piece = above[other].piece;
                else
                    pieces.join(run.piece, above[other].piece);
            }
            if (run.piece < 0)
                run.piece = pieces.add();
            const int length = run.end - run.start;
            pieces.extend(run.piece, { QRect(run.start, y, length, 1), length, strongest });
            row.push_back(run);
        }
        above.swap(row);
    }
    return pieces.roots();
}

} // namespace tessaly
