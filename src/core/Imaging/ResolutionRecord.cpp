// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ResolutionRecord.h"

#include "core/Imaging/ByteView.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessaly::ResolutionRecord {

namespace {

constexpr double inchesPerMetre = 1 / 0.0254;
constexpr double inchesPerCentimetre = 1 / 2.54;
constexpr QByteArrayView exifPreamble("Exif\0\0", 6);

/// A number as the file has it.
struct Density {
    double dots; ///< per unit
    double unitsPerInch;
    double step; ///< by which the file could have said more or less
};

using Found = std::optional<Density>;

Density perMetre(quint32 dots) { return { double(dots), 1 / inchesPerMetre, 1 }; }

/// The unit as JPEG and, one higher, TIFF number it; empty for "no unit", which gives a mere ratio of the sides.
std::optional<double> unitsPerInch(int jpegUnit)
{
    switch (jpegUnit) {
    case 1:
        return 1;
    case 2:
        return 1 / inchesPerCentimetre;
    default:
        return std::nullopt;
    }
}

Found densityOfTiff(ByteView file)
{
    const bool bigEndian = file.startsWith({ "MM\0*", 4 });
    if (!bigEndian && !file.startsWith({ "II*\0", 4 }))
        return std::nullopt;
    file.setBigEndian(bigEndian);
    constexpr qint64 entryBytes = 12;
    const qint64 directory = file.u32(4);
    std::optional<qint64> value;
    int unit = 2; // inches, unless it says something else
    for (int entry = 0, count = file.u16(directory); entry < count; ++entry) {
        const qint64 at = directory + 2 + entry * entryBytes;
        if (file.u16(at) == 0x011a)
            value = file.u32(at + 8);
        else if (file.u16(at) == 0x0128)
            unit = file.u16(at + 8);
    }
    const auto scale = unitsPerInch(unit - 1);
    if (!value || !scale || file.u32(*value + 4) == 0)
        return std::nullopt;
    const double denominator = file.u32(*value + 4);
    // A number that went through single precision is off by more than its denominator says.
    return Density { file.u32(*value) / denominator, *scale, std::max(1 / denominator, 0.01) };
}

Found densityOfPng(const ByteView &file)
{
    qint64 at = 8;
    while (file.has(at, 8) && file.part(at + 4, 4) != "pHYs" && file.part(at + 4, 4) != "IDAT")
        at += 12 + qint64(file.u32(at));
    if (file.part(at + 4, 4) != "pHYs" || file.u8(at + 16) != 1)
        return std::nullopt;
    return perMetre(file.u32(at + 8));
}

Found densityOfJpeg(const ByteView &file)
{
    constexpr int startOfScan = 0xda, application0 = 0xe0, application1 = 0xe1;
    Found exif;
    for (qint64 at = 2; file.u8(at) == 0xff && file.u8(at + 1) != startOfScan; at += 2 + file.u16(at + 2)) {
        const int marker = file.u8(at + 1);
        if (marker == application0 && file.part(at + 4, 4) == "JFIF") {
            if (const auto scale = unitsPerInch(file.u8(at + 11)))
                return Density { double(file.u16(at + 12)), *scale, 1 };
        } else if (marker == application1 && file.part(at + 4, 6) == exifPreamble) {
            exif = densityOfTiff(ByteView(file.part(at + 10, file.u16(at + 2) - 8)));
        }
    }
    return exif;
}

Found densityOfWebP(ByteView file)
{
    file.setBigEndian(false);
    for (qint64 at = 12; file.has(at, 8); at += 8 + (qint64(file.u32(at + 4)) + 1) / 2 * 2) {
        if (file.part(at, 4) != "EXIF")
            continue;
        const ByteView record(file.part(at + 8, file.u32(at + 4)));
        const qint64 preamble = record.startsWith(exifPreamble) ? 6 : 0; // some writers leave JPEG's before it
        return densityOfTiff(ByteView(record.part(preamble, record.size() - preamble)));
    }
    return std::nullopt;
}

Found densityOfBmp(ByteView file)
{
    file.setBigEndian(false);
    constexpr quint32 coreHeaderBytes = 12; // the oldest header, which has no resolution
    if (file.u32(14) <= coreHeaderBytes)
        return std::nullopt;
    return perMetre(file.u32(38));
}

Found densityOf(const ByteView &file)
{
    if (file.startsWith("\x89PNG"))
        return densityOfPng(file);
    if (file.startsWith("\xff\xd8"))
        return densityOfJpeg(file);
    if (file.startsWith("RIFF") && file.part(8, 4) == "WEBP")
        return densityOfWebP(file);
    if (file.startsWith("BM"))
        return densityOfBmp(file);
    return densityOfTiff(file);
}

} // namespace

std::optional<int> dpiToRecord(const RasterImage &image)
{
    constexpr int most = 65535; // what a JPEG file holds
    const int dpi = image.dpi();
    return dpi != 72 && dpi > 0 && dpi <= most ? std::optional(dpi) : std::nullopt;
}

double pixelsPerPoint(const QByteArray &bytes)
{
    constexpr std::array known { 1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 4.0 };
    const Found density = densityOf(ByteView(bytes));
    if (!density)
        return 1;
    const auto match = std::ranges::find_if(known, [&](double scale) {
        // Within one step: some writers round, others cut off.
        return std::abs(72 * scale / density->unitsPerInch - density->dots) < density->step;
    });
    return match == known.end() ? 1 : *match;
}

} // namespace tessaly::ResolutionRecord
