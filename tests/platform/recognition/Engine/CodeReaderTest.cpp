// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/CodeReader.h"

#include <QPainter>
#include <QTest>
#include <QTransform>

#include <ZXing/BarcodeFormat.h>
#include <ZXing/BitMatrix.h>
#include <ZXing/CharacterSet.h>
#include <ZXing/MultiFormatWriter.h>

using namespace tessaly;
using Format = ZXing::BarcodeFormat;

Q_DECLARE_METATYPE(ZXing::BarcodeFormat)

class CodeReaderTest : public QObject {
    Q_OBJECT

    /// A code with its quiet zone, `module` pixels a module.
    static QImage codeOf(Format format, const QString &payload, int module = 3)
    {
        const bool linear = ZXing::BarcodeFormats(ZXing::BarcodeFormat::LinearCodes).testFlag(format);
        const ZXing::BitMatrix bits = ZXing::MultiFormatWriter(format)
                                          .setMargin(linear ? 10 : 4)
                                          .setEncoding(ZXing::CharacterSet::UTF8)
                                          .encode(payload.toStdWString(), 0, linear ? 20 : 0);
        QImage picture(bits.width(), bits.height(), QImage::Format_Grayscale8);
        for (int y = 0; y < bits.height(); ++y) {
            for (int x = 0; x < bits.width(); ++x)
                picture.scanLine(y)[x] = bits.get(x, y) ? 0 : 255;
        }
        return picture.scaled(picture.size() * module);
    }

    /// A page with rows of text and the codes at these places.
    static QImage pageWith(const QList<std::pair<QPoint, QImage>> &codes)
    {
        QImage page(700, 500, QImage::Format_Grayscale8);
        page.fill(255);
        QPainter painter(&page);
        for (int y = 20; y < 500; y += 18)
            painter.drawText(
                5, y, QStringLiteral("The quick brown fox jumps over the lazy dog, 12345 times. ").repeated(2));
        for (const auto &[place, code] : codes)
            painter.drawImage(place, code);
        return page;
    }

private Q_SLOTS:
    void readsEachKind_data()
    {
        QTest::addColumn<Format>("format");
        QTest::addColumn<QString>("payload");
        QTest::addColumn<int>("smallestModule");
        QTest::addColumn<int>("arrangements"); // 4: small; 8: light on dark, too; 16: larger, too
        QTest::newRow("QR") << Format::QRCode << "https://example.org/?q=1" << 1 << 16;
        QTest::newRow("QR with other scripts") << Format::QRCode << QString::fromUtf8("Grüße, Ελλάδα, 東京") << 1 << 16;
        QTest::newRow("Data Matrix") << Format::DataMatrix << "DM 12345" << 1 << 16;
        QTest::newRow("Aztec") << Format::Aztec << "Aztec 12345" << 1 << 16;
        QTest::newRow("PDF417") << Format::PDF417 << "PDF417 of some length" << 3 << 8;
        QTest::newRow("Code 128") << Format::Code128 << "C128-0042" << 1 << 16;
        QTest::newRow("EAN-13") << Format::EAN13 << "4006381333931" << 2 << 4;
    }

    /// At each right angle, in the middle and near a corner, dark on light and light on dark, small and large.
    void readsEachKind()
    {
        QFETCH(Format, format);
        QFETCH(QString, payload);
        QFETCH(int, smallestModule);
        QFETCH(int, arrangements);
        for (int number = 0; number < arrangements; ++number) {
            const int angle = number % 4 * 90, module = number < 8 ? smallestModule : smallestModule + 1;
            const bool isInverted = number / 4 % 2 == 1, isInCorner = (number + number / 4) % 2 == 1;
            QImage code = codeOf(format, payload, module)
                              .transformed(QTransform().rotate(angle))
                              .convertToFormat(QImage::Format_Grayscale8);
            if (isInverted)
                code.invertPixels();
            const QPoint at = isInCorner ? QPoint(690 - code.width(), 490 - code.height())
                                         : QPoint(350 - code.width() / 2, 250 - code.height() / 2);
            const auto codes = readCodes(pageWith({ { at, code } }));
            const QByteArray which = QByteArray::number(angle) + " degrees, " + QByteArray::number(module)
                + (isInverted ? " pixels, inverted" : " pixels") + (isInCorner ? ", corner" : "");
            QVERIFY2(!codes.isEmpty(), which.constData());
            QCOMPARE(codes.first().payload, payload);
            QCOMPARE(codes.first().isQR, format == Format::QRCode);
            const QRectF place(at.x() / 700.0, at.y() / 500.0, code.width() / 700.0, code.height() / 500.0);
            QVERIFY2(place.contains(codes.first().boundingBox.center()), which.constData());
        }
    }

    void readsSeveralAndInvertedOnes()
    {
        QImage inverted = codeOf(Format::QRCode, QStringLiteral("white on black"));
        inverted.invertPixels();
        const auto codes = RecognizedContent::arranged({},
            readCodes(pageWith({ { { 20, 20 }, codeOf(Format::QRCode, QStringLiteral("first")) },
                { { 400, 20 }, inverted }, { { 100, 300 }, codeOf(Format::Code128, QStringLiteral("third")) } })))
                               .codes;
        QStringList payloads;
        for (const auto &code : codes)
            payloads += code.payload;
        payloads.sort();
        QCOMPARE(payloads,
            QStringList({ QStringLiteral("first"), QStringLiteral("third"), QStringLiteral("white on black") }));
    }

    void readsSmallOnes()
    {
        const auto codes = readCodes(
            pageWith({ { { 300, 200 }, codeOf(Format::QRCode, QStringLiteral("https://example.org"), 1) } }));
        QCOMPARE(codes.size(), 1);
        QCOMPARE(codes.first().payload, QStringLiteral("https://example.org"));
    }

    void findsNoneInText() { QVERIFY(readCodes(pageWith({})).isEmpty()); }
};

QTEST_MAIN(CodeReaderTest)
#include "CodeReaderTest.moc"
