// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/DeflateBlock.h"

#include "core/Export/HuffmanCode.h"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

namespace tessaly::DeflateBlock {

namespace {

constexpr int endOfBlock = 256;
constexpr int firstLengthSymbol = 257;
constexpr int literalSymbols = 286;
constexpr int distanceSymbols = 30;
// Four literals of 14 bits and 7 waiting ones fit the writer's 64.
constexpr int maxCodeLength = 14;

/// A range of lengths or distances that share a symbol; the extra bits tell them apart.
struct Range {
    uint16_t base;
    uint16_t extraBits;
};

/// Symbols come in groups of `perGroup` with one more extra bit from group to group.
template <size_t count>
constexpr std::array<Range, count> ranges(int firstBase, int perGroup)
{
    std::array<Range, count> result {};
    int base = firstBase;
    for (int symbol = 0; symbol < static_cast<int>(count); ++symbol) {
        const int extraBits = std::max(symbol / perGroup - 1, 0);
        result[symbol] = { static_cast<uint16_t>(base), static_cast<uint16_t>(extraBits) };
        base += 1 << extraBits;
    }
    return result;
}

constexpr auto lengthRanges = [] {
    auto result = ranges<29>(minMatch, 4);
    result.back() = { maxMatch, 0 };
    return result;
}();
constexpr auto distanceRanges = ranges<distanceSymbols>(1, 2);

constexpr auto lengthSymbols = [] {
    std::array<uint8_t, maxMatch + 1> result {};
    for (int length = minMatch, symbol = 0; length <= maxMatch; ++length) {
        while (symbol + 1 < static_cast<int>(lengthRanges.size()) && length >= lengthRanges[symbol + 1].base)
            ++symbol;
        result[length] = static_cast<uint8_t>(symbol);
    }
    return result;
}();

int distanceSymbol(uint32_t distance)
{
    const uint32_t offset = distance - 1;
    if (offset < 4)
        return static_cast<int>(offset);
    const int top = std::bit_width(offset) - 1;
    return 2 * top + static_cast<int>(offset >> (top - 1) & 1);
}

struct Frequencies {
    std::array<uint32_t, literalSymbols> literals {};
    std::array<uint32_t, distanceSymbols> distances {};
};

/// Four tables side by side: with one, equal bytes in a row would wait for each other's store.
class LiteralCounter {
public:
    void add(const uint8_t *bytes, uint32_t count)
    {
        const uint8_t *end = bytes + count;
        for (; end - bytes >= 4; bytes += 4) {
            for (int lane = 0; lane < 4; ++lane)
                ++m_counts[lane][bytes[lane]];
        }
        for (; bytes < end; ++bytes)
            ++m_counts[0][*bytes];
    }

    uint32_t total(int byte) const
    {
        return m_counts[0][byte] + m_counts[1][byte] + m_counts[2][byte] + m_counts[3][byte];
    }

private:
    std::array<std::array<uint32_t, 256>, 4> m_counts {};
};

Frequencies countSymbols(const uint8_t *source, std::span<const Sequence> sequences, uint32_t trailingLiterals)
{
    Frequencies result;
    LiteralCounter literals;
    for (const Sequence &sequence : sequences) {
        literals.add(source, sequence.literals);
        source += sequence.literals + sequence.length;
        ++result.literals[firstLengthSymbol + lengthSymbols[sequence.length]];
        ++result.distances[distanceSymbol(sequence.distance)];
    }
    literals.add(source, trailingLiterals);
    for (int byte = 0; byte < 256; ++byte)
        result.literals[byte] = literals.total(byte);
    result.literals[endOfBlock] = 1;
    return result;
}

struct Codes {
    std::array<HuffmanCode, literalSymbols> literals;
    std::array<HuffmanCode, distanceSymbols> distances;

    explicit Codes(const Frequencies &frequencies)
    {
        buildHuffmanCodes(frequencies.literals, maxCodeLength, literals);
        buildHuffmanCodes(frequencies.distances, maxCodeLength, distances);
        // The format wants a distance code even where nothing repeats.
        if (std::ranges::all_of(distances, [](const HuffmanCode &code) { return code.length == 0; }))
            distances[0].length = 1;
    }

    quint64 bits(const Frequencies &frequencies) const
    {
        quint64 sum = 0;
        for (int symbol = 0; symbol < literalSymbols; ++symbol) {
            const int extra = symbol < firstLengthSymbol ? 0 : lengthRanges[symbol - firstLengthSymbol].extraBits;
            sum += quint64(frequencies.literals[symbol]) * (literals[symbol].length + extra);
        }
        for (int symbol = 0; symbol < distanceSymbols; ++symbol)
            sum += quint64(frequencies.distances[symbol])
                * (distances[symbol].length + distanceRanges[symbol].extraBits);
        return sum;
    }
};

size_t usedCount(std::span<const HuffmanCode> codes, size_t least)
{
    size_t count = codes.size();
    while (count > least && codes[count - 1].length == 0)
        --count;
    return count;
}

/// A code length of the header, or one of the three symbols that repeat: 16 the last length, 17 and 18 zero.
struct HeaderSymbol {
    uint8_t symbol;
    uint8_t extra = 0;
    uint8_t extraBits = 0;
};

void appendRun(std::vector<HeaderSymbol> &symbols, uint8_t length, size_t count)
{
    const auto repeat = [&](uint8_t symbol, size_t least, size_t most, uint8_t extraBits) {
        for (; count >= least; count -= std::min(count, most))
            symbols.push_back({ symbol, static_cast<uint8_t>(std::min(count, most) - least), extraBits });
    };
    if (length == 0) {
        repeat(18, 11, 138, 7);
        repeat(17, 3, 10, 3);
    } else {
        symbols.push_back({ length });
        --count;
        repeat(16, 3, 6, 2);
    }
    for (; count > 0; --count)
        symbols.push_back({ length });
}

void writeHeader(BitWriter &writer, const Codes &codes)
{
    const size_t literalCount = usedCount(codes.literals, firstLengthSymbol);
    const size_t distanceCount = usedCount(codes.distances, 1);
    std::vector<uint16_t> lengths;
    for (const HuffmanCode &code : std::span(codes.literals).first(literalCount))
        lengths.push_back(code.length);
    for (const HuffmanCode &code : std::span(codes.distances).first(distanceCount))
        lengths.push_back(code.length);

    std::vector<HeaderSymbol> symbols;
    for (size_t start = 0, end = 0; start < lengths.size(); start = end) {
        while (end < lengths.size() && lengths[end] == lengths[start])
            ++end;
        appendRun(symbols, static_cast<uint8_t>(lengths[start]), end - start);
    }
    std::array<uint32_t, 19> frequencies {};
    for (const HeaderSymbol &symbol : symbols)
        ++frequencies[symbol.symbol];
    std::array<HuffmanCode, 19> headerCodes;
    buildHuffmanCodes(frequencies, 7, headerCodes);
    constexpr std::array<uint8_t, 19> order { 16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15 };
    size_t orderCount = order.size();
    while (orderCount > 4 && headerCodes[order[orderCount - 1]].length == 0)
        --orderCount;

    writer.put(0b100, 3); // not the last block; codes of its own
    writer.put(literalCount - 257, 5);
    writer.put(distanceCount - 1, 5);
    writer.put(orderCount - 4, 4);
    writer.flush();
    for (size_t index = 0; index < orderCount; ++index) {
        writer.put(headerCodes[order[index]].length, 3);
        writer.flush();
    }
    for (const HeaderSymbol &symbol : symbols) {
        writer.put(headerCodes[symbol.symbol].bits, headerCodes[symbol.symbol].length);
        writer.put(symbol.extra, symbol.extraBits);
        writer.flush();
    }
}

void putCode(BitWriter &writer, HuffmanCode code) { writer.put(code.bits, code.length); }

void writeLiterals(BitWriter &writer, const Codes &codes, const uint8_t *bytes, uint32_t count)
{
    const uint8_t *end = bytes + count;
    for (; end - bytes >= 4; bytes += 4) {
        for (int lane = 0; lane < 4; ++lane)
            putCode(writer, codes.literals[bytes[lane]]);
        writer.flush();
    }
    for (; bytes < end; ++bytes)
        putCode(writer, codes.literals[*bytes]);
    writer.flush();
}

} // namespace

void write(BitWriter &output, const uint8_t *source, std::span<const Sequence> sequences, uint32_t trailingLiterals)
{
    const Frequencies frequencies = countSymbols(source, sequences, trailingLiterals);
    const Codes codes(frequencies);
    constexpr quint64 mostHeaderBits = 3 + 14 + 19 * 3 + (literalSymbols + distanceSymbols) * 14;
    output.reserve(mostHeaderBits + codes.bits(frequencies));
    BitWriter writer = output; // a local keeps its state in registers
    writeHeader(writer, codes);
    for (const Sequence &sequence : sequences) {
        writeLiterals(writer, codes, source, sequence.literals);
        source += sequence.literals + sequence.length;
        const int lengthSymbol = lengthSymbols[sequence.length];
        putCode(writer, codes.literals[firstLengthSymbol + lengthSymbol]);
        writer.put(sequence.length - lengthRanges[lengthSymbol].base, lengthRanges[lengthSymbol].extraBits);
        const int symbol = distanceSymbol(sequence.distance);
        putCode(writer, codes.distances[symbol]);
        writer.put(sequence.distance - distanceRanges[symbol].base, distanceRanges[symbol].extraBits);
        writer.flush();
    }
    writeLiterals(writer, codes, source, trailingLiterals);
    putCode(writer, codes.literals[endOfBlock]);
    writer.flush();
    output.takeOver(writer);
}

void writeByteBoundary(BitWriter &writer)
{
    writer.reserve(64);
    writer.put(0b000, 3);
    writer.alignToByte();
    writer.put(0xffff0000u, 32); // length 0 and its complement
    writer.flush();
    writer.release();
}

QByteArray end() { return QByteArray("\x03\x00", 2); } // last block, fixed codes, nothing in it

} // namespace tessaly::DeflateBlock
