// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/BitWriter.h"

#include <cstdint>
#include <span>

/// The DEFLATE format (RFC 1951): one block from what a match finder found.
namespace tessaly::DeflateBlock {

inline constexpr int minMatch = 3;
inline constexpr int maxMatch = 258;
inline constexpr int maxDistance = 32768;

/// So many bytes as they stand, followed by a repetition of what lies `distance` bytes before.
struct Sequence {
    uint32_t literals;
    uint16_t length; ///< minMatch to maxMatch
    uint16_t distance; ///< 1 to maxDistance
};

/// Appends one block, not the last of its stream, with Huffman codes of its own. `source` is what the sequences and
/// then `trailingLiterals` bytes stand for; it must not be empty.
void write(BitWriter &writer, const uint8_t *source, std::span<const Sequence> sequences, uint32_t trailingLiterals);

/// Appends an empty stored block, which ends on a byte boundary: whatever follows may have been made separately.
void writeByteBoundary(BitWriter &writer);

/// The bytes of an empty last block, to be put at a byte boundary.
QByteArray end();

} // namespace tessaly::DeflateBlock
