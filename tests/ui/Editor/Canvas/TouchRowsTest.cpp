// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Editor/Canvas/EditedCanvas.h"

#include <QMenu>
#include <QNativeGestureEvent>
#include <QPointingDevice>

using namespace tessaly;
using test::EditedCanvas;

/// Fingers on a touch screen and on a trackpad. The window system turns one finger into a mouse that says so.
class TouchRowsTest : public QObject {
    Q_OBJECT

    QPointingDevice *m_screen = QTest::createTouchDevice();

    static QPoint viewPoint(EditedCanvas &canvas, QPointF image) { return canvas.viewPosition(image).toPoint(); }
    void press(EditedCanvas &canvas, QPointF image)
    {
        QTest::touchEvent(&canvas.view, m_screen).press(0, viewPoint(canvas, image), &canvas.view);
    }
    void moveTo(EditedCanvas &canvas, QPointF image)
    {
        QTest::touchEvent(&canvas.view, m_screen).move(0, viewPoint(canvas, image), &canvas.view);
    }
    void release(EditedCanvas &canvas, QPointF image)
    {
        QTest::touchEvent(&canvas.view, m_screen).release(0, viewPoint(canvas, image), &canvas.view);
    }

private Q_SLOTS:
    void aFingerDragsAfterSixPixels_data()
    {
        QTest::addColumn<int>("way"); // view pixels
        QTest::addColumn<double>("moved");
        QTest::newRow("as far as a mouse needs") << 5 << 0.0;
        QTest::newRow("farther") << 9 << 9.0;
    }
    void aFingerDragsAfterSixPixels()
    {
        QFETCH(int, way);
        EditedCanvas canvas;
        canvas.add(AnnotationKind::Highlight, { 100, 100 }, { 200, 160 });
        press(canvas, { 150, 130 });
        moveTo(canvas, { 150.0 + way, 130 });
        release(canvas, { 150.0 + way, 130 });
        QTEST(canvas.last().p1.x() - 100, "moved");
        QCOMPARE(canvas.store.selectedID(), canvas.last().id);
        QCOMPARE(canvas.view.controller().adornments().handleScale, 1.7);
    }

    void handlesAreLargerForAFinger()
    {
        EditedCanvas canvas;
        canvas.store.setSelectedID(canvas.add(AnnotationKind::Highlight, { 100, 100 }, { 200, 160 }));
        press(canvas, { 150, 130 }); // what a finger touched once is shown for fingers
        release(canvas, { 150, 130 });
        press(canvas, { 211, 160 }); // eleven pixels from the corner
        moveTo(canvas, { 231, 160 });
        release(canvas, { 231, 160 });
        QCOMPARE(canvas.last().rect(), QRectF(100, 100, 120, 60));
    }

    void aFingerHeldInPlaceOpensTheMenu()
    {
        EditedCanvas canvas;
        const QUuid mark = canvas.add(AnnotationKind::Highlight, { 100, 100 }, { 200, 160 });
        press(canvas, { 150, 130 });
        QTRY_VERIFY(canvas.view.findChild<QMenu *>());
        QCOMPARE(canvas.store.selectedID(), mark);
        release(canvas, { 150, 130 });
        QCOMPARE(canvas.undoSteps(), 0);
    }

    void twoFingersZoomAboutTheirMiddleAndDrawNothing()
    {
        EditedCanvas canvas({ 2000, 1500 });
        canvas.store.activate(Tool::Pen);
        const QPointF middle(1000, 750);
        const auto at = [&](double way) { return std::pair { middle - QPointF(way, 0), middle + QPointF(way, 0) }; };
        const QPointF before = canvas.viewPosition(middle);
        press(canvas, at(60).first);
        QTest::touchEvent(&canvas.view, m_screen)
            .move(0, viewPoint(canvas, at(60).first), &canvas.view)
            .press(1, viewPoint(canvas, at(60).second), &canvas.view);
        const CanvasTransform start = canvas.view.controller().transform();
        for (const double way : { 70.0, 90.0, 120.0 }) {
            const QPoint one = start.toView(at(way).first).toPoint(), other = start.toView(at(way).second).toPoint();
            QTest::touchEvent(&canvas.view, m_screen).move(0, one, &canvas.view).move(1, other, &canvas.view);
        }
        QVERIFY2(qAbs(canvas.zoom.scale() - 2) < 0.01, qPrintable(QString::number(canvas.zoom.scale())));
        QVERIFY(QLineF(canvas.viewPosition(middle), before).length() < 4);
        QTest::touchEvent(&canvas.view, m_screen)
            .release(0, viewPoint(canvas, middle), &canvas.view)
            .release(1, viewPoint(canvas, middle), &canvas.view);
        QCOMPARE(canvas.count(), 0);
        QCOMPARE(canvas.undoSteps(), 0);
    }

    void aTrackpadPinchZoomsAboutThePointer()
    {
        EditedCanvas canvas({ 2000, 1500 });
        const QPointF image(900, 700);
        const QPointF position = canvas.viewPosition(image);
        for (const double part : { 0.2, 0.25 }) {
            QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, position,
                position, canvas.view.mapToGlobal(position), part, {});
            QVERIFY(QApplication::sendEvent(&canvas.view, &pinch));
        }
        QCOMPARE(canvas.zoom.scale(), 1.5);
        QVERIFY(QLineF(canvas.viewPosition(image), position).length() < 1);
    }
};

QTEST_MAIN(TouchRowsTest)
#include "TouchRowsTest.moc"
