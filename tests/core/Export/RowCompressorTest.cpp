// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/RowCompressor.h"

#include <QTest>

#include <zlib.h>

#include <random>

using namespace tessaly;

namespace {

using Bytes = std::vector<uint8_t>;
using Random = std::mt19937;

/// What zlib makes of the compressed bytes; empty when they are no ordinary stream.
Bytes inflated(const QByteArray &stream, size_t expected)
{
    QByteArray input = stream + DeflateBlock::end();
    Bytes output(expected + 1);
    z_stream state = {};
    inflateInit2(&state, -15);
    state.next_in = reinterpret_cast<Bytef *>(input.data());
    state.avail_in = static_cast<uInt>(input.size());
    state.next_out = output.data();
    state.avail_out = static_cast<uInt>(output.size());
    const int result = inflate(&state, Z_FINISH);
    output.resize(result == Z_STREAM_END && state.avail_in == 0 ? state.total_out : 0);
    inflateEnd(&state);
    return output;
}

Bytes noise(size_t size, uint32_t levels, Random &random)
{
    Bytes bytes(size);
    for (uint8_t &byte : bytes)
        byte = static_cast<uint8_t>(random() % levels);
    return bytes;
}

/// Stretches of noise, runs and copies from any distance, as filtered rows have them.
Bytes mixture(size_t size, Random &random)
{
    Bytes bytes;
    while (bytes.size() < size) {
        const size_t length = 1 + random() % (random() % 4 == 0 ? 2000 : 12);
        const size_t distance
            = 1 + random() % std::max<size_t>(1, std::min<size_t>(bytes.size(), random() % 2 ? 8 : 70000));
        for (size_t index = 0; index < length; ++index) {
            const bool copied = distance <= bytes.size() && distance % 3 != 0;
            bytes.push_back(copied ? bytes[bytes.size() - distance] : static_cast<uint8_t>(random() >> 7));
        }
    }
    bytes.resize(size);
    return bytes;
}

/// Byte i is twice as frequent as byte i − 1, so that a Huffman tree is as deep as it can be.
Bytes skewed(Random &random)
{
    Bytes bytes;
    for (uint8_t value = 0; value < 18; ++value)
        bytes.insert(bytes.end(), size_t(1) << value, value);
    std::ranges::shuffle(bytes, random);
    return bytes;
}

/// The same block again after exactly `distance` bytes of noise and block.
Bytes repeatedAfter(size_t distance, Random &random)
{
    Bytes bytes = noise(distance, 256, random);
    bytes.insert(bytes.end(), bytes.begin(), bytes.begin() + 300);
    return bytes;
}

} // namespace

class RowCompressorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void zlibReadsWhatWasWritten_data()
    {
        QTest::addColumn<Bytes>("bytes");
        Random random(5);
        for (const size_t size : { 1, 2, 3, 4, 7, 8, 9, 10, 257, 258, 259, 260, 262 }) {
            QTest::addRow("zeros %zu", size) << Bytes(size, 0);
            QTest::addRow("noise %zu", size) << noise(size, 256, random);
        }
        QTest::newRow("a block of one byte value") << Bytes(300000, 200);
        QTest::newRow("incompressible") << noise(200000, 256, random);
        QTest::newRow("two values") << noise(100000, 2, random);
        QTest::newRow("deepest tree") << skewed(random);
        for (const size_t distance : { 32767, 32768, 32769 })
            QTest::addRow("repeated after %zu", distance) << repeatedAfter(distance, random);
        for (int index = 0; index < 60; ++index)
            QTest::addRow("mixture %d", index) << mixture(1 + random() % 150000, random);
    }

    void zlibReadsWhatWasWritten()
    {
        QFETCH(Bytes, bytes);
        for (const auto &[bytesPerPixel, bytesPerRow] :
            { std::pair { 1, 2 }, { 3, 301 }, { 4, 32768 }, { 3, 40001 } }) {
            RowCompressor compressor(bytesPerPixel, bytesPerRow);
            QByteArray first, second;
            compressor.compress(bytes, first);
            QVERIFY(inflated(first, bytes.size()) == bytes);
            compressor.compress(bytes, second);
            QCOMPARE(second, first); // nothing is left over from the run before
        }
    }

    void partsJoin()
    {
        Random random(6);
        const Bytes one = mixture(5000, random), other = mixture(7001, random);
        RowCompressor compressor(3, 100);
        QByteArray stream;
        compressor.compress(one, stream);
        compressor.compress(other, stream);
        Bytes both = one;
        both.insert(both.end(), other.begin(), other.end());
        QVERIFY(inflated(stream, both.size()) == both);
    }

    void rowsThatRepeatTakeNextToNothing()
    {
        Random random(7);
        const Bytes row = noise(3000, 256, random);
        Bytes rows;
        for (int index = 0; index < 100; ++index)
            rows.insert(rows.end(), row.begin(), row.end());
        QByteArray stream;
        RowCompressor(3, 3000).compress(rows, stream);
        QVERIFY2(stream.size() < 8000, qPrintable(QString::number(stream.size())));
    }
};

QTEST_GUILESS_MAIN(RowCompressorTest)
#include "RowCompressorTest.moc"
