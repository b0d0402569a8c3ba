// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/PngChunks.h"

#include "core/Imaging/ByteView.h"

#include <libdeflate.h>

#include <algorithm>
#include <array>

namespace tessaly {

namespace {

constexpr QByteArrayView signature("\x89PNG\r\n\x1a\n", 8);
constexpr qint64 maxLength = 0x7fffffff; // of a chunk, and of a side

struct Chunk {
    QByteArrayView type;
    QByteArrayView content;
};

/// The chunk at an offset; empty when it is cut short, has an impossible name, or a wrong checksum.
std::optional<Chunk> chunkAt(const ByteView &file, qint64 at)
{
    const qint64 length = file.u32(at);
    if (!file.has(at, 12) || length > maxLength || !file.has(at + 12, length))
        return std::nullopt;
    const QByteArrayView checked = file.part(at + 4, 4 + length);
    if (libdeflate_crc32(0, checked.data(), std::size_t(checked.size())) != file.u32(at + 8 + length))
        return std::nullopt;
    const auto isLetter = [](char byte) { return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z'); };
    if (!std::all_of(checked.begin(), checked.begin() + 4, isLetter))
        return std::nullopt;
    return Chunk { checked.first(4), checked.sliced(4) };
}

/// Gathers chunks in the order of the file. Each step is false when the file is not of a common kind.
class Reader {
public:
    bool take(const Chunk &chunk);
    bool isComplete() const { return m_ended && !m_png.data.empty() && colorsAreSrgb() && hasPalette(); }
    bool hasEnded() const { return m_ended; }
    PngChunks result() && { return std::move(m_png); }

private:
    struct Step {
        QByteArrayView type;
        bool (Reader::*take)(QByteArrayView content);
    };

    bool takeHeader(QByteArrayView content);
    bool takePalette(QByteArrayView content);
    bool takeTransparency(QByteArrayView content);
    bool takeData(QByteArrayView content);
    bool takeEnd(QByteArrayView content);
    bool takeSrgb(QByteArrayView content);
    bool takeGamma(QByteArrayView content);
    bool takeChromaticities(QByteArrayView content);
    bool refuse(QByteArrayView) { return false; }

    bool isBeforeColors() const { return m_png.palette.empty() && m_png.data.empty(); }
    bool colorsAreSrgb() const { return m_srgb || !m_otherColors; }
    bool hasPalette() const { return m_png.color != PngChunks::Color::Palette || !m_png.palette.empty(); }

    static const std::array<Step, 9> steps;

    PngChunks m_png;
    bool m_started = false;
    bool m_dataEnded = false;
    bool m_ended = false;
    bool m_srgb = false;
    bool m_otherColors = false; ///< described in numbers, which are those of sRGB
};

const std::array<Reader::Step, 9> Reader::steps { {
    { "IHDR", &Reader::takeHeader },
    { "PLTE", &Reader::takePalette },
    { "tRNS", &Reader::takeTransparency },
    { "IDAT", &Reader::takeData },
    { "IEND", &Reader::takeEnd },
    { "sRGB", &Reader::takeSrgb },
    { "gAMA", &Reader::takeGamma },
    { "cHRM", &Reader::takeChromaticities },
    { "iCCP", &Reader::refuse },
} };

bool Reader::take(const Chunk &chunk)
{
    if (m_started != (chunk.type != QByteArrayView("IHDR")))
        return false;
    m_dataEnded = !m_png.data.empty() && chunk.type != QByteArrayView("IDAT");
    const auto step = std::ranges::find(steps, chunk.type, &Step::type);
    if (step != steps.end())
        return (this->*step->take)(chunk.content);
    const bool canBeLeftOut = (chunk.type[0] & 0x20) != 0;
    return canBeLeftOut;
}

bool Reader::takeHeader(QByteArrayView content)
{
    const ByteView header(content);
    const qint64 width = header.u32(0), height = header.u32(4);
    constexpr std::array<int, 5> colors { 0, 2, 3, 4, 6 };
    const int depth = header.u8(8), color = header.u8(9), compression = header.u8(10), filter = header.u8(11),
              interlace = header.u8(12);
    m_started = true;
    m_png.size = QSize(int(std::min(width, maxLength)), int(std::min(height, maxLength)));
    m_png.color = static_cast<PngChunks::Color>(color);
    return content.size() == 13 && depth == 8 && std::ranges::find(colors, color) != colors.end() && compression == 0
        && filter == 0 && interlace == 0 && !m_png.size.isEmpty() && width <= maxLength && height <= maxLength;
}

bool Reader::takePalette(QByteArrayView content)
{
    const bool isHint = m_png.color == PngChunks::Color::Rgb || m_png.color == PngChunks::Color::Rgba;
    if (isHint || m_png.color != PngChunks::Color::Palette)
        return isHint;
    if (!isBeforeColors() || content.isEmpty() || content.size() % 3 != 0 || content.size() > 3 * 256)
        return false;
    const ByteView colors(content);
    for (qint64 at = 0; at < content.size(); at += 3)
        m_png.palette.push_back(qRgb(colors.u8(at), colors.u8(at + 1), colors.u8(at + 2)));
    return true;
}

bool Reader::takeTransparency(QByteArrayView content)
{
    // Of the other kinds it names one colour that is clear, which is rare.
    const auto count = std::size_t(content.size());
    if (m_png.color != PngChunks::Color::Palette || count == 0 || count > m_png.palette.size() || !m_png.data.empty())
        return false;
    for (std::size_t index = 0; index < count; ++index)
        m_png.palette[index] = (m_png.palette[index] & 0xffffff) | QRgb(uchar(content[qsizetype(index)])) << 24;
    return true;
}

bool Reader::takeData(QByteArrayView content)
{
    m_png.data.push_back(content);
    return !m_dataEnded;
}

bool Reader::takeEnd(QByteArrayView content)
{
    m_ended = true;
    return content.isEmpty();
}

bool Reader::takeSrgb(QByteArrayView content)
{
    const bool known = content.size() == 1 && uchar(content[0]) <= 3;
    m_srgb = true;
    return known && isBeforeColors();
}

bool Reader::takeGamma(QByteArrayView content)
{
    m_otherColors = true;
    return content == QByteArrayView("\0\0\xb1\x8f", 4) && isBeforeColors();
}

bool Reader::takeChromaticities(QByteArrayView content)
{
    constexpr std::array<quint32, 8> srgb { 31270, 32900, 64000, 33000, 30000, 60000, 15000, 6000 };
    const ByteView numbers(content);
    bool same = content.size() == 32;
    for (std::size_t index = 0; index < srgb.size(); ++index)
        same = same && numbers.u32(qint64(index) * 4) == srgb[index];
    m_otherColors = true;
    return same && isBeforeColors();
}

} // namespace

int PngChunks::bytesPerPixel() const
{
    switch (color) {
    case Color::Grey:
    case Color::Palette:
        return 1;
    case Color::GreyAlpha:
        return 2;
    case Color::Rgb:
        return 3;
    case Color::Rgba:
        break;
    }
    return 4;
}

bool PngChunks::isOpaque() const
{
    return color != Color::GreyAlpha && color != Color::Rgba
        && std::ranges::all_of(palette, [](QRgb entry) { return qAlpha(entry) == 255; });
}

std::optional<PngChunks> PngChunks::read(QByteArrayView file)
{
    if (!file.startsWith(signature))
        return std::nullopt;
    const ByteView bytes(file);
    Reader reader;
    for (qint64 at = signature.size(); !reader.hasEnded();) {
        const auto chunk = chunkAt(bytes, at);
        if (!chunk || !reader.take(*chunk))
            return std::nullopt;
        at += 12 + chunk->content.size();
    }
    return reader.isComplete() ? std::optional(std::move(reader).result()) : std::nullopt;
}

} // namespace tessaly
