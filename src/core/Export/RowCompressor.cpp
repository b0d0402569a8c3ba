// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/RowCompressor.h"

#include <QtEndian>

#include <algorithm>
#include <bit>

namespace tessaly {

namespace {

constexpr int hashBits = 15;
// Symbols in a block: enough to pay for the header, few enough for the codes to follow the content.
constexpr uint32_t symbolsPerBlock = 32768;
// Inside longer matches nothing is remembered: they are runs or whole rows, which the fixed distances find again.
constexpr uint32_t longestRemembered = 32;
// After 2^this bytes without a match every second byte is tried, then every third: noise has no matches.
constexpr int patience = 5;

uint32_t read4(const uint8_t *bytes) { return qFromUnaligned<uint32_t>(bytes); }
uint64_t read8(const uint8_t *bytes) { return qFromLittleEndian<quint64>(bytes); }
uint32_t hashOf(uint32_t four) { return four * 2654435761u >> (32 - hashBits); }

/// How many bytes at `one` and `other` are equal, counted from the front, at most up to `end` of `other`.
uint32_t equalBytes(const uint8_t *one, const uint8_t *other, const uint8_t *end)
{
    const uint8_t *start = other;
    for (; end - other >= 8; one += 8, other += 8) {
        if (const uint64_t difference = read8(one) ^ read8(other))
            return static_cast<uint32_t>(other - start) + (std::countr_zero(difference) >> 3);
    }
    for (; other < end && *one == *other; ++one)
        ++other;
    return static_cast<uint32_t>(other - start);
}

} // namespace

RowCompressor::RowCompressor(int bytesPerPixel, int bytesPerRow) :
    m_bytesPerPixel(static_cast<uint32_t>(bytesPerPixel)),
    m_bytesPerRow(static_cast<uint32_t>(bytesPerRow <= DeflateBlock::maxDistance ? bytesPerRow : bytesPerPixel)),
    m_positions(size_t(1) << hashBits)
{
}

void RowCompressor::extend(uint32_t position, uint32_t distance, Match &best) const
{
    const uint8_t *here = m_rows.data() + position;
    const size_t most = std::min<size_t>(m_rows.size() - position, DeflateBlock::maxMatch);
    const uint32_t length = equalBytes(here - distance, here, here + most);
    if (length > best.length)
        best = { length, distance };
}

/// Needs 4 bytes at `position`. Near distances come first: of equal lengths they cost the fewest bits.
RowCompressor::Match RowCompressor::bestMatch(uint32_t position)
{
    const uint8_t *here = m_rows.data() + position;
    const uint32_t four = read4(here);
    uint32_t &remembered = m_positions[hashOf(four)];
    const uint32_t seen = std::exchange(remembered, position + 1);

    Match best;
    const auto consider = [&](uint32_t distance) {
        if (distance <= position && read4(here - distance) == four)
            extend(position, distance, best);
    };
    consider(m_bytesPerPixel);
    if (best.length == DeflateBlock::maxMatch)
        return best;
    consider(m_lastDistance);
    consider(m_bytesPerRow);
    const uint32_t sinceSeen = position + 1 - seen;
    if (seen > 0 && sinceSeen <= DeflateBlock::maxDistance)
        consider(sinceSeen);
    if (best.length > 0)
        return best;
    // Three bytes pay only where the distance is cheap: repeated, or next to nothing.
    for (const uint32_t distance : { m_lastDistance, m_bytesPerPixel }) {
        if (distance <= position && std::equal(here, here + DeflateBlock::minMatch, here - distance))
            return { DeflateBlock::minMatch, distance };
    }
    return best;
}

void RowCompressor::accept(uint32_t position, Match match)
{
    const uint32_t literals = position - m_literalStart;
    m_sequences.push_back({ literals, static_cast<uint16_t>(match.length), static_cast<uint16_t>(match.distance) });
    m_blockSymbols += literals + 1;
    m_lastDistance = match.distance;
    m_literalStart = position + match.length;
    if (match.length >= longestRemembered)
        return;
    const uint32_t end = std::min(m_literalStart, static_cast<uint32_t>(m_rows.size()) - 3);
    for (uint32_t inside = position + 1; inside < end; ++inside)
        m_positions[hashOf(read4(m_rows.data() + inside))] = inside + 1;
}

void RowCompressor::writeBlock(BitWriter &writer, uint32_t end)
{
    if (end == m_blockStart)
        return;
    DeflateBlock::write(writer, m_rows.data() + m_blockStart, m_sequences, end - m_literalStart);
    m_sequences.clear();
    m_blockSymbols = 0;
    m_blockStart = m_literalStart = end;
}

void RowCompressor::compress(std::span<const uint8_t> rows, QByteArray &target)
{
    m_rows = rows;
    m_blockStart = m_literalStart = m_blockSymbols = 0;
    m_lastDistance = 1;
    std::ranges::fill(m_positions, 0);
    BitWriter writer(target);
    const auto size = static_cast<uint32_t>(rows.size());
    uint32_t misses = 0;
    for (uint32_t position = 0; position + 8 < size;) {
        const Match match = bestMatch(position);
        if (match.length == 0) {
            position = std::min(position + 1 + (misses++ >> patience), size);
            if (m_blockSymbols + (position - m_literalStart) >= symbolsPerBlock)
                writeBlock(writer, position);
            continue;
        }
        misses = 0;
        accept(position, match);
        position += match.length;
        if (m_blockSymbols >= symbolsPerBlock)
            writeBlock(writer, position);
    }
    writeBlock(writer, size);
    DeflateBlock::writeByteBoundary(writer);
}

} // namespace tessaly
