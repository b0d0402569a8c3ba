// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationGeometry.h"
#include "tests/support/Rows.h"
#include "tests/ui/Editor/Canvas/EditedCanvas.h"

using namespace tessaly;
using test::EditedCanvas;

namespace {

bool isNear(QPointF a, QPointF b, double within = 0.01) { return std::hypot(a.x() - b.x(), a.y() - b.y()) <= within; }

} // namespace

/// Reshaping by handles, a gesture a test. The selected mark covers 100, 80 to 200, 140.
class ResizeRowsTest : public QObject {
    Q_OBJECT

    static constexpr QRectF start { 100, 80, 100, 60 };

    static QUuid addSelected(EditedCanvas &canvas, AnnotationKind kind)
    {
        const QUuid id = canvas.add(kind, start.topLeft(), start.bottomRight());
        canvas.store.setSelectedID(id);
        return id;
    }

private Q_SLOTS:
    void handlesMoveTheirSides_data()
    {
        test::columns<AnnotationKind, HandleRole, Qt::KeyboardModifiers, QPointF, QRectF>(
            "kind", "role", "modifiers", "by", "box");
        using Kind = AnnotationKind;
        const Qt::KeyboardModifiers none, shift = Qt::ShiftModifier, alt = Qt::AltModifier;
        test::row("corner", Kind::Rectangle, HandleRole::BottomRight, none, QPointF(20, 10), QRectF(100, 80, 120, 70));
        test::row(
            "opposite corner", Kind::Highlight, HandleRole::TopLeft, none, QPointF(20, 10), QRectF(120, 90, 80, 50));
        test::row("side", Kind::Rectangle, HandleRole::Left, none, QPointF(-20, 10), QRectF(80, 80, 120, 60));
        test::row("top side", Kind::Ellipse, HandleRole::Top, none, QPointF(-20, 10), QRectF(100, 90, 100, 50));
        test::row("Shift keeps the ratio", Kind::Rectangle, HandleRole::BottomRight, shift, QPointF(50, 5),
            QRectF(100, 80, 150, 90));
        test::row("an image keeps it anyway", Kind::ImageOverlay, HandleRole::BottomRight, none, QPointF(50, 5),
            QRectF(100, 80, 150, 90));
        test::row("Shift frees an image", Kind::ImageOverlay, HandleRole::BottomRight, shift, QPointF(50, 5),
            QRectF(100, 80, 150, 65));
        test::row("a stamp keeps it", Kind::Stamp, HandleRole::TopLeft, none, QPointF(50, 5),
            QRectF(108.333, 85, 91.667, 55));
        test::row("Alt: about the centre", Kind::Rectangle, HandleRole::BottomRight, alt, QPointF(20, 10),
            QRectF(80, 70, 140, 80));
        test::row("Alt on a side", Kind::Rectangle, HandleRole::Right, alt, QPointF(20, 10), QRectF(80, 80, 140, 60));
        test::row("past the opposite side", Kind::Rectangle, HandleRole::Right, none, QPointF(-150, 0),
            QRectF(50, 80, 50, 60));
        test::row("past the opposite corner", Kind::Rectangle, HandleRole::BottomRight, none, QPointF(-150, -100),
            QRectF(50, 40, 50, 40));
        test::row("never below a point", Kind::Rectangle, HandleRole::BottomRight, none, QPointF(-100, -60),
            QRectF(100, 80, 1, 1));
        test::row(
            "a path is scaled", Kind::Pen, HandleRole::BottomRight, none, QPointF(100, 60), QRectF(100, 80, 200, 120));
    }
    void handlesMoveTheirSides()
    {
        QFETCH(AnnotationKind, kind);
        QFETCH(HandleRole, role);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QPointF, by);
        QFETCH(QRectF, box);
        EditedCanvas canvas;
        Annotation mark(kind, start.topLeft(), start.bottomRight());
        if (kind == AnnotationKind::Pen)
            mark.points = { start.topLeft(), start.center(), start.bottomRight() };
        canvas.store.setSelectedID(canvas.add(mark));
        // Not grabbed in the middle: the offset must not make the edge jump.
        const QPointF grabbed = canvas.handlePoint(role) + QPointF(2, -3);
        canvas.drag(grabbed, grabbed + by, modifiers);
        const QRectF made = canvas.last().rect();
        QVERIFY2(isNear(made.topLeft(), box.topLeft()) && isNear(made.bottomRight(), box.bottomRight()),
            qPrintable(QStringLiteral("%1 %2 %3 %4").arg(made.x()).arg(made.y()).arg(made.width()).arg(made.height())));
        if (kind == AnnotationKind::Pen)
            QCOMPARE(canvas.last().points[1], box.center());
        QCOMPARE(canvas.undoSteps(), 1);
    }

    void theHandleUnderThePointerStaysGrabbed()
    {
        EditedCanvas canvas;
        addSelected(canvas, AnnotationKind::Rectangle);
        canvas.pull({ 200, 140 }, { 60, 40 });
        QCOMPARE(canvas.last().rect(), QRectF(60, 40, 40, 40));
        canvas.moveTo({ 250, 40 });
        QCOMPARE(canvas.last().rect(), QRectF(100, 40, 150, 40));
        QCOMPARE(canvas.view.controller().cursor().angle, 135.0); // the corner is now the upper right
        canvas.moveTo({ 210, 150 });
        canvas.release();
        QCOMPARE(canvas.last().rect(), QRectF(100, 80, 110, 70));
    }

    void aBoxDrawnBackwardsCanBeResized_data()
    {
        test::columns<HandleRole, QRectF>("role", "box");
        test::row("top left", HandleRole::TopLeft, QRectF(110, 85, 90, 55));
        test::row("bottom right", HandleRole::BottomRight, QRectF(100, 80, 110, 65));
        test::row("right", HandleRole::Right, QRectF(100, 80, 110, 60));
    }
    void aBoxDrawnBackwardsCanBeResized()
    {
        QFETCH(HandleRole, role);
        EditedCanvas canvas;
        canvas.store.activate(Tool::Rectangle);
        canvas.drag(start.bottomRight(), start.topLeft());
        QCOMPARE(canvas.last().rect(), start);
        const QPointF grabbed = canvas.handlePoint(role);
        canvas.drag(grabbed, grabbed + QPointF(10, 5));
        QTEST(canvas.last().rect(), "box");
    }

    void anEndOfALineMoves_data()
    {
        test::columns<HandleRole, Qt::KeyboardModifiers, QPointF, QPointF, QPointF>(
            "role", "modifiers", "to", "p1", "p2");
        const Qt::KeyboardModifiers none, shift = Qt::ShiftModifier, alt = Qt::AltModifier;
        const QPointF p1 = start.topLeft(), p2 = start.bottomRight();
        test::row("end", HandleRole::End, none, QPointF(250, 100), p1, QPointF(250, 100));
        test::row("start", HandleRole::Start, none, QPointF(50, 100), QPointF(50, 100), p2);
        test::row("Shift: level", HandleRole::End, shift, QPointF(250, 85), p1, QPointF(250, 80));
        test::row("Alt: both ends", HandleRole::End, alt, QPointF(220, 150), QPointF(80, 70), QPointF(220, 150));
        test::row("onto the other end", HandleRole::Start, none, p2, p2 - QPointF(0.857, 0.514), p2);
    }
    void anEndOfALineMoves()
    {
        QFETCH(HandleRole, role);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QPointF, to);
        QFETCH(QPointF, p1);
        QFETCH(QPointF, p2);
        EditedCanvas canvas;
        addSelected(canvas, AnnotationKind::Arrow);
        const QPointF handle = canvas.handlePoint(role), offset(3, 2);
        canvas.drag(handle + offset, to + offset, modifiers);
        QVERIFY(isNear(canvas.last().p1, p1));
        QVERIFY(isNear(canvas.last().p2, p2));
        QCOMPARE(canvas.undoSteps(), 1);
    }

    void theMiddleHandleBendsAnArrowAndADoubleClickStraightensIt()
    {
        EditedCanvas canvas;
        addSelected(canvas, AnnotationKind::Arrow);
        const QPointF middle = canvas.handlePoint(HandleRole::Bend);
        QCOMPARE(middle, start.center());
        canvas.drag(middle, { 170, 70 });
        const Annotation &bent = canvas.last();
        QVERIFY(bent.curved);
        QVERIFY(isNear(AnnotationGeometry::handlePoint(bent.p1, bent.p2, bent.curveHandle), { 170, 70 }));
        QVERIFY(isNear(canvas.handlePoint(HandleRole::Bend), { 170, 70 }));
        canvas.doubleClick({ 170, 70 });
        QVERIFY(!canvas.last().curved);
        QCOMPARE(canvas.undoSteps(), 2);
    }

    void theTailHandleOfAStamp()
    {
        EditedCanvas canvas;
        canvas.store.setSelectedID(canvas.add(AnnotationKind::Stamp, { 100, 80 }, { 140, 120 }));
        QPointF handle = canvas.handlePoint(HandleRole::Tail);
        canvas.drag(handle, handle + QPointF(0, 20)); // out of the body, 20 below it
        QVERIFY(canvas.last().tailAngle);
        QVERIFY(isNear(*canvas.last().tailTip(), { 120, 140 }));
        handle = canvas.handlePoint(HandleRole::Tail);
        canvas.drag(handle, { 170, 100 });
        QVERIFY(isNear(*canvas.last().tailTip(), { 170, 100 }));
        handle = canvas.handlePoint(HandleRole::Tail);
        canvas.drag(handle, { 125, 105 });
        QVERIFY(!canvas.last().tailAngle);
        QCOMPARE(canvas.undoSteps(), 3);
    }

    void aSmallMarkIsGrabbedByItsBody_data()
    {
        QTest::addColumn<AnnotationKind>("kind");
        test::row("highlight", AnnotationKind::Highlight);
        test::row("stamp", AnnotationKind::Stamp);
        test::row("line", AnnotationKind::Line);
    }
    void aSmallMarkIsGrabbedByItsBody()
    {
        QFETCH(AnnotationKind, kind);
        EditedCanvas canvas;
        canvas.store.setSelectedID(canvas.add(kind, { 100, 100 }, { 112, 110 }));
        QVERIFY(!canvas.handle(HandleRole::Right));
        canvas.drag({ 106, 105 }, { 126, 115 });
        QCOMPARE(canvas.last().p1, QPointF(120, 110));
        QCOMPARE(canvas.last().p2, QPointF(132, 120));
        const HandleRole far = kind == AnnotationKind::Line ? HandleRole::End : HandleRole::BottomRight;
        const QPointF corner = canvas.handlePoint(far);
        QVERIFY(corner.x() > 132 && corner.y() > 120);
        canvas.drag(corner, corner + QPointF(40, 40));
        QVERIFY(canvas.last().p2.x() >= 172);
    }

    void handlesStayTheSameOnScreenAtAnyZoom_data()
    {
        QTest::addColumn<double>("scale");
        test::row("50 %", 0.5);
        test::row("300 %", 3.0);
    }
    void handlesStayTheSameOnScreenAtAnyZoom()
    {
        QFETCH(double, scale);
        EditedCanvas canvas({ 300, 200 });
        canvas.zoom.setScale(scale);
        addSelected(canvas, AnnotationKind::Highlight);
        const QPointF corner = start.bottomRight();
        canvas.moveTo(corner + QPointF(6, 6) / scale);
        QCOMPARE(canvas.view.controller().cursor().cursor, CanvasCursor::Resize);
        canvas.moveTo(corner + QPointF(9, 9) / scale);
        QVERIFY(canvas.view.controller().cursor().cursor != CanvasCursor::Resize);
    }

    void aCornerOfATextSetsItsFontSize_data()
    {
        test::columns<HandleRole, double>("role", "growth");
        test::row("twice", HandleRole::BottomRight, 2.0);
        test::row("half, from the top left", HandleRole::TopLeft, 0.5);
    }
    void aCornerOfATextSetsItsFontSize()
    {
        QFETCH(HandleRole, role);
        QFETCH(double, growth);
        EditedCanvas canvas;
        Annotation text(AnnotationKind::Text, { 100, 80 }, { 100, 80 });
        text.text = QStringLiteral("Hello\nthere");
        text.fontSize = 24;
        canvas.store.setSelectedID(canvas.add(text));
        QVERIFY(!canvas.handle(HandleRole::Right));
        auto &controller = canvas.view.controller();
        const QRectF before = controller.visibleBox(text.id);
        const bool fromRight = role == HandleRole::BottomRight;
        const QPointF fixed = fromRight ? before.topLeft() : before.bottomRight();
        const QPointF grabbed = fromRight ? before.bottomRight() : before.topLeft();
        canvas.drag(grabbed, fixed + (grabbed - fixed) * growth);
        QVERIFY(std::abs(canvas.last().fontSize - 24 * growth) < 0.01);
        const QRectF after = controller.visibleBox(text.id);
        QVERIFY(isNear(fromRight ? after.topLeft() : after.bottomRight(), fixed));
    }

    void handlesFollowWhatHappensToTheirMark()
    {
        EditedCanvas canvas;
        Annotation text(AnnotationKind::Text, { 100, 80 }, { 100, 80 });
        text.text = QStringLiteral("Hello");
        canvas.store.beginChange();
        canvas.store.setSelectedID(canvas.add(text));
        const QPointF before = canvas.handlePoint(HandleRole::TopRight);
        canvas.store.updateSelection(
            Undo::Record, [](Annotation &mark) { mark.text = QStringLiteral("Hello and more"); });
        QVERIFY(canvas.handlePoint(HandleRole::TopRight).x() > before.x() + 10);
        canvas.store.undo();
        QVERIFY(canvas.view.controller().adornments().handles.isEmpty());
        canvas.store.setSelectedID(text.id);
        canvas.store.deleteSelected();
        QVERIFY(canvas.view.controller().adornments().handles.isEmpty());
        QVERIFY(!canvas.view.controller().adornments().outline);
    }

    void touchMakesHandlesAndThresholdsLarger()
    {
        EditedCanvas canvas;
        addSelected(canvas, AnnotationKind::Highlight);
        auto &controller = canvas.view.controller();
        const auto touched = [&](QPointF image, Qt::MouseButton button) {
            return PointerInput { canvas.viewPosition(image), button, Qt::LeftButton, {}, true };
        };
        controller.press(touched({ 211, 151 }, Qt::LeftButton)); // 11 pixels from the corner
        controller.move(touched({ 216, 151 }, Qt::NoButton)); // 5 pixels: not a drag of a finger yet
        QCOMPARE(canvas.last().rect(), start);
        controller.move(touched({ 221, 151 }, Qt::NoButton));
        controller.release(touched({ 221, 151 }, Qt::LeftButton));
        QCOMPARE(canvas.last().rect(), start.adjusted(0, 0, 10, 0));
        QCOMPARE(controller.adornments().handleScale, 1.7);
    }
};

QTEST_MAIN(ResizeRowsTest)
#include "ResizeRowsTest.moc"
