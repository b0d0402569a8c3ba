// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/TextGeometry.h"
#include "tests/support/Rows.h"
#include "tests/ui/Editor/Canvas/EditedCanvas.h"

#include <QSignalSpy>

using namespace tessaly;
using test::EditedCanvas;

namespace {

double lengthOf(QPointF vector) { return std::hypot(vector.x(), vector.y()); }

} // namespace

/// Making marks with the mouse, a gesture a test. Each canvas shows 400×300 points at 100 %.
class CreateRowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pressAndDragMakesAMark_data()
    {
        test::columns<Tool, AnnotationKind, QRectF>("tool", "kind", "box");
        const QRectF dragged(50, 60, 80, 40), square(50, 60, 80, 80);
        test::row("arrow", Tool::Arrow, AnnotationKind::Arrow, dragged);
        test::row("rectangle", Tool::Rectangle, AnnotationKind::Rectangle, dragged);
        test::row("ellipse", Tool::Ellipse, AnnotationKind::Ellipse, dragged);
        test::row("line", Tool::Line, AnnotationKind::Line, dragged);
        test::row("highlight", Tool::Highlight, AnnotationKind::Highlight, dragged);
        test::row("obscured area", Tool::Pixelate, AnnotationKind::Pixelate, dragged);
        test::row("pen", Tool::Pen, AnnotationKind::Pen, dragged);
        test::row("spotlight", Tool::Spotlight, AnnotationKind::Spotlight, dragged);
        test::row("loupe", Tool::Magnifier, AnnotationKind::Magnifier, dragged);
        test::row("stamp keeps square", Tool::Stamp, AnnotationKind::Stamp, square);
        test::row("sticker keeps square", Tool::Sticker, AnnotationKind::Sticker, square);
    }
    void pressAndDragMakesAMark()
    {
        QFETCH(Tool, tool);
        EditedCanvas canvas;
        canvas.store.activate(tool);
        canvas.drag({ 50, 60 }, { 130, 100 });
        QCOMPARE(canvas.count(), 1);
        QTEST(canvas.last().kind, "kind");
        QTEST(canvas.last().rect(), "box");
        QCOMPARE(canvas.store.selectedID(), canvas.last().id);
        QVERIFY(!canvas.view.controller().adornments().handles.isEmpty());
        QCOMPARE(canvas.store.tool(), tool);
        QCOMPARE(canvas.undoSteps(), 1);
        QVERIFY(canvas.store.hasUnsavedChanges());
    }

    void aNewMarkHasTheStyleOfTheTool()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Rectangle);
        ToolStyle style = canvas.store.toolStyle();
        style.colorHex = QStringLiteral("#34C759");
        style.lineWidth = 7;
        style.rectFilled = true;
        canvas.store.setToolStyle(style);
        canvas.drag({ 50, 60 }, { 130, 100 });
        QCOMPARE(canvas.last().colorHex, QStringLiteral("#34C759"));
        QCOMPARE(canvas.last().lineWidth, 7.0);
        QVERIFY(canvas.last().filled);
    }

    void dragOnAnUnselectedMarkMakesANewOne()
    {
        EditedCanvas canvas;
        canvas.add(AnnotationKind::Highlight, { 20, 20 }, { 200, 200 });
        canvas.store.activate(Tool::Rectangle);
        canvas.drag({ 50, 60 }, { 130, 100 });
        QCOMPARE(canvas.count(), 2);
        QCOMPARE(canvas.last().rect(), QRectF(50, 60, 80, 40));
    }

    void pressOnTheSelectedMarkReshapesIt_data()
    {
        test::columns<QPointF, QRectF>("press", "box");
        test::row("body: moves", QPointF(80, 70), QRectF(60, 65, 80, 40));
        test::row("handle: resizes", QPointF(130, 100), QRectF(50, 60, 90, 45));
    }
    void pressOnTheSelectedMarkReshapesIt()
    {
        QFETCH(QPointF, press);
        EditedCanvas canvas;
        canvas.store.activate(Tool::Rectangle);
        canvas.drag({ 50, 60 }, { 130, 100 });
        canvas.drag(press, press + QPointF(10, 5));
        QCOMPARE(canvas.count(), 1);
        QTEST(canvas.last().rect(), "box");
        QCOMPARE(canvas.undoSteps(), 2);
    }

    void ctrlAtThePressOverAMarkSelects()
    {
        EditedCanvas canvas;
        const QUuid below = canvas.add(AnnotationKind::Highlight, { 20, 20 }, { 200, 200 });
        canvas.store.activate(Tool::Rectangle);
        canvas.click({ 50, 60 }, Qt::ControlModifier);
        QCOMPARE(canvas.store.selectedID(), below);
        canvas.store.setSelectedID(std::nullopt);
        canvas.press({ 50, 60 }, Qt::ControlModifier);
        canvas.moveTo({ 60, 60 });
        canvas.release();
        QCOMPARE(canvas.count(), 1);
        QCOMPARE(canvas.last().rect(), QRectF(30, 20, 180, 180));
        QCOMPARE(canvas.store.tool(), Tool::Rectangle);
    }

    void clickSelectsDeselectsOrPlaces_data()
    {
        test::columns<Tool, QPointF, bool, QRectF>("tool", "at", "selectsTheBox", "placed");
        const QPointF onBox(60, 60), bare(300, 200);
        test::row("rectangle on a mark", Tool::Rectangle, onBox, true, QRectF());
        test::row("rectangle on the canvas", Tool::Rectangle, bare, false, QRectF());
        test::row("arrow on the canvas", Tool::Arrow, bare, false, QRectF());
        test::row("stamp", Tool::Stamp, bare, false, QRectF(280, 180, 40, 40));
        test::row("sticker", Tool::Sticker, bare, false, QRectF(268, 168, 64, 64));
        test::row("pen: a dot", Tool::Pen, bare, false, QRectF(300, 200, 0, 0));
    }
    void clickSelectsDeselectsOrPlaces()
    {
        QFETCH(Tool, tool);
        QFETCH(QPointF, at);
        QFETCH(bool, selectsTheBox);
        QFETCH(QRectF, placed);
        EditedCanvas canvas;
        const QUuid box = canvas.add(AnnotationKind::Highlight, { 20, 20 }, { 100, 100 });
        canvas.store.activate(tool);
        canvas.press(at);
        canvas.moveTo(at + QPointF(2, 3)); // less than the threshold
        canvas.release();
        const bool places = !placed.isNull() || tool == Tool::Pen;
        QCOMPARE(canvas.count(), places ? 2 : 1);
        QCOMPARE(canvas.undoSteps(), places ? 1 : 0);
        QCOMPARE(canvas.store.hasUnsavedChanges(), places);
        if (places) {
            QCOMPARE(canvas.last().rect(), placed);
            QCOMPARE(canvas.store.selectedID(), canvas.last().id);
        } else {
            QCOMPARE(canvas.store.selectedID(), selectsTheBox ? std::optional(box) : std::nullopt);
        }
    }

    void aTextBeginsWhereItIsClicked()
    {
        EditedCanvas canvas;
        QSignalSpy edits(&canvas.view.controller(), &CanvasController::editTextRequested);
        canvas.store.activate(Tool::Text);
        canvas.click({ 100, 80 });
        QCOMPARE(edits.size(), 1);
        QCOMPARE(edits[0][0].toUuid(), canvas.last().id);
        QVERIFY(edits[0][2].toBool());
        QVERIFY(canvas.view.controller().visibleBox(canvas.last().id).contains({ 100, 80 }));
        QCOMPARE(canvas.last().p1.x(), 100.0);
        QVERIFY(canvas.last().text.isEmpty());
    }

    void theTextToolPutsTheCaretIntoATextThatIsThere()
    {
        EditedCanvas canvas;
        Annotation text(AnnotationKind::Text, { 50, 50 }, { 50, 50 });
        text.text = QStringLiteral("Hello there");
        canvas.add(text);
        QSignalSpy edits(&canvas.view.controller(), &CanvasController::editTextRequested);
        canvas.store.activate(Tool::Text);
        canvas.click({ 70, 60 });
        QCOMPARE(canvas.count(), 1);
        QCOMPARE(canvas.store.selectedID(), text.id);
        QCOMPARE(edits.size(), 1);
        QVERIFY(!edits[0][2].toBool());
    }

    void numberStampsCountOn()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Stamp);
        ToolStyle style = canvas.store.toolStyle();
        style.stampKind = StampKind::Number;
        canvas.store.setToolStyle(style);
        canvas.click({ 50, 50 });
        canvas.pull({ 150, 50 }, { 180, 90 });
        canvas.key(Qt::Key_Escape); // an abandoned stamp gives its number back
        canvas.release();
        canvas.drag({ 150, 50 }, { 180, 90 });
        QCOMPARE(canvas.last().text, QStringLiteral("2"));
        QCOMPARE(canvas.store.nextStampNumber(), 3);
        canvas.store.undo();
        QCOMPARE(canvas.store.nextStampNumber(), 2);
    }

    void theImageToolAsksForAPicture()
    {
        EditedCanvas canvas;
        QSignalSpy asked(&canvas.view, &CanvasView::imageRequested);
        canvas.store.activate(Tool::ImageOverlay);
        canvas.click({ 120, 90 });
        QCOMPARE(asked.size(), 1);
        QCOMPARE(asked[0][0].toPointF(), QPointF(120, 90));
        QCOMPARE(canvas.count(), 0);
    }

    void modifiersShapeTheNewMark_data()
    {
        test::columns<Tool, Qt::KeyboardModifiers, QPointF, QRectF>("tool", "modifiers", "to", "box");
        const auto shift = Qt::KeyboardModifiers(Qt::ShiftModifier), alt = Qt::KeyboardModifiers(Qt::AltModifier);
        test::row("square", Tool::Rectangle, shift, QPointF(160, 130), QRectF(100, 100, 60, 60));
        test::row("circle, up and left", Tool::Ellipse, shift, QPointF(70, 90), QRectF(70, 70, 30, 30));
        test::row("centre", Tool::Rectangle, alt, QPointF(130, 120), QRectF(70, 80, 60, 40));
        test::row("square about the centre", Tool::Rectangle, (shift | alt), QPointF(130, 120), QRectF(70, 70, 60, 60));
        test::row("level line", Tool::Line, shift, QPointF(160, 103), QRectF(100, 100, 60, 0));
        test::row("diagonal arrow", Tool::Arrow, shift, QPointF(158, 162), QRectF(100, 100, 60, 60));
        test::row("line about its middle", Tool::Line, alt, QPointF(130, 120), QRectF(70, 80, 60, 40));
        test::row("free stamp", Tool::Stamp, shift, QPointF(160, 130), QRectF(100, 100, 60, 30));
    }
    void modifiersShapeTheNewMark()
    {
        QFETCH(Tool, tool);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QPointF, to);
        QFETCH(QRectF, box);
        EditedCanvas canvas;
        canvas.store.activate(tool);
        canvas.drag({ 100, 100 }, to, modifiers);
        const QRectF made = canvas.last().rect();
        QVERIFY(lengthOf(made.topLeft() - box.topLeft()) < 0.01);
        QVERIFY(lengthOf(made.bottomRight() - box.bottomRight()) < 0.01);
    }

    void modifiersCountWithoutMovement()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Rectangle);
        canvas.pull({ 100, 100 }, { 160, 130 });
        canvas.holdKey(Qt::Key_Shift);
        QCOMPARE(canvas.last().rect(), QRectF(100, 100, 60, 60));
        canvas.letGoKey(Qt::Key_Shift);
        QCOMPARE(canvas.last().rect(), QRectF(100, 100, 60, 30));
        canvas.release();
    }

    void shiftDrawsAStraightPieceWithThePen()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Pen);
        canvas.pull({ 20, 20 }, { 50, 20 });
        const qsizetype before = canvas.last().points.size();
        for (const double x : { 60.0, 75.0, 90.0 })
            canvas.moveTo({ x, x * 2 }, Qt::ShiftModifier);
        QCOMPARE(canvas.last().points.size(), before + 1);
        canvas.moveTo({ 95, 180 });
        canvas.release();
        QCOMPARE(canvas.last().points.size(), before + 2);
        QCOMPARE(canvas.last().points[before], QPointF(90, 180));
        QCOMPARE(canvas.last().rect(), QRectF(20, 20, 75, 160));
    }

    void spaceMovesTheUnfinishedMark_data()
    {
        QTest::addColumn<Tool>("tool");
        test::row("rectangle", Tool::Rectangle);
        test::row("arrow", Tool::Arrow);
        test::row("pen", Tool::Pen);
    }
    void spaceMovesTheUnfinishedMark()
    {
        QFETCH(Tool, tool);
        EditedCanvas canvas;
        canvas.store.activate(tool);
        canvas.pull({ 50, 50 }, { 90, 80 });
        canvas.holdKey(Qt::Key_Space);
        canvas.moveTo({ 110, 70 });
        QCOMPARE(canvas.last().rect(), QRectF(70, 40, 40, 30));
        canvas.letGoKey(Qt::Key_Space);
        canvas.moveTo({ 130, 90 });
        canvas.release();
        QCOMPARE(canvas.last().rect(), QRectF(70, 40, 60, 50));
        QCOMPARE(canvas.undoSteps(), 1);
    }

    void wheelChangesTheUnfinishedMark_data()
    {
        QTest::addColumn<Tool>("tool");
        test::row("stroke width", Tool::Rectangle);
        test::row("strength", Tool::Pixelate);
        test::row("magnification", Tool::Magnifier);
    }
    void wheelChangesTheUnfinishedMark()
    {
        QFETCH(Tool, tool);
        EditedCanvas canvas;
        canvas.store.activate(tool);
        const ToolStyle before = canvas.store.toolStyle();
        canvas.pull({ 50, 50 }, { 90, 80 });
        const Annotation drawn = canvas.last();
        canvas.turnWheel({ 90, 80 }, 1);
        canvas.turnWheel({ 90, 80 }, 1);
        QVERIFY(canvas.last() != drawn);
        QCOMPARE(canvas.last().rect(), drawn.rect());
        QVERIFY(canvas.store.toolStyle() != before);
        canvas.turnWheel({ 90, 80 }, -1);
        canvas.turnWheel({ 90, 80 }, -1);
        QCOMPARE(canvas.last(), drawn);
        canvas.release();
        QCOMPARE(canvas.undoSteps(), 1);
    }

    void altWheelChangesTheSelectedMark()
    {
        EditedCanvas canvas;
        canvas.store.setSelectedID(canvas.add(AnnotationKind::Rectangle, { 50, 50 }, { 150, 150 }));
        canvas.moveTo({ 50, 100 });
        for (int notch = 0; notch < 3; ++notch)
            canvas.turnWheel({ 50, 100 }, 1, Qt::AltModifier);
        QCOMPARE(canvas.last().lineWidth, 7.0);
        QCOMPARE(canvas.store.toolStyle().lineWidth, 7.0);
        QCOMPARE(canvas.undoSteps(), 1); // notches in quick succession
        canvas.moveTo({ 300, 250 });
        canvas.turnWheel({ 300, 250 }, 1, Qt::AltModifier);
        QCOMPARE(canvas.last().lineWidth, 7.0);
    }

    void escapeOrTheRightButtonPutsAllBack_data()
    {
        test::columns<Tool, bool>("tool", "byKey");
        for (const bool byKey : { true, false }) {
            const char *way = byKey ? "Escape" : "right button";
            QTest::addRow("a new rectangle, %s", way) << Tool::Rectangle << byKey;
            QTest::addRow("a new pen stroke, %s", way) << Tool::Pen << byKey;
            QTest::addRow("a new number stamp, %s", way) << Tool::Stamp << byKey;
            QTest::addRow("a move, %s", way) << Tool::Select << byKey;
        }
    }
    void escapeOrTheRightButtonPutsAllBack()
    {
        QFETCH(Tool, tool);
        QFETCH(bool, byKey);
        EditedCanvas canvas;
        canvas.add(AnnotationKind::Highlight, { 40, 40 }, { 100, 100 });
        const QUuid other = canvas.add(AnnotationKind::Line, { 200, 200 }, { 250, 250 });
        canvas.store.activate(tool);
        ToolStyle style = canvas.store.toolStyle();
        style.stampKind = StampKind::Number;
        canvas.store.setToolStyle(style);
        canvas.store.setSelectedID(other);
        const Snapshot before = canvas.store.currentSnapshot();

        canvas.pull({ 60, 60 }, { 120, 90 });
        QVERIFY(canvas.store.currentSnapshot() != before);
        canvas.turnWheel({ 120, 90 }, 1);
        if (byKey)
            canvas.key(Qt::Key_Escape);
        else
            canvas.press({ 120, 90 }, {}, Qt::RightButton);
        QCOMPARE(canvas.store.currentSnapshot(), before);
        QCOMPARE(canvas.store.toolStyle(), style);
        QCOMPARE(canvas.store.selectedID(), other);
        QVERIFY(!canvas.store.hasUnsavedChanges());
        QVERIFY(!canvas.store.canUndo());

        canvas.moveTo({ 140, 110 }); // the button is still down
        canvas.release();
        QCOMPARE(canvas.store.currentSnapshot(), before);
        QCOMPARE(canvas.store.selectedID(), other);
    }

    void closingDuringADragPutsAllBack()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Rectangle);
        TextGeometry text;
        auto controller = std::make_unique<CanvasController>(canvas.store, text, canvas.clock);
        controller->press({ { 60, 60 }, Qt::LeftButton, Qt::LeftButton });
        controller->move({ { 90, 90 }, Qt::NoButton, Qt::LeftButton });
        QCOMPARE(canvas.count(), 1);
        controller.reset();
        QCOMPARE(canvas.count(), 0);
        QVERIFY(!canvas.store.canUndo());
    }

    void aDragBackToThePressIsOnePointLarge()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Rectangle);
        canvas.pull({ 50, 50 }, { 90, 80 });
        canvas.moveTo({ 50, 50 });
        canvas.release();
        QCOMPARE(canvas.last().rect().size(), QSizeF(1, 1));
    }

    void placesAndThresholdsHoldAtEveryZoom_data()
    {
        QTest::addColumn<double>("scale");
        test::row("75 %", 0.75);
        test::row("200 %", 2.0);
        test::row("400 %", 4.0);
    }
    void placesAndThresholdsHoldAtEveryZoom()
    {
        QFETCH(double, scale);
        EditedCanvas canvas({ 120, 90 });
        canvas.zoom.setScale(scale);
        canvas.store.activate(Tool::Rectangle);
        canvas.drag({ 20, 20 }, QPointF(20, 20) + QPointF(3.9, 0) / scale);
        QCOMPARE(canvas.count(), 0);
        canvas.drag({ 20, 20 }, { 50, 60 });
        const QRectF made = canvas.last().rect();
        QVERIFY(lengthOf(made.topLeft() - QPointF(20, 20)) < 1e-6);
        QVERIFY(lengthOf(made.bottomRight() - QPointF(50, 60)) < 1e-6);
    }
};

QTEST_MAIN(CreateRowsTest)
#include "CreateRowsTest.moc"
