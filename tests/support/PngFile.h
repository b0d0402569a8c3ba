// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <zlib.h>

/// The parts of PNG files, to be put together rightly or wrongly. A test that uses it links zlib.
namespace tessaly::test {

inline QByteArray bigEndian(quint32 number)
{
    number = qToBigEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&number), 4);
}

inline QByteArray pngChunk(const QByteArray &type, const QByteArray &content)
{
    const QByteArray checked = type + content;
    const auto sum = crc32(0, reinterpret_cast<const Bytef *>(checked.constData()), static_cast<uInt>(checked.size()));
    return bigEndian(quint32(content.size())) + checked + bigEndian(quint32(sum));
}

/// `format` is depth, colour type, compression, filter and interlacing, a byte each.
inline QByteArray pngHeader(quint32 width, quint32 height, const QByteArray &format)
{
    return "\x89PNG\r\n\x1a\n" + pngChunk("IHDR", bigEndian(width) + bigEndian(height) + format);
}

/// Rows, each after the byte of its filter, as a zlib stream.
inline QByteArray pngData(const QByteArray &rows) { return qCompress(rows).mid(4); }

} // namespace tessaly::test
