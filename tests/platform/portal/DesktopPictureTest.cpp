// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/DesktopPicture.h"

#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace tessaly;

namespace {

QImage pattern(QSize size, int blue)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x * 5 % 256, y * 7 % 256, blue));
    }
    return image;
}

/// The largest difference of a channel; 256 for pictures of different size.
int difference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor one = a.pixelColor(x, y), other = b.pixelColor(x, y);
            largest = std::max({ largest, std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                std::abs(one.blue() - other.blue()) });
        }
    }
    return largest;
}

using Displays = QList<tessaly::Display>;

/// Whether a picture of that scale has the display's own pixels.
bool isOwn(const tessaly::Display &display, double scale) { return std::abs(display.scale - scale) < 0.1; }

} // namespace

class DesktopPictureTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// Each desktop is composed as a compositor does it: every display enlarged to the largest scale.
    void everyDisplayIsCutAtItsOwnPixels_data()
    {
        QTest::addColumn<Displays>("displays");
        QTest::addColumn<double>("scale"); // of the picture
        const auto display = [](const char *name, QRect layout, QSize pixels) {
            return tessaly::Display { name, layout, pixels, double(pixels.width()) / layout.width(), false };
        };
        const tessaly::Display plain = display("A", { 0, 0, 40, 30 }, { 40, 30 });
        QTest::newRow("one") << Displays { plain } << 1.0;
        QTest::newRow("one of scale 1.5") << Displays { display("A", { 0, 0, 40, 30 }, { 60, 45 }) } << 1.5;
        QTest::newRow("beside each other, 1 and 2")
            << Displays { plain, display("B", { 40, 0, 20, 15 }, { 40, 30 }) } << 2.0;
        QTest::newRow("negative origin, L-shape") << Displays { plain, display("B", { -20, 30, 20, 10 }, { 40, 20 }),
            display("C", { 0, 30, 16, 16 }, { 32, 32 }) }
                                                  << 2.0;
        QTest::newRow("sizes rounded to whole layout units") << Displays { display("A", { 0, 0, 27, 18 }, { 40, 27 }),
            display("B", { 27, 0, 27, 18 }, { 40, 27 }) } << 1.5;
    }

    void everyDisplayIsCutAtItsOwnPixels()
    {
        QFETCH(Displays, displays);
        QFETCH(double, scale);
        QRect layout;
        for (const tessaly::Display &each : displays)
            layout |= each.layoutRect;
        QImage picture(layout.size() * scale, QImage::Format_RGB32);
        QPainter painter(&picture);
        for (qsizetype i = 0; i < displays.size(); ++i) {
            const QRect place = displays[i].layoutRect.translated(-layout.topLeft());
            const QPoint at = (QPointF(place.topLeft()) * scale).toPoint();
            const QSize size = isOwn(displays[i], scale) ? displays[i].pixelSize : place.size() * scale;
            painter.drawImage(QRect(at, size), pattern(displays[i].pixelSize, int(i) * 60));
        }
        painter.end();
        for (qsizetype i = 0; i < displays.size(); ++i) {
            const auto cut = DesktopPicture::cut(picture, displays, displays[i]);
            QVERIFY(cut);
            const bool own = isOwn(displays[i], scale);
            QVERIFY(difference(*cut, pattern(displays[i].pixelSize, int(i) * 60)) <= (own ? 0 : 1));
        }
    }

    void whatIsNoWholeDesktopIsRefused_data()
    {
        QTest::addColumn<QSize>("pixelSize");
        QTest::addColumn<bool>("usable");
        QTest::newRow("whole") << QSize(160, 60) << true;
        QTest::newRow("rounded") << QSize(160, 61) << true;
        QTest::newRow("true scale below Qt's") << QSize(120, 45) << true;
        QTest::newRow("a part of the same shape") << QSize(40, 15) << false;
        QTest::newRow("one display") << QSize(80, 60) << false;
        QTest::newRow("larger than any") << QSize(320, 120) << false;
    }

    void whatIsNoWholeDesktopIsRefused()
    {
        QFETCH(QSize, pixelSize);
        const Displays displays { { "A", { 0, 0, 40, 30 }, { 80, 60 }, 2, true },
            { "B", { 40, 0, 40, 30 }, { 80, 60 }, 2, false } };
        const auto cut = DesktopPicture::cut(pattern(pixelSize, 0), displays, displays[1]);
        QTEST(static_cast<bool>(cut), "usable");
        QVERIFY(!cut || cut->size() == QSize(80, 60));
    }

    void theFileIsTakenAway_data()
    {
        QTest::addColumn<bool>("link");
        QTest::addColumn<QByteArray>("content"); // a picture where empty
        QTest::addColumn<bool>("readable");
        QTest::newRow("own file") << false << QByteArray() << true;
        QTest::newRow("a link is not the portal's own") << true << QByteArray() << true;
        QTest::newRow("broken") << false << QByteArray("\x89PNG\r\n\x1a\nnothing") << false;
    }

    void theFileIsTakenAway()
    {
        QFETCH(bool, link);
        QFETCH(QByteArray, content);
        QTemporaryDir folder;
        const QString path = folder.filePath("picture.png"), linkPath = folder.filePath("link.png");
        QVERIFY(pattern({ 9, 7 }, 3).save(path));
        QFile file(path);
        if (!content.isEmpty())
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(content) == content.size());
        file.close();
        if (link)
            QVERIFY(QFile::link(path, linkPath));
        const auto picture = DesktopPicture::takeFile(QUrl::fromLocalFile(link ? linkPath : path).toString());
        QTEST(static_cast<bool>(picture), "readable");
        QVERIFY(!picture || *picture == pattern({ 9, 7 }, 3));
        QCOMPARE(QFile::exists(path), link);
        QCOMPARE(QFile::exists(linkPath), link);
    }
};

QTEST_GUILESS_MAIN(DesktopPictureTest)
#include "DesktopPictureTest.moc"
