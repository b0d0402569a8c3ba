// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/DeflateBlock.h"

#include <QByteArray>

#include <vector>

namespace tessaly {

/// Finds repetitions in rows of pixels and writes them as DEFLATE blocks.
///
/// A general compressor searches everywhere for the longest repetition. Rows of pixels repeat the pixel to the left,
/// the row above, or what the last repetition went on from; one hash table catches the rest. That is several times as
/// fast and, for captured screens, as small. One object serves one thread.
class RowCompressor {
public:
    RowCompressor(int bytesPerPixel, int bytesPerRow);

    /// Appends to `target` the blocks that stand for `rows`. They refer to nothing before them, are not the last of a
    /// stream, and end on a byte boundary.
    void compress(std::span<const uint8_t> rows, QByteArray &target);

private:
    struct Match {
        uint32_t length = 0;
        uint32_t distance = 0;
    };

    Match bestMatch(uint32_t position);
    void extend(uint32_t position, uint32_t distance, Match &best) const;
    void accept(uint32_t position, Match match);
    void writeBlock(BitWriter &writer, uint32_t end);

    uint32_t m_bytesPerPixel;
    uint32_t m_bytesPerRow; ///< bytesPerPixel where a row is longer than a match reaches back
    std::vector<uint32_t> m_positions; ///< by hash of 4 bytes: where they were last seen, plus 1
    std::vector<DeflateBlock::Sequence> m_sequences; ///< of the block that is being gathered
    std::span<const uint8_t> m_rows;
    uint32_t m_blockStart = 0;
    uint32_t m_literalStart = 0;
    uint32_t m_blockSymbols = 0;
    uint32_t m_lastDistance = 1;
};

} // namespace tessaly
