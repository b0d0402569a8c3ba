// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkHandles.h"
#include "tests/support/Rows.h"

using namespace tessaly;

/// Which handles a mark has, where they are on the screen, and which one is grabbed.
class MarkHandlesTest : public QObject {
    Q_OBJECT

    using Kind = AnnotationKind;

    static QList<Handle> handlesOf(Kind kind, const QRectF &box, double scale = 1)
    {
        const Annotation mark(kind, box.topLeft(), box.bottomRight());
        return MarkHandles::of(mark, box, { scale, { 7, 5 } });
    }

private Q_SLOTS:
    void everyKindHasItsHandles_data()
    {
        test::columns<Kind, QSizeF, double, int>("kind", "size", "scale", "count");
        const QSizeF large(100, 60), flat(100, 10);
        test::row("box", Kind::Rectangle, large, 1.0, 8);
        test::row("text", Kind::Text, large, 1.0, 4);
        test::row("line", Kind::Line, large, 1.0, 2);
        test::row("arrow", Kind::Arrow, large, 1.0, 3);
        test::row("stamp with its tail", Kind::Stamp, large, 1.0, 9);
        test::row("pen", Kind::Pen, large, 1.0, 8);
        test::row("a dot of the pen", Kind::Pen, QSizeF(0, 0), 1.0, 0);
        test::row("flat box", Kind::Highlight, flat, 1.0, 4);
        test::row("flat box, zoomed in", Kind::Highlight, flat, 3.0, 8);
        test::row("box, zoomed out", Kind::Highlight, large, 0.25, 4);
        test::row("short arrow", Kind::Arrow, QSizeF(12, 9), 1.0, 2);
    }
    void everyKindHasItsHandles()
    {
        QFETCH(Kind, kind);
        QFETCH(QSizeF, size);
        QFETCH(double, scale);
        QFETCH(int, count);
        QCOMPARE(handlesOf(kind, { { 50, 50 }, size }, scale).size(), count);
    }

    void smallMarksKeepTheirHandlesOutside()
    {
        const CanvasTransform transform { 0.5, { 7, 5 } };
        const QRectF box(50, 50, 20, 20), seen = transform.toView(box);
        for (const Handle &handle : MarkHandles::ofBox(box, transform)) {
            const QPointF position = MarkHandles::viewPosition(handle, transform);
            QVERIFY(!seen.adjusted(-8, -8, 8, 8).contains(position));
            QVERIFY(seen.adjusted(-12, -12, 12, 12).contains(position));
        }
    }

    void theNearestHandleWithinReachIsGrabbed_data()
    {
        test::columns<QPointF, double, std::optional<HandleRole>>("view", "scale", "role");
        const std::optional<HandleRole> none;
        test::row("on it", QPointF(100, 100), 1.0, std::optional(HandleRole::TopLeft));
        test::row("at the reach", QPointF(93, 107), 1.0, std::optional(HandleRole::TopLeft));
        test::row("beyond it", QPointF(92, 100), 1.0, none);
        test::row("with a finger", QPointF(89, 100), 1.7, std::optional(HandleRole::TopLeft));
        test::row("the nearer of two", QPointF(109, 100), 1.7, std::optional(HandleRole::Top));
    }
    void theNearestHandleWithinReachIsGrabbed()
    {
        QFETCH(QPointF, view);
        QFETCH(double, scale);
        const CanvasTransform transform;
        const auto grabbed
            = MarkHandles::at(MarkHandles::ofBox({ 100, 100, 26, 80 }, transform), view, transform, scale);
        QTEST(grabbed ? std::optional(grabbed->role) : std::nullopt, "role");
    }

    void theCursorTurnsWithTheHandle_data()
    {
        test::columns<HandleRole, QSizeF, double>("role", "proportions", "angle");
        test::row("right", HandleRole::Right, QSizeF(), 0.0);
        test::row("left", HandleRole::Left, QSizeF(), 0.0);
        test::row("top", HandleRole::Top, QSizeF(), 90.0);
        test::row("top left", HandleRole::TopLeft, QSizeF(), 45.0);
        test::row("top right", HandleRole::TopRight, QSizeF(), 135.0);
        test::row("along the diagonal", HandleRole::BottomRight, QSizeF(40, 30), 36.87);
        test::row("along the other", HandleRole::BottomLeft, QSizeF(40, 30), 143.13);
        test::row("a side has no diagonal", HandleRole::Bottom, QSizeF(40, 30), 90.0);
    }
    void theCursorTurnsWithTheHandle()
    {
        QFETCH(HandleRole, role);
        QFETCH(QSizeF, proportions);
        QFETCH(double, angle);
        const CursorShape shape
            = MarkHandles::cursor(role, proportions.isEmpty() ? std::nullopt : std::optional(proportions));
        QCOMPARE(shape.cursor, CanvasCursor::Resize);
        QVERIFY(std::abs(shape.angle - angle) < 0.01);
    }

    void aLinesEndHasACrossArrow()
    {
        QCOMPARE(MarkHandles::cursor(HandleRole::End, {}).cursor, CanvasCursor::CrossArrow);
    }
};

QTEST_GUILESS_MAIN(MarkHandlesTest)
#include "MarkHandlesTest.moc"
