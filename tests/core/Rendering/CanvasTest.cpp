// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/PreparedCanvas.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/SampleMarks.h"

#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

using namespace tessaly;

namespace {

Annotation filledBox(const QRectF &rect, const char *color)
{
    Annotation mark(AnnotationKind::Rectangle, rect.topLeft(), rect.bottomRight());
    mark.filled = true;
    mark.colorHex = QLatin1StringView(color);
    return mark;
}

Annotation spotlight(const QRectF &rect, double dim)
{
    Annotation mark(AnnotationKind::Spotlight, rect.topLeft(), rect.bottomRight());
    mark.spotDim = dim;
    mark.spotEllipse = false;
    return mark;
}

Annotation loupe(const QRectF &rect)
{
    Annotation mark(AnnotationKind::Magnifier, rect.topLeft(), rect.bottomRight());
    mark.magnifierRound = false;
    return mark;
}

} // namespace

/// What all marks have in common: their order, what they see of each other, and how a picture is divided for threads.
class CanvasTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void laterMarksLieOnTopAndSpotlightsBelowAll()
    {
        const QImage picture = test::drawn(test::plainCapture({ 60, 40 }),
            { filledBox({ 0, 0, 30, 40 }, "#FF0000"), filledBox({ 20, 0, 20, 40 }, "#0000FF"),
                spotlight({ 45, 0, 5, 5 }, 0.5) });
        QCOMPARE(picture.pixel(10, 20), 0xffff0000u);
        QCOMPARE(picture.pixel(25, 20), 0xff0000ffu);
        QCOMPARE(picture.pixel(55, 20), 0xff7f7f7fu);
    }

    void spotlightsDimTogether()
    {
        const QImage picture = test::drawn(test::plainCapture({ 100, 60 }),
            { spotlight({ 10, 10, 50, 40 }, 0.2), spotlight({ 40, 10, 50, 40 }, 0.6) });
        QCOMPARE(qGreen(picture.pixel(5, 5)), 102); // the darkest of the two everywhere
        QCOMPARE(qGreen(picture.pixel(25, 30)), 255);
        QCOMPARE(qGreen(picture.pixel(75, 30)), 255);
        QCOMPARE(qGreen(picture.pixel(50, 30)), 102); // and again where the holes overlap
    }

    void highlightMultiplies_data()
    {
        QTest::addColumn<QColor>("below");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("white takes the colour") << QColor(255, 255, 255) << QColor(255, 255, 127);
        QTest::newRow("black stays") << QColor(0, 0, 0) << QColor(0, 0, 0);
        QTest::newRow("colours") << QColor(100, 200, 80) << QColor(100, 200, 40);
    }

    void highlightMultiplies()
    {
        QFETCH(QColor, below);
        QFETCH(QColor, expected);
        Annotation mark(AnnotationKind::Highlight, { 2, 2 }, { 17.5, 8 });
        mark.colorHex = QStringLiteral("#FFFF00");
        mark.highlightOpacity = 0.5;
        const RasterImage capture = test::plainCapture({ 21, 10 }, below);
        const QImage picture = test::drawn(capture, { mark });
        QCOMPARE(picture.pixelColor(10, 5), expected);
        QCOMPARE(picture.pixelColor(18, 5), below);
        QVERIFY(std::abs(picture.pixelColor(17, 5).blue() - (below.blue() + expected.blue()) / 2) <= 1);

        // The same through any painter, and over a transparent picture.
        QImage painted = capture.pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&painted);
        test::canvasOf(capture, { mark }).draw(painter);
        painter.end();
        QVERIFY(std::abs(painted.pixelColor(10, 5).blue() - expected.blue()) <= 1);
        RasterImage clear { QImage(21, 10, QImage::Format_ARGB32_Premultiplied), { 21, 10 } };
        clear.pixels.fill(Qt::transparent);
        QCOMPARE(test::drawn(clear, { mark }).pixelColor(10, 5).alpha(), 128);
    }

    void loupesShowWhatLiesBelowThem()
    {
        const QRectF box(40, 20, 40, 40);
        const Annotation below = filledBox({ 55, 35, 10, 10 }, "#FF0000");
        const Annotation above = filledBox({ 41, 21, 3, 3 }, "#00FF00");
        const RasterImage capture = test::plainCapture({ 120, 80 }, Qt::blue);
        const QImage picture = test::drawn(capture, { below, loupe(box.translated(1, 0)), loupe(box), above });
        // Magnified twice about (60, 40): the red box covers 50 to 70. Neither the other loupe's border nor what is
        // drawn later is inside.
        for (const QPoint point : { QPoint(52, 40), QPoint(67, 40), QPoint(60, 32), QPoint(60, 47) })
            QCOMPARE(picture.pixel(point), 0xffff0000u);
        for (const QPoint point : { QPoint(47, 40), QPoint(73, 40), QPoint(60, 53) })
            QCOMPARE(picture.pixel(point), 0xff0000ffu);
        QVERIFY(qRed(picture.pixel(60, 20)) > 200 && qGreen(picture.pixel(60, 20)) > 200);
    }

    void theEditedMarkIsNowhere()
    {
        const Annotation edited = filledBox({ 50, 30, 20, 20 }, "#FF0000");
        const RasterImage capture = test::plainCapture({ 120, 80 }, Qt::blue);
        AnnotationsCanvas canvas
            = test::canvasOf(capture, { edited, loupe({ 80, 20, 30, 30 }), loupe({ 45, 25, 30, 30 }) });
        canvas.editingID = edited.id;
        AnnotationsCanvas without = canvas;
        without.annotations.removeFirst();
        QCOMPARE(canvas.drawnOver(capture, { 120, 80 }, 1, 1), without.drawnOver(capture, { 120, 80 }, 1, 1));
    }

    void bandsAndThreadsChangeNoByte()
    {
        const RasterImage capture = test::noisyCapture({ 1440, 960 }, 1.5);
        const AnnotationsCanvas canvas = test::canvasOf(capture, test::manyMarks(120));
        const QImage whole = canvas.drawnOver(capture, capture.pixels.size(), 1.5, 1);
        for (const int threads : { 2, 3, 8 })
            QCOMPARE(canvas.drawnOver(capture, capture.pixels.size(), 1.5, threads), whole);

        const PixelGrid grid = PixelGrid::scaledBy(1.5);
        const PreparedCanvas prepared(canvas, grid, capture.pixels.size(), 2);
        for (const int rows : { 960, 61, 7 }) {
            QImage banded = capture.pixels.copy();
            for (int top = 0; top < banded.height(); top += rows)
                prepared.paint(banded, QRect(0, top, banded.width(), rows));

            QVERIFY2(banded == whole, qPrintable(QString::number(rows)));
        }
    }

    void theScreenAndTheFileAgree()
    {
        const RasterImage capture = test::noisyCapture({ 960, 640 });
        const AnnotationsCanvas canvas = test::canvasOf(capture, test::oneOfEachKind());
        QImage painted = capture.pixels.copy();
        QPainter painter(&painted);
        canvas.draw(painter);
        painter.end();
        const QImage flattened = canvas.drawnOver(capture, { 960, 640 }, 1, 2);
        int most = 0;
        double sum = 0;
        for (int y = 0; y < 640; ++y) {
            for (int x = 0; x < 960; ++x) {
                const int off = std::abs(qGreen(painted.pixel(x, y)) - qGreen(flattened.pixel(x, y)));
                most = std::max(most, off);
                sum += off;
            }
        }
        QVERIFY2(most <= 24, qPrintable(QString::number(most))); // the two round edges differently
        QVERIFY2(sum / (640 * 960) < 0.1, qPrintable(QString::number(sum)));
    }

    void badPicturesDrawNothing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no picture") << QByteArray("no picture");
        QTest::newRow("cut short") << test::samplePng({ 30, 30 }).left(60);
        QByteArray bomb = test::samplePng({ 30, 30 });
        bomb.replace(16, 8, QByteArray::fromHex("000fffff000fffff"));
        QTest::newRow("claims a million pixels a side") << bomb;
    }

    void badPicturesDrawNothing()
    {
        QFETCH(QByteArray, bytes);
        Annotation mark(AnnotationKind::ImageOverlay, { 2, 2 }, { 18, 18 });
        mark.imageData = bytes;
        const RasterImage capture = test::noisyCapture({ 20, 20 });
        QCOMPARE(test::drawn(capture, { mark }), capture.pixels);
    }

    /// Any stored numbers, each kind by itself and thousands at once, end in a picture.
    void survivesAnyNumbers()
    {
        QRandomGenerator random(20);
        const RasterImage capture = test::noisyCapture({ 64, 48 }, 2);
        for (int round = 0; round < 400; ++round) {
            const Annotation mark = test::randomMark(random);
            QVERIFY(!test::drawn(capture, { mark }, 2).isNull());
        }
        Annotation hugeLoupe = loupe({ -1e6, -1e6, 2e6, 2e6 });
        Annotation hugeRing(AnnotationKind::Ellipse, { -9e5, -9e5 }, { 9e5, 9e5 });
        Annotation hugeOverlay(AnnotationKind::ImageOverlay, { -1e6, -1e6 }, { 1e6, 1e6 });
        hugeOverlay.imageData = test::samplePng();
        const Annotation across(AnnotationKind::Line, { -1e6, -1e6 }, { 1e6, 1e6 });
        const QImage picture = test::drawn(capture, { hugeLoupe, hugeRing, across }, 2);
        QCOMPARE(picture.pixel(20, 20), 0xffff3366u);
        QVERIFY(!test::drawn(capture, { hugeOverlay }, 2).isNull());
    }

    void survivesFiftyThousandMarks()
    {
        const RasterImage capture = test::noisyCapture({ 960, 640 });
        QVERIFY(!test::drawn(capture, test::manyMarks(50'000)).isNull());
    }
};

QTEST_MAIN(CanvasTest)
#include "CanvasTest.moc"
