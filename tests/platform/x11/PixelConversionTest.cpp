// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/PixelConversion.h"
#include "tests/support/Rows.h"

using namespace tessaly;

class PixelConversionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsTrueColorLayouts_data()
    {
        test::columns<int, QList<uint>, uint, QRgb>("bitsPerPixel", "masks", "pixel", "expected");

        test::row("RGB565 white", 16, QList<uint> { 0xf800, 0x07e0, 0x001f }, 0xffffu, 0xffffffffu);
        test::row("RGB565 half green", 16, QList<uint> { 0xf800, 0x07e0, 0x001f }, 0x0400u, 0xff008200u);
        test::row("30 bits, red only", 32, QList<uint> { 0x3ff00000, 0xffc00, 0x3ff }, 0x3ff00000u, 0xffff0000u);
        test::row("blue first", 32, QList<uint> { 0xff, 0xff00, 0xff0000 }, 0xAB112233u, 0xff332211u);
    }

    void readsTrueColorLayouts()
    {
        QFETCH(int, bitsPerPixel);
        QFETCH(QList<uint>, masks);
        QFETCH(uint, pixel);
        const QImage picture = PixelConversion::toRgb32(
            reinterpret_cast<const uchar *>(&pixel), 4, { 1, 1 }, { bitsPerPixel, masks[0], masks[1], masks[2] });
        QTEST(picture.pixel(0, 0), "expected");
    }

    void refusesWhatIsNotTrueColor()
    {
        const uint pixel = 0;
        const auto *bytes = reinterpret_cast<const uchar *>(&pixel);
        QVERIFY(PixelConversion::toRgb32(bytes, 4, { 1, 1 }, { 8, 0, 0, 0 }).isNull());
        QVERIFY(PixelConversion::toRgb32(bytes, 4, { 1, 1 }, { 24, 0xff0000, 0xff00, 0xff }).isNull());
    }

    void opensEveryPixel()
    {
        // A prime count, so that no split into equal pieces fits.
        QList<uint> pixels(100'003, 0x00123456u);
        PixelConversion::makeOpaque(reinterpret_cast<uchar *>(pixels.data()), static_cast<size_t>(pixels.size()));
        QCOMPARE(pixels.count(0xff123456u), pixels.size());
    }
};

QTEST_GUILESS_MAIN(PixelConversionTest)
#include "PixelConversionTest.moc"
