// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Editor/Canvas/EditedCanvas.h"

using namespace tessaly;
using test::EditedCanvas;

/// Escape goes down one rung a press.
class EscapeRowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fromADragDownToTheSelectTool()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Rectangle);
        canvas.drag({ 20, 20 }, { 80, 80 });
        const Snapshot before = canvas.store.currentSnapshot();
        canvas.pull({ 50, 20 }, { 150, 120 });
        QVERIFY(canvas.store.currentSnapshot() != before);
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.store.currentSnapshot(), before); // the drag
        QVERIFY(canvas.store.selectedID());
        canvas.release();
        canvas.key(Qt::Key_Escape);
        QVERIFY(!canvas.store.selectedID());
        QCOMPARE(canvas.store.tool(), Tool::Rectangle);
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.store.tool(), Tool::Select);
        QCOMPARE(canvas.undoSteps(), 1);
    }

    void whatCouldBeRedoneSurvivesACancelledDrag()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Rectangle);
        canvas.drag({ 20, 20 }, { 80, 80 });
        const Snapshot drawn = canvas.store.currentSnapshot();
        canvas.store.undo();
        canvas.pull({ 50, 20 }, { 150, 120 });
        canvas.key(Qt::Key_Escape);
        canvas.release();
        canvas.store.redo();
        QCOMPARE(canvas.store.currentSnapshot(), drawn);
    }

    void fromATextItStaysSelected()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Text);
        canvas.click({ 50, 50 });
        QTest::keyClicks(&canvas.view, QStringLiteral("abc"));
        canvas.key(Qt::Key_Escape);
        QVERIFY(!canvas.view.isEditingText());
        QVERIFY(canvas.store.selectedID());
        canvas.key(Qt::Key_Escape);
        QVERIFY(!canvas.store.selectedID());
        QCOMPARE(canvas.store.tool(), Tool::Text);
    }

    void aCropIsCancelledWithItsDragFirst()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Crop);
        canvas.pull({ 0, 0 }, { 100, 100 });
        QVERIFY(canvas.store.cropRect() != QRectF(0, 0, 400, 300));
        canvas.key(Qt::Key_Escape);
        QVERIFY(canvas.store.isCropping());
        QCOMPARE(canvas.store.cropRect(), QRectF(0, 0, 400, 300));
        canvas.release();
        canvas.key(Qt::Key_Escape);
        QVERIFY(!canvas.store.isCropping());
        QCOMPARE(canvas.undoSteps(), 0);
    }

    void theEditorNeverClosesByIt()
    {
        QWidget window;
        EditedCanvas canvas;
        canvas.view.setParent(&window);
        window.show();
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(&canvas.view, &event);
        QVERIFY(event.isAccepted());
        QVERIFY(window.isVisible());
        canvas.view.setParent(nullptr);
    }
};

QTEST_MAIN(EscapeRowsTest)
#include "EscapeRowsTest.moc"
