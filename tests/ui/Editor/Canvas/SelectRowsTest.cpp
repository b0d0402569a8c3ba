// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Editor/Canvas/EditedCanvas.h"

#include <QSignalSpy>

using namespace tessaly;
using test::EditedCanvas;

/// Selecting and moving, a gesture a test.
class SelectRowsTest : public QObject {
    Q_OBJECT

    static Annotation numberStamp(int number)
    {
        Annotation stamp(AnnotationKind::Stamp, { 40, 40 }, { 80, 80 });
        stamp.stamp = StampKind::Number;
        stamp.text = QString::number(number);
        return stamp;
    }

private Q_SLOTS:
    void clickSelectsWithoutChangingTheDocument()
    {
        EditedCanvas canvas;
        Annotation mark(AnnotationKind::Rectangle, { 50, 50 }, { 150, 150 });
        mark.colorHex = QStringLiteral("#34C759");
        canvas.add(mark);
        canvas.click({ 50, 100 });
        QCOMPARE(canvas.store.selectedID(), mark.id);
        QCOMPARE(canvas.store.toolStyle().colorHex, mark.colorHex); // the options show it
        QVERIFY(!canvas.store.hasUnsavedChanges());
        QVERIFY(!canvas.store.canUndo());
        canvas.click({ 300, 250 });
        QVERIFY(!canvas.store.selectedID());
        QVERIFY(!canvas.store.hasUnsavedChanges());
    }

    void theTopmostVisiblePartWithinReachIsSelected_data()
    {
        QTest::addColumn<QPointF>("at");
        QTest::addColumn<int>("selected");
        QTest::newRow("both: the upper") << QPointF(150, 60) << 1;
        QTest::newRow("beside the upper's stroke") << QPointF(150 - 9.5, 100) << 1;
        QTest::newRow("beyond reach of the upper's stroke") << QPointF(200, 100) << -1;
        QTest::newRow("the lower alone") << QPointF(60, 60) << 0;
        QTest::newRow("within 8 px of the lower") << QPointF(43, 60) << 0;
        QTest::newRow("beyond") << QPointF(41, 60) << -1;
    }
    void theTopmostVisiblePartWithinReachIsSelected()
    {
        QFETCH(QPointF, at);
        QFETCH(int, selected);
        EditedCanvas canvas;
        canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 160, 70 });
        canvas.add(AnnotationKind::Rectangle, { 150, 50 }, { 250, 150 });
        canvas.click(at);
        const auto expected = selected < 0 ? std::nullopt : std::optional(canvas.store.annotations()[selected].id);
        QCOMPARE(canvas.store.selectedID(), expected);
    }

    void altClickGoesDeeperAndWraps()
    {
        EditedCanvas canvas;
        QList<QUuid> ids;
        for (int index = 0; index < 3; ++index)
            ids += canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150.0 + index, 150 });
        canvas.click({ 100, 100 });
        for (const int expected : { 1, 0, 2, 1 }) {
            canvas.click({ 100, 100 }, Qt::AltModifier);
            QCOMPARE(canvas.store.selectedID(), ids[expected]);
        }
        QVERIFY(!canvas.store.canUndo());
    }

    void tabGoesThroughTheMarksInOrder()
    {
        EditedCanvas canvas;
        QSignalSpy announced(&canvas.view.controller(), &CanvasController::announced);
        Annotation text(AnnotationKind::Text, { 50, 50 }, { 50, 50 });
        text.text = QStringLiteral("Hello");
        const QUuid first = canvas.add(text), second = canvas.add(AnnotationKind::Arrow, { 10, 10 }, { 90, 90 });
        canvas.key(Qt::Key_Tab);
        QCOMPARE(canvas.store.selectedID(), first);
        QCOMPARE(announced[0][0].toString(), QStringLiteral("Text “Hello”, 1 of 2"));
        canvas.key(Qt::Key_Tab);
        QCOMPARE(canvas.store.selectedID(), second);
        QCOMPARE(announced[1][0].toString(), QStringLiteral("Arrow, 2 of 2"));
        QVERIFY(announced[1][1].toRectF().contains(QRectF(10, 10, 80, 80)));
        canvas.key(Qt::Key_Tab);
        QCOMPARE(canvas.store.selectedID(), first);
        canvas.key(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(canvas.store.selectedID(), second);
    }

    void dragMovesAMark_data()
    {
        QTest::addColumn<AnnotationKind>("kind");
        for (const auto &row : enumNames<AnnotationKind>)
            QTest::newRow(row.raw.data()) << row.value;
    }
    void dragMovesAMark()
    {
        QFETCH(AnnotationKind, kind);
        EditedCanvas canvas;
        Annotation mark(kind, { 50, 50 }, { 150, 120 });
        mark.text = QStringLiteral("Hello");
        mark.filled = true;
        if (kind == AnnotationKind::Pen)
            mark.points = { { 50, 50 }, { 60, 60 }, { 150, 120 } };
        canvas.add(mark);
        canvas.drag({ 60, 60 }, { 90, 80 });
        QCOMPARE(canvas.store.selectedID(), mark.id);
        QCOMPARE(canvas.last().p1, QPointF(80, 70));
        QCOMPARE(canvas.last().p2, QPointF(180, 140));
        if (kind == AnnotationKind::Pen)
            QCOMPARE(canvas.last().points[1], QPointF(90, 80));
        QCOMPARE(canvas.undoSteps(), 1);
        canvas.drag({ 90, 80 }, { 93, 82 }); // a click that trembled
        QCOMPARE(canvas.last().p1, QPointF(80, 70));
        QCOMPARE(canvas.undoSteps(), 1);
    }

    void aDragThatEndsWhereItBeganLeavesNoStep()
    {
        EditedCanvas canvas;
        const QUuid mark = canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 });
        canvas.pull({ 60, 60 }, { 90, 80 });
        canvas.moveTo({ 60, 60 });
        canvas.release();
        QVERIFY(!canvas.store.canUndo());
        QVERIFY(!canvas.store.hasUnsavedChanges());
        QCOMPARE(canvas.store.selectedID(), mark);
    }

    void shiftLocksTheNearerAxis()
    {
        EditedCanvas canvas;
        canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 });
        canvas.pull({ 60, 60 }, { 90, 70 }, Qt::ShiftModifier);
        QCOMPARE(canvas.last().p1, QPointF(80, 50));
        canvas.moveTo({ 65, 90 }, Qt::ShiftModifier);
        QCOMPARE(canvas.last().p1, QPointF(50, 80));
        canvas.letGoKey(Qt::Key_Shift);
        QCOMPARE(canvas.last().p1, QPointF(55, 80));
        canvas.release();
    }

    void ctrlMovesACopy()
    {
        EditedCanvas canvas;
        const QUuid original = canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 });
        canvas.drag({ 60, 60 }, { 90, 80 }, Qt::ControlModifier);
        QCOMPARE(canvas.count(), 2);
        QCOMPARE(canvas.store.annotations()[0].p1, QPointF(50, 50));
        QCOMPARE(canvas.last().p1, QPointF(80, 70));
        QVERIFY(canvas.last().id != original);
        QCOMPARE(canvas.store.selectedID(), canvas.last().id);
        QCOMPARE(canvas.undoSteps(), 1);
    }

    void ctrlCountsAlsoAfterTheDragBegan()
    {
        EditedCanvas canvas;
        const QUuid original = canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 });
        canvas.pull({ 60, 60 }, { 90, 80 });
        canvas.holdKey(Qt::Key_Control);
        QCOMPARE(canvas.count(), 2);
        QCOMPARE(canvas.view.controller().cursor().cursor, CanvasCursor::DragCopy);
        canvas.letGoKey(Qt::Key_Control);
        QCOMPARE(canvas.count(), 1);
        QCOMPARE(canvas.last().p1, QPointF(80, 70));
        QCOMPARE(canvas.store.selectedID(), original);
        canvas.release();
        QCOMPARE(canvas.undoSteps(), 1);
    }

    void aCopiedNumberStampTakesTheNextNumber()
    {
        EditedCanvas canvas;
        canvas.add(numberStamp(1));
        canvas.store.setNextStampNumber(2);
        canvas.pull({ 60, 60 }, { 160, 60 }, Qt::ControlModifier);
        canvas.letGoKey(Qt::Key_Control);
        QCOMPARE(canvas.store.nextStampNumber(), 2); // nothing is skipped
        canvas.holdKey(Qt::Key_Control);
        canvas.release(Qt::ControlModifier);
        QCOMPARE(canvas.store.annotations()[0].text, QStringLiteral("1"));
        QCOMPARE(canvas.last().text, QStringLiteral("2"));
        QCOMPARE(canvas.store.nextStampNumber(), 3);
    }

    void numbersOfStampsAreNeitherSkippedNorDoubled()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Stamp);
        ToolStyle style = canvas.store.toolStyle();
        style.stampKind = StampKind::Number;
        canvas.store.setToolStyle(style);
        const auto numbers = [&] {
            QStringList all;
            for (const Annotation &mark : canvas.store.annotations())
                all += mark.text;
            return all.join(u' ');
        };
        canvas.click({ 40, 40 });
        canvas.key(Qt::Key_D, Qt::ControlModifier);
        canvas.key(Qt::Key_C, Qt::ControlModifier);
        canvas.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(numbers(), QStringLiteral("1 2 3"));
        canvas.store.undo();
        canvas.click({ 300, 40 });
        QCOMPARE(numbers(), QStringLiteral("1 2 3"));
        canvas.pull({ 300, 200 }, { 340, 240 }); // drawn by a drag and taken back
        canvas.key(Qt::Key_Escape);
        canvas.release();
        canvas.store.setSelectedID(canvas.last().id);
        canvas.drag({ 300, 40 }, { 300, 140 }, Qt::ControlModifier);
        QCOMPARE(numbers(), QStringLiteral("1 2 3 4"));
        canvas.store.undo();
        canvas.store.undo();
        canvas.store.redo();
        canvas.click({ 300, 250 });
        QCOMPARE(numbers(), QStringLiteral("1 2 3 4"));
    }

    void arrowKeysMoveInSteps()
    {
        EditedCanvas canvas;
        canvas.store.setSelectedID(canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 }));
        canvas.key(Qt::Key_Right);
        canvas.key(Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(canvas.last().rect(), QRectF(51, 40, 100, 100));
        canvas.key(Qt::Key_Right, Qt::ControlModifier);
        canvas.key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(canvas.last().rect(), QRectF(51, 40, 101, 110));
        QCOMPARE(canvas.undoSteps(), 1);
        canvas.clock.time = canvas.clock.time.addMSecs(1001);
        canvas.key(Qt::Key_Left);
        QCOMPARE(canvas.undoSteps(), 2);
        canvas.store.undo();
        QCOMPARE(canvas.last().rect(), QRectF(51, 40, 101, 110));
        canvas.store.undo();
        QCOMPARE(canvas.last().rect(), QRectF(50, 50, 100, 100));
    }

    void anotherChangeEndsASeriesOfSteps()
    {
        EditedCanvas canvas;
        canvas.store.setSelectedID(canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 }));
        canvas.key(Qt::Key_Right);
        canvas.store.updateSelection(Undo::Record, [](Annotation &mark) { mark.colorHex = QStringLiteral("#000000"); });
        canvas.key(Qt::Key_Right);
        QCOMPARE(canvas.undoSteps(), 3);
    }

    void ctrlArrowMovesALinesEnd()
    {
        EditedCanvas canvas;
        canvas.store.setSelectedID(canvas.add(AnnotationKind::Arrow, { 50, 50 }, { 150, 150 }));
        canvas.key(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(canvas.last().p1, QPointF(50, 50));
        QCOMPARE(canvas.last().p2, QPointF(149, 150));
    }

    void doubleClickOnATextEditsIt()
    {
        EditedCanvas canvas;
        Annotation text(AnnotationKind::Text, { 50, 50 }, { 50, 50 });
        text.text = QStringLiteral("Hello there");
        canvas.add(text);
        QSignalSpy edits(&canvas.view.controller(), &CanvasController::editTextRequested);
        canvas.doubleClick({ 70, 60 });
        QCOMPARE(edits.size(), 1);
        QCOMPARE(edits[0][0].toUuid(), text.id);
        QVERIFY(!edits[0][2].toBool());
        QVERIFY(!canvas.store.canUndo());
    }

    void escapeTakesOneRungAPress()
    {
        EditedCanvas canvas;
        const QUuid mark = canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 });
        canvas.store.activate(Tool::Rectangle);
        canvas.store.setSelectedID(mark);
        canvas.pull({ 60, 60 }, { 90, 80 });
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.last().p1, QPointF(50, 50));
        QCOMPARE(canvas.store.selectedID(), mark);
        canvas.release();
        canvas.key(Qt::Key_Escape);
        QVERIFY(!canvas.store.selectedID());
        QCOMPARE(canvas.store.tool(), Tool::Rectangle);
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.store.tool(), Tool::Select);
        QVERIFY(!canvas.view.controller().escape());
    }

    void undoDuringADragEndsIt()
    {
        EditedCanvas canvas;
        canvas.store.beginChange();
        canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 });
        canvas.pull({ 60, 60 }, { 90, 80 });
        canvas.store.undo();
        canvas.moveTo({ 100, 100 });
        canvas.release();
        QCOMPARE(canvas.last().p1, QPointF(50, 50));
        QCOMPARE(canvas.undoSteps(), 1); // that of making the mark
    }

    void thePointerShowsWhatItWouldDo_data()
    {
        QTest::addColumn<Tool>("tool");
        QTest::addColumn<QPointF>("at");
        QTest::addColumn<CanvasCursor>("cursor");
        const QPointF bare(300, 250), other(240, 60), selected(100, 100), corner(150, 150);
        QTest::newRow("canvas, Select") << Tool::Select << bare << CanvasCursor::Arrow;
        QTest::newRow("canvas, a drawing tool") << Tool::Pen << bare << CanvasCursor::Cross;
        QTest::newRow("canvas, Text") << Tool::Text << bare << CanvasCursor::Text;
        QTest::newRow("a mark") << Tool::Select << other << CanvasCursor::PointingHand;
        QTest::newRow("the selected body") << Tool::Select << selected << CanvasCursor::FourWay;
        QTest::newRow("a handle") << Tool::Select << corner << CanvasCursor::Resize;
        QTest::newRow("a handle, drawing tool") << Tool::Rectangle << corner << CanvasCursor::Resize;
    }
    void thePointerShowsWhatItWouldDo()
    {
        QFETCH(Tool, tool);
        QFETCH(QPointF, at);
        EditedCanvas canvas;
        canvas.add(AnnotationKind::Highlight, { 220, 50 }, { 260, 90 });
        const QUuid mark = canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 });
        canvas.store.activate(tool);
        canvas.store.setSelectedID(mark);
        canvas.moveTo(at);
        QTEST(canvas.view.controller().cursor().cursor, "cursor");
        QCOMPARE(canvas.view.controller().adornments().hovered.has_value(), at == QPointF(240, 60));
    }

    void hoveringTellsChangesOnly()
    {
        EditedCanvas canvas;
        canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 });
        auto &controller = canvas.view.controller();
        canvas.moveTo({ 300, 200 });
        QSignalSpy adornments(&controller, &CanvasController::adornmentsChanged);
        QSignalSpy cursors(&controller, &CanvasController::cursorChanged);
        canvas.moveTo({ 310, 210 });
        QCOMPARE(adornments.size() + cursors.size(), 0);
        canvas.moveTo({ 100, 100 });
        canvas.moveTo({ 110, 100 });
        QCOMPARE(adornments.size(), 1);
        QCOMPARE(cursors.size(), 1);
    }

    void whileMovingThePointerIsAClosedHand()
    {
        EditedCanvas canvas;
        canvas.add(AnnotationKind::Highlight, { 50, 50 }, { 150, 150 });
        canvas.pull({ 60, 60 }, { 90, 80 });
        QCOMPARE(canvas.view.controller().cursor().cursor, CanvasCursor::ClosedHand);
        canvas.release();
        QCOMPARE(canvas.view.controller().cursor().cursor, CanvasCursor::FourWay);
    }
};

QTEST_MAIN(SelectRowsTest)
#include "SelectRowsTest.moc"
