// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/HuffmanCode.h"

#include <algorithm>
#include <array>
#include <vector>

namespace tessaly {

namespace {

constexpr int lengthLimit = 15;
using LengthCounts = std::array<uint32_t, lengthLimit + 1>;

struct Leaf {
    uint32_t frequency;
    uint16_t symbol;
};

std::vector<Leaf> sortedLeaves(std::span<const uint32_t> frequencies)
{
    std::vector<Leaf> leaves;
    leaves.reserve(frequencies.size());
    for (size_t symbol = 0; symbol < frequencies.size(); ++symbol) {
        if (frequencies[symbol] > 0)
            leaves.push_back({ frequencies[symbol], static_cast<uint16_t>(symbol) });
    }
    std::ranges::stable_sort(leaves, {}, &Leaf::frequency);
    return leaves;
}

/// How many leaves of the Huffman tree lie at each depth, those below `maxLength` counted at it.
LengthCounts leavesPerDepth(const std::vector<Leaf> &leaves, int maxLength)
{
    // Leaves come first, inner nodes behind them in the order in which they are made, which is that of their weight:
    // the two lightest nodes are always at the heads of the two runs.
    const size_t leafCount = leaves.size();
    const size_t nodeCount = 2 * leafCount - 1;
    std::vector<uint64_t> weights(nodeCount);
    std::vector<size_t> parents(nodeCount);
    std::ranges::transform(leaves, weights.begin(), &Leaf::frequency);
    size_t leaf = 0, inner = leafCount;
    for (size_t made = leafCount; made < nodeCount; ++made) {
        for (int child = 0; child < 2; ++child) {
            const bool takeLeaf = leaf < leafCount && (inner == made || weights[leaf] <= weights[inner]);
            const size_t taken = takeLeaf ? leaf++ : inner++;
            weights[made] += weights[taken];
            parents[taken] = made;
        }
    }

    LengthCounts counts {};
    std::vector<int> depths(nodeCount);
    for (size_t node = nodeCount - 1; node-- > 0;) {
        depths[node] = depths[parents[node]] + 1;
        if (node < leafCount)
            ++counts[std::min(depths[node], maxLength)];
    }
    return counts;
}

/// Leaves that were lifted to `maxLength` take more of the code space than there is: longer codes for others pay it.
void payForLifted(LengthCounts &counts, int maxLength)
{
    uint32_t used = 0;
    for (int length = 1; length <= maxLength; ++length)
        used += counts[length] << (maxLength - length);
    for (; used > 1u << maxLength; --used) {
        int length = maxLength - 1;
        while (counts[length] == 0)
            --length;
        --counts[maxLength];
        --counts[length];
        counts[length + 1] += 2;
    }
}

uint16_t reversed(uint32_t bits, int count)
{
    uint32_t result = 0;
    for (; count > 0; --count, bits >>= 1)
        result = result << 1 | (bits & 1);
    return static_cast<uint16_t>(result);
}

} // namespace

void buildHuffmanCodes(std::span<const uint32_t> frequencies, int maxLength, std::span<HuffmanCode> codes)
{
    std::ranges::fill(codes, HuffmanCode {});
    const std::vector<Leaf> leaves = sortedLeaves(frequencies);
    if (leaves.empty())
        return;
    LengthCounts counts {};
    if (leaves.size() == 1) {
        counts[1] = 1;
    } else {
        counts = leavesPerDepth(leaves, maxLength);
        payForLifted(counts, maxLength);
    }

    auto leaf = leaves.begin();
    for (int length = maxLength; length > 0; --length) {
        for (uint32_t left = counts[length]; left > 0; --left)
            codes[(leaf++)->symbol].length = static_cast<uint16_t>(length);
    }
    std::array<uint32_t, lengthLimit + 2> next {};
    for (int length = 1; length <= maxLength; ++length)
        next[length + 1] = (next[length] + counts[length]) << 1;
    for (HuffmanCode &code : codes) {
        if (code.length > 0)
            code.bits = reversed(next[code.length]++, code.length);
    }
}

} // namespace tessaly
