// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Editor/Canvas/EditedCanvas.h"
#include "ui/Editor/Canvas/CanvasViewport.h"

#include <QAccessible>

using namespace tessaly;
using test::EditedCanvas;

/// Zooming, scrolling, panning, and that what is seen lies on whole pixels.
class ViewRowsTest : public QObject {
    Q_OBJECT

    static QPointF middle(EditedCanvas &canvas)
    {
        return canvas.view.controller().transform().toImage(QRectF(canvas.view.rect()).center());
    }

private Q_SLOTS:
    void theFirstShowFits_data()
    {
        QTest::addColumn<QSize>("points");
        QTest::addColumn<double>("scale");
        QTest::newRow("small: as it is") << QSize(400, 300) << 1.0;
        QTest::newRow("wide: made to fit") << QSize(1304, 300) << (700 - 48) / 1304.0;
    }
    void theFirstShowFits()
    {
        QFETCH(QSize, points);
        QFETCH(double, scale);
        Settings settings { QString() };
        AnnotationStore store(test::plainCapture(points), settings);
        EditorZoom zoom;
        test::FakeClipboard clipboard;
        SavedStyles styles(settings);
        CopiedStyle copied;
        test::FakeClock clock;
        CanvasView view(store, zoom, { clipboard, styles, copied, clock });
        view.resize(300, 200); // a size on the way to the real one
        view.resize(700, 600);
        view.show();
        QCOMPARE(zoom.scale(), scale);
        const QPointF corner = view.controller().transform().toView(QPointF(points.width(), points.height()));
        QVERIFY(QRectF(view.rect()).contains(corner));
    }

    void ctrlWheelZoomsAboutThePointer()
    {
        EditedCanvas canvas({ 2000, 1500 });
        const QPointF image(1000, 800);
        const QPointF view = canvas.viewPosition(image);
        canvas.turnWheel(image, 3, Qt::ControlModifier);
        QCOMPARE(canvas.zoom.scale(), 1.25 * 1.25 * 1.25);
        QVERIFY(QLineF(canvas.viewPosition(image), view).length() < 1);
        canvas.turnWheel(image, -20, Qt::ControlModifier);
        QCOMPARE(canvas.zoom.scale(), EditorZoom::minFit);
        canvas.turnWheel(image, 30, Qt::ControlModifier);
        QCOMPARE(canvas.zoom.scale(), EditorZoom::max);
    }

    void commandsZoomAboutTheMiddle()
    {
        EditedCanvas canvas({ 2000, 1500 });
        const QPointF before = middle(canvas);
        canvas.zoom.zoomIn();
        QVERIFY(QLineF(middle(canvas), before).length() < 1);
    }

    void wheelScrolls_data()
    {
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QPointF>("direction");
        QTest::newRow("down") << int(Qt::NoModifier) << QPointF(0, 1);
        QTest::newRow("with Shift to the right") << int(Qt::ShiftModifier) << QPointF(1, 0);
    }
    void wheelScrolls()
    {
        QFETCH(int, modifiers);
        QFETCH(QPointF, direction);
        EditedCanvas canvas({ 2000, 1500 });
        const QPointF before = middle(canvas);
        canvas.turnWheel(before, -1, Qt::KeyboardModifiers(modifiers));
        const QPointF way = middle(canvas) - before;
        QCOMPARE(way, direction * QApplication::wheelScrollLines() * 20);
    }

    void panning_data()
    {
        QTest::addColumn<bool>("withSpace");
        QTest::newRow("middle button") << false;
        QTest::newRow("space and left button") << true;
    }
    void panning()
    {
        QFETCH(bool, withSpace);
        EditedCanvas canvas({ 2000, 1500 });
        canvas.store.activate(Tool::Rectangle);
        const Qt::MouseButton button = withSpace ? Qt::LeftButton : Qt::MiddleButton;
        const QPointF grabbed = middle(canvas);
        const QPointF target = canvas.viewPosition(grabbed) + QPointF(-60, -40);
        if (withSpace) {
            canvas.holdKey(Qt::Key_Space);
            QCOMPARE(canvas.view.cursor().shape(), Qt::OpenHandCursor);
        }
        canvas.press(grabbed, {}, button);
        QCOMPARE(canvas.view.cursor().shape(), Qt::ClosedHandCursor);
        canvas.moveTo(canvas.view.controller().transform().toImage(target));
        QVERIFY(QLineF(canvas.viewPosition(grabbed), target).length() < 1);
        canvas.release({}, button);
        if (withSpace)
            canvas.letGoKey(Qt::Key_Space);
        QCOMPARE(canvas.view.cursor().shape(), Qt::CrossCursor);
        QCOMPARE(canvas.count(), 0); // nothing was drawn
    }

    void aDragAtTheEdgeScrollsAndGoesOn()
    {
        EditedCanvas canvas({ 2000, 1500 });
        canvas.store.activate(Tool::Rectangle);
        const auto toImage = [&](QPointF view) { return canvas.view.controller().transform().toImage(view); };
        canvas.press(toImage({ 400, 300 }));
        canvas.moveTo(toImage({ 450, 330 }));
        canvas.moveTo(toImage({ 698, 330 })); // 2 px from the right edge
        const double reached = canvas.last().rect().right();
        QTRY_VERIFY(canvas.last().rect().right() > reached + 50);
        canvas.release();
        QCOMPARE(canvas.undoSteps(), 1);
    }

    void theCanvasLiesOnWholePixels_data()
    {
        QTest::addColumn<double>("ratio");
        for (const double ratio : { 1.0, 1.25, 1.5, 2.0 })
            QTest::addRow("%g", ratio) << ratio;
    }
    void theCanvasLiesOnWholePixels()
    {
        QFETCH(double, ratio);
        CanvasViewport viewport;
        const QPointF offset(3, 41); // of the view within its window
        viewport.setLayout(FrameLayout({ 1111, 777 }, std::nullopt, 1));
        viewport.setView({ 641, 479 }, ratio, offset);
        viewport.setScale(0.73, { 120, 99 });
        viewport.scrollBy({ 13.4, -7.7 });
        const QPointF pixels = (offset + viewport.transform().origin) * ratio;
        QVERIFY(QLineF(pixels, QPointF(pixels.toPoint())).length() < 1e-6);
        const QPointF end
            = viewport.phase() + QPointF(viewport.pixelSize().width(), viewport.pixelSize().height()) / ratio;
        QVERIFY(viewport.phase().x() <= 0 && viewport.phase().y() <= 0 && end.x() >= 641 && end.y() >= 479);
    }

    void aFrameGrowsAroundThePicture()
    {
        EditedCanvas canvas({ 2000, 1500 });
        const QPointF before = canvas.viewPosition({ 900, 700 });
        canvas.store.setFrame(FrameStyle(), Undo::Skip);
        QVERIFY(QLineF(canvas.viewPosition({ 900, 700 }), before).length() <= 1);
    }

    void screenReadersFindTheCaptureAndItsMarks()
    {
        EditedCanvas canvas({ 400, 300 }, 2);
        canvas.add(AnnotationKind::Arrow, { 10, 10 }, { 90, 90 });
        const QUuid second = canvas.add(AnnotationKind::Rectangle, { 100, 10 }, { 190, 90 });
        canvas.store.setSelectedID(second);
        auto *found = QAccessible::queryAccessibleInterface(&canvas.view);
        QCOMPARE(found->text(QAccessible::Name), QStringLiteral("Screenshot, 800 by 600 pixels"));
        QCOMPARE(found->childCount(), 2);
        QCOMPARE(found->child(0)->text(QAccessible::Name), QStringLiteral("Arrow"));
        QVERIFY(found->child(1)->state().selected && !found->child(0)->state().selected);
        QVERIFY(found->child(1)->rect().width() >= 90);
        auto *gone = found->child(1);
        canvas.store.deleteSelected();
        QCOMPARE(found->childCount(), 1);
        QVERIFY(!gone->isValid());
    }
};

QTEST_MAIN(ViewRowsTest)
#include "ViewRowsTest.moc"
