// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Editor/Canvas/EditedCanvas.h"

using namespace tessaly;
using test::EditedCanvas;

/// Snapping while marks are made, moved and resized. The picture is 400×300; another mark covers 200, 100 to 260, 140.
class SnapRowsTest : public QObject {
    Q_OBJECT

    static void addOther(EditedCanvas &canvas)
    {
        canvas.view.controller().setSnapping(true);
        canvas.add(AnnotationKind::Highlight, { 200, 100 }, { 260, 140 });
    }

private Q_SLOTS:
    void aMovedMarkSnaps_data()
    {
        QTest::addColumn<QPointF>("by");
        QTest::addColumn<QPointF>("topLeft"); // of the box of 30 by 20 that was at 80, 200
        QTest::addColumn<int>("guides");
        QTest::newRow("picture's left edge") << QPointF(-75, -16) << QPointF(0, 184) << 1;
        QTest::newRow("picture's centre by its centre") << QPointF(108, 36) << QPointF(185, 236) << 1;
        QTest::newRow("picture's bottom by its bottom") << QPointF(-40, 84) << QPointF(40, 280) << 1;
        QTest::newRow("another's left by its right") << QPointF(86, -25) << QPointF(170, 175) << 1;
        QTest::newRow("another's centre line") << QPointF(-50, -88) << QPointF(30, 110) << 1;
        QTest::newRow("both axes at once") << QPointF(86, -94) << QPointF(170, 110) << 2;
        QTest::newRow("beyond 6 pixels") << QPointF(-73, -16) << QPointF(7, 184) << 0;
    }
    void aMovedMarkSnaps()
    {
        QFETCH(QPointF, by);
        QFETCH(QPointF, topLeft);
        QFETCH(int, guides);
        EditedCanvas canvas;
        addOther(canvas);
        canvas.add(AnnotationKind::Highlight, { 80, 200 }, { 110, 220 });
        canvas.pull({ 90, 210 }, QPointF(90, 210) + by);
        QCOMPARE(canvas.last().p1, topLeft);
        QCOMPARE(canvas.view.controller().adornments().guides.size(), guides);
        canvas.release();
        QVERIFY(canvas.view.controller().adornments().guides.isEmpty());
    }

    void aNewBoxSnapsByItsCorner()
    {
        EditedCanvas canvas;
        addOther(canvas);
        canvas.store.activate(Tool::Rectangle);
        canvas.pull({ 60, 30 }, { 196, 96 });
        QCOMPARE(canvas.last().rect(), QRectF(QPointF(60, 30), QPointF(200, 100)));
        QCOMPARE(canvas.view.controller().adornments().guides.size(), 2);
        canvas.release();
    }

    void aResizedSideSnapsOnItsAxis()
    {
        EditedCanvas canvas;
        addOther(canvas);
        canvas.store.setSelectedID(canvas.add(AnnotationKind::Highlight, { 40, 95 }, { 120, 170 }));
        const QPointF right = canvas.handlePoint(HandleRole::Right);
        canvas.drag(right, { 204, right.y() });
        QCOMPARE(canvas.last().rect(), QRectF(QPointF(40, 95), QPointF(200, 170)));
    }

    void aLineEndSnapsUnlessItTurnsInSteps()
    {
        EditedCanvas canvas;
        addOther(canvas);
        canvas.store.activate(Tool::Arrow);
        canvas.pull({ 60, 30 }, { 196, 97 });
        QCOMPARE(canvas.last().p2, QPointF(200, 100));
        canvas.moveTo({ 196, 33 }, Qt::ShiftModifier);
        QCOMPARE(canvas.last().p2, QPointF(196, 30));
        canvas.release();
    }

    void theReachIsThatOfTheScreen()
    {
        EditedCanvas canvas({ 200, 150 });
        canvas.zoom.setScale(3);
        canvas.view.controller().setSnapping(true);
        canvas.add(AnnotationKind::Highlight, { 20, 60 }, { 40, 80 });
        canvas.pull({ 30, 70 }, { 13, 78 }); // left edge at 3 points, 9 pixels
        QCOMPARE(canvas.last().p1.x(), 3.0);
        canvas.moveTo({ 11.5, 78 }); // at 1.5 points, 4.5 pixels
        QCOMPARE(canvas.last().p1.x(), 0.0);
        canvas.release();
    }

    void itIsTurnedOffAndOnDuringADrag()
    {
        EditedCanvas canvas;
        addOther(canvas);
        canvas.add(AnnotationKind::Highlight, { 80, 200 }, { 110, 220 });
        canvas.pull({ 90, 210 }, { 14, 195 });
        QCOMPARE(canvas.last().p1.x(), 0.0);
        canvas.view.controller().setSnapping(false);
        QCOMPARE(canvas.last().p1.x(), 4.0);
        QVERIFY(canvas.view.controller().adornments().guides.isEmpty());
        canvas.view.controller().setSnapping(true);
        QCOMPARE(canvas.last().p1.x(), 0.0);
        canvas.release();
    }

    void aCopySnapsToItsOriginal()
    {
        EditedCanvas canvas;
        addOther(canvas);
        canvas.add(AnnotationKind::Highlight, { 80, 200 }, { 110, 220 });
        canvas.drag({ 90, 210 }, { 150, 213 }, Qt::ControlModifier);
        QCOMPARE(canvas.last().p1.y(), 200.0);
    }
};

QTEST_MAIN(SnapRowsTest)
#include "SnapRowsTest.moc"
