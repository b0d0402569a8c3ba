// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/PackedPicture.h"
#include "tests/support/SamplePictures.h"

#include <QTest>

#include <cstring>

using namespace tessaly;

class PackedPictureTest : public QObject {
    Q_OBJECT

    static bool sameBytes(const QImage &one, const QImage &other)
    {
        bool same = one.size() == other.size() && one.format() == other.format();
        for (int y = 0; same && y < one.height(); ++y)
            same = std::memcmp(one.constScanLine(y), other.constScanLine(y), size_t(one.width()) * 4) == 0;
        return same;
    }

private Q_SLOTS:
    void everyByteComesBack_data()
    {
        QTest::addColumn<QImage>("image");
        using test::Transparency;
        for (const QSize size : { QSize(1, 1), QSize(7, 64), QSize(301, 65), QSize(120, 300) }) {
            for (const auto transparency : { Transparency::None, Transparency::Binary, Transparency::Soft })
                QTest::addRow("%d × %d, %d", size.width(), size.height(), int(transparency))
                    << test::samplePicture(size, transparency);
        }
        QImage unused = test::samplePicture({ 50, 50 }, Transparency::None);
        reinterpret_cast<QRgb *>(unused.scanLine(20))[3] = 0x00123456; // what nobody sees stays, too
        QTest::newRow("an opaque format with a stray alpha") << unused;
    }

    void everyByteComesBack()
    {
        QFETCH(QImage, image);
        const auto packed = PackedPicture::pack(image);
        QVERIFY(packed);
        for (const int threads : { 1, 3 })
            QVERIFY(sameBytes(packed->unpacked(threads), image));
    }

    void takesLess()
    {
        QImage flat(400, 300, QImage::Format_RGB32);
        flat.fill(Qt::darkCyan);
        QVERIFY(PackedPicture::pack(flat)->byteCount() * 100 < flat.sizeInBytes());
    }

    void isNotMade()
    {
        Cancellation cancelled;
        cancelled.cancel();
        QVERIFY(!PackedPicture::pack(test::samplePicture({ 9, 9 }, test::Transparency::None), cancelled));
        QVERIFY(!PackedPicture::pack(QImage(9, 9, QImage::Format_Indexed8)));
        QVERIFY(!PackedPicture::pack(QImage()));
    }
};

QTEST_GUILESS_MAIN(PackedPictureTest)
#include "PackedPictureTest.moc"
