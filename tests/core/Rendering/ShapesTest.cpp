// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationGeometry.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/PictureText.h"
#include "tests/support/Rows.h"

using namespace tessaly;

namespace {

/// How many pixels' worth of black there is on white.
double inkOf(const QImage &picture)
{
    double ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ink += (255 - qGreen(picture.pixel(x, y))) / 255.0;
    }
    return ink;
}

Annotation black(AnnotationKind kind, QPointF from, QPointF to)
{
    Annotation mark(kind, from, to);
    mark.colorHex = QStringLiteral("#000000");
    return mark;
}

Annotation arrow(ArrowHeadStyle head, double width, QPointF from = { 20, 50 }, QPointF to = { 120, 50 })
{
    Annotation mark = black(AnnotationKind::Arrow, from, to);
    mark.arrowHead = head;
    mark.lineWidth = width;
    return mark;
}

} // namespace

/// Outlines of arrows and boxes, against areas worked out by hand and against small drawings.
class ShapesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fillsItsExactArea_data()
    {
        test::columns<Annotation, double>("mark", "area");
        constexpr double pi = std::numbers::pi;
        const double lean = std::sqrt(0.5);

        // Tail triangle of 82 × 8.4, head of 18 × 16.
        test::row("tapered, thin: the smallest head", arrow(ArrowHeadStyle::Tapered, 4), 82 * 4.2 + 18 * 16 / 2.0);
        test::row("tapered, wide", arrow(ArrowHeadStyle::Tapered, 10), 66 * 10.5 + 34 * 36 / 2.0);
        test::row("tapered, slanted and backwards",
            arrow(ArrowHeadStyle::Tapered, 4, QPointF(100, 90), QPointF(100 - 100 * lean, 90 - 100 * lean)),
            82 * 4.2 + 18 * 16 / 2.0);
        test::row("tapered without length: the head alone",
            arrow(ArrowHeadStyle::Tapered, 4, QPointF(60, 50), QPointF(60, 50)), 0.0);
        // The shaft is covered by the head from 88 on; its tail end is round.
        test::row("filled", arrow(ArrowHeadStyle::Filled, 4), 88 * 4 + 2 * pi + 12 * 11 / 2.0);
        // The head keeps 6.6 of its 12 in the middle; the shaft ends at 89.8 with another half disc, clear of the head.
        test::row("concave", arrow(ArrowHeadStyle::Concave, 4), 89.8 * 4 + 4 * pi + 6.6 * 11 / 2.0);
        test::row("line", black(AnnotationKind::Line, { 20, 50 }, { 120, 50 }), 400 + 4 * pi);
        test::row("line without length: a dot", black(AnnotationKind::Line, { 60, 50 }, { 60, 50 }), 4 * pi);

        Annotation pen = black(AnnotationKind::Pen, {}, {});
        pen.points = { { 20, 50 }, { 20, 50 }, { 120, 50 }, { 40, 50 } };
        test::row("pen: a stroke over itself is filled once", pen, 400 + 4 * pi);
        Annotation box = black(AnnotationKind::Ellipse, { 120, 80 }, { 20, 20 });
        box.filled = true;
        test::row("ellipse dragged from the bottom right", box, pi * 50 * 30);
        box.filled = false;
        box.lineWidth = 2;
        box.p1 = { 100, 100 };
        test::row("ring", box, pi * (41 * 41 - 39 * 39));
        test::row("pen without points", black(AnnotationKind::Pen, { 20, 20 }, { 90, 90 }), 0.0);
    }

    void fillsItsExactArea()
    {
        QFETCH(Annotation, mark);
        QFETCH(double, area);
        for (const double scale : { 1.0, 2.0 }) {
            const double ink
                = inkOf(test::drawn(test::plainCapture({ 140, 120 }, Qt::white, int(scale)), { mark }, scale));
            if (area > 0)
                QVERIFY2(std::abs(ink / (scale * scale) - area) < 0.004 * area + 0.5, qPrintable(QString::number(ink)));
        }
    }

    void doubleHeadsAndCurves_data()
    {
        test::columns<Annotation, QList<QPointF>, QList<QPointF>>("mark", "inked", "blank");
        using Points = QList<QPointF>;

        Annotation twin = arrow(ArrowHeadStyle::Tapered, 10);
        twin.doubleHeaded = true;
        // Heads of 34 × 36 at both ends; a straight shaft has no points but its ends, so it is as wide as there.
        test::row("tapered twin", twin, Points { { 53, 66 }, { 87, 34 }, { 70, 59.5 } },
            Points { { 70, 62 }, { 70, 38 }, { 56, 62 }, { 16, 50 } });
        Annotation bow = arrow(ArrowHeadStyle::Tapered, 10, { 20, 100 }, { 320, 100 });
        bow.curved = bow.doubleHeaded = true;
        // The curve runs level at 34 in the middle, where it is 0.55 · 10.5 wide on either side.
        test::row("tapered bow", bow, Points { { 170, 39 }, { 170, 29 } }, Points { { 170, 41 }, { 170, 27 } });
        Annotation curve = arrow(ArrowHeadStyle::Filled, 4, { 20, 100 }, { 120, 100 });
        curve.curved = true;
        // The handle lies 0.22 of the length above the middle; the head follows the end of the curve.
        test::row("curve bends over its handle", curve, Points { { 70, 78 }, { 118, 98.5 }, { 45, 83.5 } },
            Points { { 70, 100 }, { 70, 74 }, { 100, 100 } });
        curve.curveHandle = { 0.5, 0.22 };
        curve.p1.setY(20);
        curve.p2.setY(20);
        curve.arrowHead = ArrowHeadStyle::Tapered;
        test::row(
            "other side, tapered", curve, Points { { 70, 42 }, { 111, 28 } }, Points { { 70, 20 }, { 20, 22.5 } });
        Annotation open = arrow(ArrowHeadStyle::Open, 4);
        open.doubleHeaded = true; // along a path a head is at least 14 long
        test::row("open twin", open, Points { { 34, 55.5 }, { 106, 44.5 }, { 70, 50 } },
            Points { { 36, 57.5 }, { 26, 59 }, { 70, 53 } });
        Annotation folded = arrow(ArrowHeadStyle::Tapered, 10, { 60, 50 }, { 80, 50 });
        folded.doubleHeaded = true;
        test::row("two heads longer than the arrow", folded, Points { { 70, 50 } }, Points { { 70, 90 } });
    }

    void doubleHeadsAndCurves()
    {
        QFETCH(Annotation, mark);
        QFETCH(QList<QPointF>, inked);
        QFETCH(QList<QPointF>, blank);
        const QImage picture = test::drawn(test::plainCapture({ 340, 120 }, Qt::white, 4), { mark }, 4);
        for (const QPointF &point : std::as_const(inked))
            QVERIFY2(qGreen(picture.pixel((point * 4).toPoint())) < 40,
                qPrintable(QString::asprintf("blank %g %g", point.x(), point.y())));
        for (const QPointF &point : std::as_const(blank))
            QVERIFY2(qGreen(picture.pixel((point * 4).toPoint())) > 215,
                qPrintable(QString::asprintf("inked %g %g", point.x(), point.y())));
    }

    void translucentArrowsAreFilledOnce()
    {
        for (const auto &head : enumNames<ArrowHeadStyle>) {
            for (const bool doubleHeaded : { false, true }) {
                Annotation mark = arrow(head.value, 8);
                mark.colorHex = QStringLiteral("#00000080");
                mark.doubleHeaded = doubleHeaded;
                const QImage picture = test::drawn(test::plainCapture({ 140, 100 }), { mark });
                int darkest = 255;
                for (int y = 0; y < picture.height(); ++y) {
                    for (int x = 0; x < picture.width(); ++x)
                        darkest = std::min(darkest, qGreen(picture.pixel(x, y)));
                }
                QCOMPARE(darkest, 127);
            }
        }
    }

    void boxes_data()
    {
        test::columns<AnnotationKind, QRectF, bool, QStringList>("kind", "rect", "filled", "picture");

        test::row("outline lies on its edge", AnnotationKind::Rectangle, QRectF(1, 1, 6, 4), false,
            QStringList { "########", "########", "###..###", "###..###", "########", "########" });
        test::row("dragged from the bottom right", AnnotationKind::Highlight, QRectF(7, 5, -6, -4), false,
            QStringList { "........", ".######.", ".######.", ".######.", ".######.", "........" });
        test::row("filled box has no sharp corner", AnnotationKind::Rectangle, QRectF(0, 0, 8, 6), true,
            QStringList { "########", "########", "########", "########", "########", "########" });
        test::row("an empty drag draws nothing", AnnotationKind::Rectangle, QRectF(2, 2, 0, 0), false,
            QStringList(6, "........"));
        test::row("nor does an empty highlight", AnnotationKind::Highlight, QRectF(2, 2, 0, 3), false,
            QStringList(6, "........"));
    }

    void boxes()
    {
        QFETCH(AnnotationKind, kind);
        QFETCH(QRectF, rect);
        QFETCH(bool, filled);
        Annotation mark = black(kind, rect.topLeft(), rect.bottomRight());
        mark.filled = filled;
        mark.lineWidth = 2;
        QTEST(test::asText(test::drawn(test::plainCapture({ 8, 6 }), { mark })), "picture");
    }
};

QTEST_GUILESS_MAIN(ShapesTest)
#include "ShapesTest.moc"
