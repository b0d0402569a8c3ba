// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationGeometry.h"
#include "tests/support/Rows.h"

using namespace tessaly;

/// The arithmetic of lines and curves against numbers worked out by hand.
class AnnotationGeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void measuresToTheNearestPoint_data()
    {
        // to: the segment starts at (0, 0)
        test::columns<QPointF, QPointF, double>("point", "to", "distance");
        test::row("beside the middle", QPointF(5, 3), QPointF(10, 0), 3.0);
        test::row("before the start", QPointF(-3, 4), QPointF(10, 0), 5.0);
        test::row("past the end", QPointF(13, -4), QPointF(10, 0), 5.0);
        test::row("on it", QPointF(2, 2), QPointF(8, 8), 0.0);
        test::row("a segment of no length", QPointF(3, 4), QPointF(0, 0), 5.0);
        test::row("a segment too short to have a direction", QPointF(3, 4), QPointF(0.009, 0), 5.0);
    }

    void measuresToTheNearestPoint()
    {
        QFETCH(QPointF, point);
        QFETCH(QPointF, to);
        QTEST(AnnotationGeometry::distance(point, { 0, 0 }, to), "distance");
    }

    void bendsToTheNegativeNormalByDefault()
    {
        // Rightwards by 100: the normal points down, and the default handle lies 0.22 of the length above the middle.
        const QPointF p1(10, 50), p2(110, 50), handle(0.5, -0.22);
        QCOMPARE(AnnotationGeometry::handlePoint(p1, p2, handle), QPointF(60, 28));
        const QPointF control = AnnotationGeometry::controlPoint(p1, p2, handle);
        const auto samples = AnnotationGeometry::quadraticSamples(p1, control, p2, AnnotationGeometry::curveSegments);
        QCOMPARE(samples.size(), 49);
        QCOMPARE(samples.first(), p1);
        QCOMPARE(samples[24], QPointF(60, 28));
        QCOMPARE(samples.last(), p2);
    }

    void findsTheHandleBack_data()
    {
        test::columns<QPointF, QPointF>("p2", "handle");
        test::row("level", QPointF(100, 0), QPointF(0.5, -0.22));
        test::row("steep, beyond the ends", QPointF(-30, 80), QPointF(1.7, 2.5));
        test::row("short", QPointF(0.02, 0.01), QPointF(-3, 0.1));
    }

    void findsTheHandleBack()
    {
        QFETCH(QPointF, p2);
        QFETCH(QPointF, handle);
        const QPointF dragged = AnnotationGeometry::handlePoint({ 0, 0 }, p2, handle);
        const auto found = AnnotationGeometry::handleAt({ 0, 0 }, p2, dragged);
        QVERIFY(found);
        QCOMPARE(*found, handle);
    }

    void hasNoHandleWithoutLength()
    {
        QVERIFY(!AnnotationGeometry::handleAt({ 5, 5 }, { 5.005, 5 }, { 9, 9 }));
        QVERIFY(!AnnotationGeometry::handleAt({ 5, 5 }, { qQNaN(), 5 }, { 9, 9 }));
    }

    void trimsBothEnds_data()
    {
        test::columns<double, double, QList<QPointF>>("start", "end", "kept");
        // The path: 10 to the right, 10 down, 10 to the right.
        const QList<QPointF> whole { { 0, 0 }, { 10, 0 }, { 10, 10 }, { 20, 10 } };
        test::row(
            "inside the outer segments", 4.0, 3.0, QList<QPointF> { { 4, 0 }, { 10, 0 }, { 10, 10 }, { 17, 10 } });
        test::row("a corner exactly at the cut comes once", 10.0, 10.0, QList<QPointF> { { 10, 0 }, { 10, 10 } });
        test::row("within one segment", 12.0, 14.0, QList<QPointF> { { 10, 2 }, { 10, 6 } });
        test::row("nothing", 0.0, 0.0, whole);
        test::row("all of it", 15.0, 15.0, whole);
        test::row("more than all", 40.0, 0.0, whole);
    }

    void trimsBothEnds()
    {
        QFETCH(double, start);
        QFETCH(double, end);
        QTEST(AnnotationGeometry::trimmed({ { 0, 0 }, { 10, 0 }, { 10, 10 }, { 20, 10 } }, start, end), "kept");
    }

    void leavesPathsWithoutLengthAlone()
    {
        QCOMPARE(AnnotationGeometry::trimmed({}, 1, 1), QList<QPointF>());
        QCOMPARE(AnnotationGeometry::trimmed({ { 3, 3 } }, 1, 1), (QList<QPointF> { { 3, 3 } }));
        QCOMPARE(AnnotationGeometry::trimmed({ { 3, 3 }, { 3, 3 } }, 0, 0), (QList<QPointF> { { 3, 3 }, { 3, 3 } }));
        QCOMPARE(AnnotationGeometry::boundingBox({}), QRectF());
        QCOMPARE(AnnotationGeometry::boundingBox({ { 3, -2 }, { -1, 5 } }), QRectF(-1, -2, 4, 7));
    }
};

QTEST_GUILESS_MAIN(AnnotationGeometryTest)
#include "AnnotationGeometryTest.moc"
