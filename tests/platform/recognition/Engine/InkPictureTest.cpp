// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/InkPicture.h"
#include "platform/recognition/Engine/TextLines.h"

#include <QPainter>
#include <QTest>

using namespace tessaly;

/// Ink and lines of small drawn pictures; letters are blocks.
class InkPictureTest : public QObject {
    Q_OBJECT

    static constexpr QSize letter { 6, 9 };

    /// A row of letters, `count` of them from `at` on, in words of five.
    static void write(QPainter &painter, QPoint at, int count, QColor color)
    {
        for (int i = 0; i < count; ++i)
            painter.fillRect(QRect(at + QPoint(8 * i + 6 * (i / 5), 0), letter), color);
    }

    static QImage page(const std::function<void(QPainter &)> &paint)
    {
        QImage picture(300, 200, QImage::Format_Grayscale8);
        picture.fill(250);
        QPainter painter(&picture);
        paint(painter);
        return picture;
    }

    static int inkAt(const QImage &ink, int x, int y) { return ink.constScanLine(y)[x]; }

private Q_SLOTS:
    void darkAndLightTextAreAlike()
    {
        const QImage ink = inkPicture(page([](QPainter &painter) {
            painter.fillRect(0, 0, 120, 200, QColor(40, 40, 40));
            write(painter, { 10, 50 }, 10, QColor(200, 200, 200)); // ends near the panel's edge
            write(painter, { 150, 50 }, 10, QColor(90, 90, 90));
        }));
        QCOMPARE(inkAt(ink, 12, 54), 160);
        QCOMPARE(inkAt(ink, 152, 54), 160);
        for (const int x : { 5, 105, 118, 121, 140, 290 })
            QVERIFY2(inkAt(ink, x, 54) <= 1, qPrintable(QString::number(x)));
    }

    void gradientsAndNoiseAreBackground()
    {
        const QImage ink = inkPicture(page([](QPainter &painter) {
            QLinearGradient gradient(0, 0, 0, 200);
            gradient.setColorAt(0, QColor(250, 250, 250));
            gradient.setColorAt(1, QColor(150, 150, 150));
            painter.fillRect(0, 0, 300, 200, gradient);
            for (int y = 0; y < 200; y += 2) {
                for (int x = 150 + y % 4; x < 300; x += 4)
                    painter.fillRect(x, y, 1, 1, QColor(200 - y / 4, 200 - y / 4, 200 - y / 4));
            }
            write(painter, { 20, 100 }, 10, Qt::black);
        }));
        QVERIFY(inkAt(ink, 22, 104) > 150);
        QVERIFY(inkAt(ink, 10, 150) < 8);
        QVERIFY(inkAt(ink, 250, 150) < 60);
    }

    void findsLines_data()
    {
        QTest::addColumn<std::function<void(QPainter &)>>("paint");
        QTest::addColumn<QList<QRect>>("boxes");
        using Paint = std::function<void(QPainter &)>;

        QTest::newRow("two close lines") << Paint([](QPainter &painter) {
            write(painter, { 20, 20 }, 10, Qt::black);
            write(painter, { 20, 33 }, 5, Qt::gray);
        }) << QList<QRect> { { 20, 20, 84, 9 }, { 20, 33, 38, 9 } };
        QTest::newRow("two columns") << Paint([](QPainter &painter) {
            write(painter, { 20, 20 }, 5, Qt::black);
            write(painter, { 200, 20 }, 5, Qt::black);
        }) << QList<QRect> { { 20, 20, 38, 9 }, { 200, 20, 38, 9 } };
        QTest::newRow("a comma belongs to its line") << Paint([](QPainter &painter) {
            write(painter, { 20, 20 }, 5, Qt::black);
            painter.fillRect(60, 27, 2, 4, Qt::black);
            write(painter, { 70, 20 }, 5, Qt::black);
        }) << QList<QRect> { { 20, 20, 88, 11 } };
        QTest::newRow("the frame of a button is none") << Paint([](QPainter &painter) {
            painter.setPen(Qt::black);
            painter.drawRoundedRect(12, 12, 60, 22, 4, 4);
            write(painter, { 20, 20 }, 5, Qt::black);
        }) << QList<QRect> { { 20, 20, 38, 9 } };
        QTest::newRow("nothing") << Paint([](QPainter &) {}) << QList<QRect>();
    }

    void findsLines()
    {
        QFETCH(std::function<void(QPainter &)>, paint);
        QFETCH(QList<QRect>, boxes);
        QList<QRect> found;
        for (const TextLine &line : textLines(inkPicture(page(paint))))
            found += line.box;
        QCOMPARE(found, boxes);
    }

    void smallestPictures()
    {
        for (const QSize size : { QSize(1, 1), QSize(3, 200), QSize(200, 2) }) {
            QImage picture(size, QImage::Format_Grayscale8);
            picture.fill(90);
            QVERIFY(textLines(inkPicture(picture)).isEmpty());
        }
        QVERIFY(inkPicture({}).isNull());
    }
};

QTEST_GUILESS_MAIN(InkPictureTest)
#include "InkPictureTest.moc"
