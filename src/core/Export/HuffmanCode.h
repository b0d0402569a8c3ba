// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

namespace tessaly {

/// One symbol's canonical Huffman code, its bits reversed so that it can be written lowest bit first.
/// A symbol that does not occur has length 0.
struct HuffmanCode {
    uint16_t bits = 0;
    uint16_t length = 0;
};

/// Fills `codes` with an optimal code for the frequencies; lengths that would exceed `maxLength` are shortened at small
/// cost. Both spans are of one size. A single symbol gets one bit.
void buildHuffmanCodes(std::span<const uint32_t> frequencies, int maxLength, std::span<HuffmanCode> codes);

} // namespace tessaly
