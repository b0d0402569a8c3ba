// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/PngDecoder.h"
#include "core/Imaging/ImageReading.h"
#include "tests/support/PngFile.h"

#include <QColorSpace>
#include <QRandomGenerator>
#include <QTest>

#include <array>

using namespace tessaly;
using test::pngChunk;

namespace {

enum Color { Grey = 0, Rgb = 2, Palette = 3, GreyAlpha = 4, Rgba = 6 };

int samplesOf(Color color)
{
    constexpr std::array samples { 1, 0, 3, 1, 2, 0, 4 };
    return samples[color];
}

struct File {
    Color color = Rgb;
    QSize size { 31, 22 };
    std::optional<int> filter; ///< of every row; else a random one
    int dataChunks = 1;
    QByteArray extra; ///< chunks before the data
    char depth = 8;
    char interlaced = 0;
};

/// A valid file whose rows are random bytes, smooth or rough, with some transparency.
QByteArray made(const File &file, QRandomGenerator &random)
{
    QByteArray rows;
    const int rowBytes = file.size.width() * samplesOf(file.color) * file.depth / 8;
    for (int y = 0; y < file.size.height(); ++y) {
        rows += char(file.filter.value_or(random.bounded(5)));
        const quint32 range = random.bounded(3) ? 256 : 4;
        for (int index = 0; index < rowBytes; ++index) {
            const bool opaque = file.color == Rgba && index % 4 == 3 && y % 3 == 0;
            rows += char(opaque ? 255 * (y == 0 || file.filter == 0) : random.bounded(range));
        }
    }
    const char format[] = { file.depth, char(file.color), 0, 0, file.interlaced };
    QByteArray bytes = test::pngHeader(quint32(file.size.width()), quint32(file.size.height()), QByteArray(format, 5));
    bytes += file.extra;
    const QByteArray data = test::pngData(rows);
    const qsizetype part = data.size() / file.dataChunks + 1;
    for (qsizetype at = 0; at < data.size(); at += part)
        bytes += pngChunk("IDAT", data.mid(at, part));
    return bytes + pngChunk("IEND", {});
}

QByteArray palette(int colors)
{
    QByteArray entries;
    for (int index = 0; index < colors * 3; ++index)
        entries += char(index * 37);
    return pngChunk("PLTE", entries);
}

/// What Qt makes of the file, in the format that is wanted.
QImage byQt(const QByteArray &file)
{
    QImage image = QImage::fromData(file, "png");
    image.setColorSpace({});
    return RasterImage::fromPixels(image).pixels;
}

const QByteArray gammaOfSrgb = pngChunk("gAMA", QByteArray::fromHex("0000b18f"));
const QByteArray srgb = pngChunk("sRGB", QByteArray(1, '\0'));

} // namespace

class PngDecoderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsWhatQtReads_data()
    {
        QTest::addColumn<File>("file");
        for (const Color color : { Grey, Rgb, GreyAlpha, Rgba, Palette }) {
            const QByteArray extra = color == Palette ? palette(256) : QByteArray();
            for (int filter = 0; filter < 5; ++filter)
                QTest::addRow("colour %d, filter %d", color, filter) << File { color, { 33, 9 }, filter, 1, extra };
            for (const QSize size : { QSize(1, 1), QSize(1, 40), QSize(40, 1), QSize(257, 63) })
                QTest::addRow("colour %d, %d × %d", color, size.width(), size.height())
                    << File { color, size, std::nullopt, 3, extra };
        }
        const QByteArray clear = pngChunk("tRNS", QByteArray("\x00\x80\xff\x40", 4));
        QTest::newRow("translucent palette") << File { Palette, { 40, 40 }, {}, 2, palette(256) + clear };
        QTest::newRow("opaque tRNS") << File { Palette, { 40, 40 }, {}, 1,
            palette(256) + pngChunk("tRNS", QByteArray("\xff\xff", 2)) };
        QTest::newRow("sRGB, in two ways") << File { .extra = srgb + gammaOfSrgb };
        QTest::newRow("a hint of colours, a time, a text")
            << File { .extra = palette(9) + pngChunk("tEXt", QByteArray("a\0b", 3))
                       + pngChunk("tIME", QByteArray(7, '\1')) + pngChunk("sBIT", QByteArray("\5\6\5", 3)) };
    }

    void readsWhatQtReads()
    {
        QFETCH(File, file);
        QRandomGenerator random(7);
        for (int round = 0; round < 10; ++round) {
            const QByteArray bytes = made(file, random);
            const QImage image = decodePng(bytes, 1 << 24), expected = byQt(bytes);
            QVERIFY(!image.isNull());
            QCOMPARE(image.format(), expected.format());
            QCOMPARE(image, expected);
        }
    }

    void leavesToQt_data()
    {
        QTest::addColumn<File>("file");
        QTest::newRow("16 bits") << File { .depth = 16 };
        QTest::newRow("4 bits") << File { .color = Grey, .size = { 32, 9 }, .depth = 4 };
        QTest::newRow("interlaced") << File { .size = { 1, 1 }, .filter = 0, .interlaced = 1 };
        QTest::newRow("clear colour") << File { .extra = pngChunk("tRNS", QByteArray(6, '\0')) };
        QTest::newRow("gamma alone") << File { .extra = gammaOfSrgb };
        QTest::newRow("another gamma") << File { .extra = srgb + pngChunk("gAMA", QByteArray::fromHex("000186a0")) };
        QTest::newRow("primaries alone") << File { .extra
            = pngChunk("cHRM",
                QByteArray::fromHex("00007a2500008084000102"
                                    "40000080e8000075300000ea600000 3a9800001770")) };
        QTest::newRow("profile") << File { .extra = pngChunk("iCCP", QByteArray("x\0\0x", 4)) };
        QTest::newRow("fewer colours than are used") << File { .color = Palette, .filter = 0, .extra = palette(3) };
        QTest::newRow("unknown necessary chunk") << File { .extra = pngChunk("ABCD", "x") };
        QTest::newRow("no such filter") << File { .filter = 5 };
    }

    void leavesToQt()
    {
        QFETCH(File, file);
        QRandomGenerator random(3);
        QVERIFY(decodePng(made(file, random), 1 << 24).isNull());
    }

    /// Whatever is done to a file: what is read here is what Qt would read.
    void damagedFilesAreNeverReadDifferently()
    {
        QRandomGenerator random(11);
        int read = 0;
        for (int round = 0; round < 3000; ++round) {
            const Color color = std::array { Grey, Rgb, GreyAlpha, Rgba, Palette }[random.bounded(5)];
            QByteArray file = made({ color, { 9, 8 }, {}, 2, color == Palette ? palette(256) : srgb }, random);
            if (random.bounded(4) == 0)
                file.truncate(random.bounded(file.size()));
            for (quint32 flips = random.bounded(1, 4); flips > 0 && !file.isEmpty(); --flips) {
                const qsizetype at = random.bounded(file.size());
                file[at] = char(file[at] ^ (1 << random.bounded(8)));
            }
            if (random.bounded(2)) // the checksums set right, so that the damage goes deeper
                file = withRightChecksums(file);
            const QImage image = decodePng(file, 1 << 24);
            if (image.isNull())
                continue;
            ++read;
            QVERIFY2(image == byQt(file), file.toHex().constData());
        }
        QVERIFY(read > 20);
    }

private:
    static QByteArray withRightChecksums(const QByteArray &file)
    {
        QByteArray fixed = file.left(8);
        for (qsizetype at = 8; at + 12 <= file.size();) {
            const qsizetype length = qFromBigEndian<quint32>(file.constData() + at);
            if (at + 12 + length > file.size())
                break;
            fixed += pngChunk(file.mid(at + 4, 4), file.mid(at + 8, length));
            at += 12 + length;
        }
        return fixed;
    }
};

QTEST_GUILESS_MAIN(PngDecoderTest)
#include "PngDecoderTest.moc"
