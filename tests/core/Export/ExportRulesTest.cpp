// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/DragFile.h"
#include "core/Export/ExportFormat.h"
#include "core/Export/JpegFactor.h"
#include "core/Export/WebPEncoder.h"
#include "core/Preferences/Settings.h"

#include <QLocale>
#include <QTemporaryDir>
#include <QtEndian>
#include <QTest>

#include <limits>

using namespace tessaly;

namespace {

class FixedClock final : public Clock {
public:
    explicit FixedClock(QDateTime moment) : m_moment(std::move(moment)) { }
    QDateTime now() const override { return m_moment; }

private:
    QDateTime m_moment;
};

} // namespace

class ExportRulesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void jpegFactorFollowsTheTable_data()
    {
        QTest::addColumn<double>("quality");
        QTest::addColumn<double>("factor");
        QTest::newRow("nothing") << 0.0 << 0.10;
        QTest::newRow("below") << -3.0 << 0.10;
        QTest::newRow("above") << 7.0 << 1.0;
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0.10;
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 1.0;
        QTest::newRow("halfway in the first stretch") << 0.15 << 0.155;
        QTest::newRow("a point") << 0.3 << 0.21;
        QTest::newRow("just over a point") << 0.31 << 0.218;
        QTest::newRow("default") << 0.9 << 0.69;
        QTest::newRow("steep end") << 0.925 << 0.77;
        QTest::newRow("near the top") << 0.99 << 0.97;
        QTest::newRow("top") << 1.0 << 1.0;
    }

    void jpegFactorFollowsTheTable()
    {
        QFETCH(double, quality);
        QFETCH(double, factor);
        QVERIFY2(std::abs(jpegFactor(quality) - factor) < 1e-9, qPrintable(QString::number(jpegFactor(quality))));
    }

    void webpRecordsOnlyAResolutionThatDiffers_data()
    {
        QTest::addColumn<double>("dpi");
        QTest::addColumn<quint32>("thousandths"); // 0 for no record
        QTest::newRow("72") << 72.0 << 0u;
        QTest::newRow("within half a dot") << 72.5 << 0u;
        QTest::newRow("beyond half a dot") << 72.6 << 72600u;
        QTest::newRow("twice") << 144.0 << 144000u;
        QTest::newRow("rounded") << 100.0004 << 100000u;
        QTest::newRow("none") << 0.0 << 0u;
        QTest::newRow("negative") << -144.0 << 0u;
        QTest::newRow("beyond the record") << 1e7 << 0u;
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0u;
    }

    void webpRecordsOnlyAResolutionThatDiffers()
    {
        QFETCH(double, dpi);
        QFETCH(quint32, thousandths);
        QImage pixels(4, 3, QImage::Format_RGB32);
        pixels.fill(Qt::blue);
        const QByteArray plain = *WebPEncoder::encode(RasterImage::fromPixels(pixels), { .quality = 1 });
        const QByteArray file = WebPEncoder::withResolution(plain, dpi);
        QCOMPARE(file.contains("EXIF"), thousandths > 0);
        if (thousandths == 0)
            return;
        const QByteArray record = file.mid(file.indexOf("EXIF") + 8);
        QCOMPARE(record.size(), 66);
        QCOMPARE(record, WebPEncoder::exifResolution(dpi));
        for (const int offset : { 50, 58 }) {
            QCOMPARE(qFromLittleEndian<quint32>(record.constData() + offset), thousandths);
            QCOMPARE(qFromLittleEndian<quint32>(record.constData() + offset + 4), 1000u);
        }
        const QByteArray directory = QByteArray::fromHex("49492a00080000000300"
                                                         "1a0105000100000032000000"
                                                         "1b010500010000003a000000"
                                                         "280103000100000002000000"
                                                         "00000000");
        QCOMPARE(record.left(50).toHex(), directory.toHex());
    }

    void damagedWebpStaysAsItIs()
    {
        QCOMPARE(WebPEncoder::withResolution("no picture", 144), QByteArray("no picture"));
    }

    void extensionsNameTheirFormat_data()
    {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<int>("format"); // -1 for none
        const auto row
            = [](const char *text, int format) { QTest::newRow(text) << QString::fromLatin1(text) << format; };
        row("png", int(ExportFormat::Png));
        row("jpg", int(ExportFormat::Jpeg));
        row("JPEG", int(ExportFormat::Jpeg));
        row("tif", int(ExportFormat::Tiff));
        row("TIFF", int(ExportFormat::Tiff));
        row("WebP", int(ExportFormat::Webp));
        row("heic", -1);
        row("", -1);
    }

    void extensionsNameTheirFormat()
    {
        QFETCH(QString, extension);
        QFETCH(int, format);
        const auto found = formatOfExtension(extension);
        QCOMPARE(found ? int(*found) : -1, format);
    }

    void labelsAndExtensions()
    {
        QStringList texts;
        for (const auto &row : enumNames<ExportFormat>)
            texts += label(row.value) + u'.' + extension(row.value) + QString(isLossy(row.value) ? 1 : 0, u'~');
        QCOMPARE(texts.join(u' '), QStringLiteral("PNG.png JPEG.jpg~ WebP.webp~ PDF.pdf TIFF.tiff GIF.gif BMP.bmp"));
    }

    void qualityIsStoredPerLossyFormat()
    {
        const QTemporaryDir folder;
        Settings settings(folder.filePath(QStringLiteral("settings.json")));
        QCOMPARE(storedQuality(ExportFormat::Jpeg, settings), 0.9);
        QVERIFY(storeQuality(ExportFormat::Jpeg, 0.45, settings) && storeQuality(ExportFormat::Webp, 1, settings));
        QVERIFY(storeQuality(ExportFormat::Png, 0.2, settings));
        QCOMPARE(storedQuality(ExportFormat::Jpeg, settings), 0.45);
        QCOMPARE(storedQuality(ExportFormat::Webp, settings), 1.0);
        QCOMPARE(storedQuality(ExportFormat::Png, settings), 1.0);
    }

    void unknownStoredFormatIsPng()
    {
        const QTemporaryDir folder;
        Settings settings(folder.filePath(QStringLiteral("settings.json")));
        QCOMPARE(storedFormat(settings), ExportFormat::Png);
        QVERIFY(settings.set(SettingKeys::exportFormat, QStringLiteral("gif")));
        QCOMPARE(storedFormat(settings), ExportFormat::Gif);
        QVERIFY(settings.set(SettingKeys::exportFormat, QStringLiteral("heic")));
        QCOMPARE(storedFormat(settings), ExportFormat::Png);
    }

    void draggedFileIsNamedAfterTheMoment()
    {
        QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt)); // other digits
        const FixedClock clock(QDateTime(QDate(2024, 5, 1), QTime(14, 3, 22)));
        QCOMPARE(dragFileName(clock), QStringLiteral("Tessaly 2024-05-01 at 14.03.22"));
        QLocale::setDefault(QLocale::c());
    }

    void onlyTheLastDraggedFileIsKept()
    {
        const QTemporaryDir folder;
        const auto first = writeDragFile("one", QStringLiteral("first.png"), folder.path());
        QVERIFY(first && QFile::exists(*first));
        const auto second = writeDragFile("two", QStringLiteral("second.png"), folder.path());
        QCOMPARE(*second, folder.filePath(QStringLiteral("Drag/second.png")));
        QVERIFY(QFile::exists(*second) && !QFile::exists(*first));
        QVERIFY(!writeDragFile("three", QStringLiteral("third.png"), QStringLiteral("/proc/no-such-folder")));
    }
};

QTEST_GUILESS_MAIN(ExportRulesTest)
#include "ExportRulesTest.moc"
