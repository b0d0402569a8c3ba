// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/PictureEnd.h"

#include "core/Imaging/ByteView.h"

namespace tessaly {

namespace {

/// The marker that ends the picture cannot occur within the compressed data, but it does in an embedded preview, which
/// lies before the data.
bool isWholeJpeg(const ByteView &file, QByteArrayView bytes)
{
    constexpr int startOfScan = 0xda;
    qint64 at = 2;
    while (file.u8(at) == 0xff && file.u8(at + 1) != startOfScan)
        at += 2 + file.u16(at + 2);
    return file.u8(at + 1) == startOfScan && bytes.lastIndexOf(QByteArrayView("\xff\xd9", 2)) > at;
}

qint64 afterColorTable(int flags, qint64 at)
{
    const bool present = (flags & 0x80) != 0;
    return present ? at + 3 * (qint64(2) << (flags & 7)) : at;
}

/// The offset after a run of counted blocks, or -1 when the file ends before their terminator.
qint64 afterBlocks(const ByteView &file, qint64 at)
{
    while (file.u8(at) != 0)
        at += 1 + file.u8(at);
    return file.has(at, 1) ? at + 1 : -1;
}

bool isWholeGif(const ByteView &file)
{
    constexpr int extension = 0x21, picture = 0x2c;
    qint64 at = afterColorTable(file.u8(10), 13);
    while (at > 0 && file.u8(at) == extension)
        at = afterBlocks(file, at + 2);
    if (at < 0 || file.u8(at) != picture)
        return false;
    constexpr qint64 descriptorBytes = 10, codeSizeBytes = 1;
    const qint64 data = afterColorTable(file.u8(at + 9), at + descriptorBytes) + codeSizeBytes;
    return afterBlocks(file, data) > 0;
}

bool isWholeBmp(ByteView file)
{
    file.setBigEndian(false);
    constexpr quint32 coreHeaderBytes = 12;
    const qint64 pixels = file.u32(10);
    const quint32 compression = file.u32(14) > coreHeaderBytes ? file.u32(30) : 0;
    constexpr quint32 plain = 0, bitFields = 3;
    if (compression != plain && compression != bitFields)
        return file.has(pixels, file.u32(34)); // run lengths: the header says how many bytes
    const bool core = file.u32(14) <= coreHeaderBytes;
    const qint64 width = core ? file.u16(18) : qAbs(qint64(qint32(file.u32(18))));
    const qint64 height = core ? file.u16(20) : qAbs(qint64(qint32(file.u32(22))));
    const qint64 bitsPerPixel = file.u16(core ? 24 : 28);
    return file.has(pixels, (width * bitsPerPixel + 31) / 32 * 4 * height);
}

bool isWholePng(const ByteView &file)
{
    qint64 at = 8;
    while (file.has(at, 8) && file.part(at + 4, 4) != "IEND")
        at += 12 + qint64(file.u32(at));
    return file.has(at, 8);
}

/// The directory, which says where the pixels are, mostly comes last.
bool isWholeTiff(ByteView file)
{
    file.setBigEndian(file.startsWith("MM"));
    const qint64 directory = file.u32(4);
    return file.has(directory, 2 + 12 * qint64(file.u16(directory)));
}

} // namespace

bool hasWholePicture(QByteArrayView bytes)
{
    const ByteView file(bytes);
    if (file.startsWith("\xff\xd8"))
        return isWholeJpeg(file, bytes);
    if (file.startsWith("GIF8"))
        return isWholeGif(file);
    if (file.startsWith("BM"))
        return isWholeBmp(file);
    if (file.startsWith("\x89PNG"))
        return isWholePng(file);
    if (file.startsWith({ "II*\0", 4 }) || file.startsWith({ "MM\0*", 4 }))
        return isWholeTiff(file);
    return true;
}

} // namespace tessaly
