// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/Rows.h"
#include "tests/ui/Editor/Canvas/EditedCanvas.h"

using namespace tessaly;
using test::EditedCanvas;

/// The crop frame under the mouse. The picture is 400×300 points.
class CropRowsTest : public QObject {
    Q_OBJECT

    static void beginWith(EditedCanvas &canvas, const QRectF &frame, CropAspect aspect = CropAspect::Free)
    {
        canvas.store.activate(Tool::Crop);
        canvas.store.setCropAspect(aspect);
        canvas.store.setCropRect(frame);
    }

private Q_SLOTS:
    void theFrameBeginsOverTheWholePicture()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Crop);
        const CanvasAdornments adornments = canvas.view.controller().adornments();
        QCOMPARE(adornments.crop, QRectF(0, 0, 400, 300));
        QCOMPARE(adornments.handles.size(), 8);
    }

    void dragsChangeTheFrame_data()
    {
        // frame: from 100, 80, 200 by 100
        test::columns<QPointF, QPointF, Qt::KeyboardModifiers, CropAspect, QRectF>(
            "from", "to", "modifiers", "aspect", "frame");
        const Qt::KeyboardModifiers none, shift = Qt::ShiftModifier, alt = Qt::AltModifier;
        const auto free = CropAspect::Free, square = CropAspect::Square;
        test::row("corner", QPointF(300, 180), QPointF(320, 220), none, free, QRectF(100, 80, 220, 140));
        test::row("side", QPointF(200, 80), QPointF(220, 60), none, free, QRectF(100, 60, 200, 120));
        test::row("beyond the picture", QPointF(300, 180), QPointF(500, 420), none, free, QRectF(100, 80, 300, 220));
        test::row("flipped", QPointF(300, 180), QPointF(60, 40), none, free, QRectF(60, 40, 40, 40));
        test::row("onto itself", QPointF(300, 180), QPointF(100, 80), none, free, QRectF(100, 80, 1, 1));
        test::row("Shift: ratio", QPointF(300, 180), QPointF(340, 185), shift, free, QRectF(100, 80, 240, 120));
        test::row("Alt: centre", QPointF(300, 180), QPointF(310, 190), alt, free, QRectF(90, 70, 220, 120));
        test::row("constraint", QPointF(300, 180), QPointF(250, 200), none, square, QRectF(100, 80, 150, 150));
        test::row("constraint at the picture's edge", QPointF(300, 180), QPointF(390, 200), none, square,
            QRectF(100, 80, 220, 220));
        test::row("inside moves", QPointF(200, 130), QPointF(230, 110), none, free, QRectF(130, 60, 200, 100));
        test::row(
            "inside stops at the edge", QPointF(200, 130), QPointF(390, 20), none, free, QRectF(200, 0, 200, 100));
        test::row("outside: a new frame", QPointF(20, 200), QPointF(90, 280), none, free, QRectF(20, 200, 70, 80));
        test::row("a new frame with Shift", QPointF(20, 200), QPointF(80, 210), shift, free, QRectF(20, 200, 60, 30));
        test::row("a new square, up and left", QPointF(90, 60), QPointF(70, 50), none, square, QRectF(70, 40, 20, 20));
    }
    void dragsChangeTheFrame()
    {
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(CropAspect, aspect);
        EditedCanvas canvas;
        beginWith(canvas, { 100, 80, 200, 100 }, aspect);
        canvas.drag(from, to, modifiers);
        QTEST(canvas.store.cropRect(), "frame");
        QVERIFY(!canvas.store.canUndo());
    }

    void theLockKeepsTheRatio()
    {
        EditedCanvas canvas;
        beginWith(canvas, { 100, 80, 200, 100 });
        canvas.store.setCropLock(true);
        canvas.drag({ 300, 180 }, { 240, 180 });
        QCOMPARE(canvas.store.cropRect(), QRectF(100, 80, 200, 100)); // the higher share counts
        canvas.drag({ 300, 130 }, { 240, 130 });
        QCOMPARE(canvas.store.cropRect(), QRectF(100, 95, 140, 70));
    }

    void theLockedRatioDoesNotWearOff()
    {
        EditedCanvas canvas;
        beginWith(canvas, { 100, 80, 200, 110 });
        canvas.store.setCropLock(true);
        canvas.drag({ 300, 190 }, { 90, 70 }); // flipped, to a few pixels
        const QRectF small = canvas.store.cropRect();
        QVERIFY(small.width() < 30);
        const QPointF corner = canvas.handlePoint(HandleRole::TopLeft);
        canvas.drag(corner, corner - QPointF(60, 20));
        const QRectF last = canvas.store.cropRect();
        QVERIFY(last.width() > 60);
        QVERIFY(qAbs(last.width() * 110 / 200 - last.height()) <= 1);
        canvas.drag({ 300, 250 }, { 380, 260 }); // a new one
        QCOMPARE(canvas.store.cropRect().size(), QSizeF(80, 44));
    }

    void aFrameOverAllIsDrawnAnew()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Crop);
        canvas.drag({ 50, 60 }, { 150, 160 });
        QCOMPARE(canvas.store.cropRect(), QRectF(50, 60, 100, 100));
    }

    void itsEdgesLieOnPixels()
    {
        EditedCanvas canvas({ 200, 150 }, 2);
        beginWith(canvas, { 20, 20, 100, 100 });
        canvas.drag({ 120, 120 }, { 130.3, 131.8 });
        QCOMPARE(canvas.store.cropRect(), QRectF(20, 20, 110.5, 112));
        canvas.drag({ 130.5, 132 }, { 20, 20 });
        QCOMPARE(canvas.store.cropRect().size(), QSizeF(0.5, 0.5));
    }

    void escapeDuringADragPutsTheFrameBack()
    {
        EditedCanvas canvas;
        beginWith(canvas, { 100, 80, 200, 100 });
        canvas.pull({ 300, 180 }, { 350, 250 });
        canvas.key(Qt::Key_Escape);
        canvas.release();
        QCOMPARE(canvas.store.cropRect(), QRectF(100, 80, 200, 100));
        QVERIFY(canvas.store.isCropping());
        canvas.key(Qt::Key_Escape);
        QVERIFY(!canvas.store.isCropping());
        QCOMPARE(canvas.store.image().pointSize, QSizeF(400, 300));
        QVERIFY(!canvas.store.canUndo());
    }

    void enterOrDoubleClickApplies_data()
    {
        QTest::addColumn<bool>("byKey");
        test::row("Enter", true);
        test::row("double click", false);
    }
    void enterOrDoubleClickApplies()
    {
        QFETCH(bool, byKey);
        EditedCanvas canvas;
        canvas.add(AnnotationKind::Highlight, { 150, 120 }, { 180, 140 });
        beginWith(canvas, { 100, 80, 200, 100 });
        if (byKey)
            canvas.key(Qt::Key_Return);
        else
            canvas.doubleClick({ 165, 130 });
        QVERIFY(!canvas.store.isCropping());
        QCOMPARE(canvas.store.image().pointSize, QSizeF(200, 100));
        QCOMPARE(canvas.last().p1, QPointF(50, 40));
        QCOMPARE(canvas.undoSteps(), 1);
    }

    void arrowKeysMoveTheFrame()
    {
        EditedCanvas canvas;
        beginWith(canvas, { 100, 80, 200, 100 });
        canvas.key(Qt::Key_Right, Qt::ShiftModifier);
        canvas.key(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(canvas.store.cropRect(), QRectF(110, 80, 200, 101));
        for (int press = 0; press < 30; ++press)
            canvas.key(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(canvas.store.cropRect(), QRectF(110, 0, 200, 101));
    }

    void thePointerShowsThePartOfTheFrame()
    {
        EditedCanvas canvas;
        beginWith(canvas, { 100, 80, 200, 100 });
        const auto over = [&](QPointF image) {
            canvas.moveTo(image);
            return canvas.view.controller().cursor();
        };
        QCOMPARE(over({ 300, 180 }), (CursorShape { CanvasCursor::Resize, 45 }));
        QCOMPARE(over({ 100, 180 }), (CursorShape { CanvasCursor::Resize, 135 }));
        QCOMPARE(over({ 200, 80 }), (CursorShape { CanvasCursor::Resize, 90 }));
        QCOMPARE(over({ 200, 130 }).cursor, CanvasCursor::FourWay);
        QCOMPARE(over({ 20, 20 }).cursor, CanvasCursor::Cross);
    }
};

QTEST_MAIN(CropRowsTest)
#include "CropRowsTest.moc"
