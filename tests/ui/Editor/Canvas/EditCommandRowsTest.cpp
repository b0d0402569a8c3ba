// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkClipboard.h"
#include "tests/support/SampleMarks.h"
#include "tests/ui/Editor/Canvas/EditedCanvas.h"

#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace tessaly;
using test::EditedCanvas;

/// The commands on marks by their keys, tool letters and digits, and drops.
class EditCommandRowsTest : public QObject {
    Q_OBJECT

    static void press(EditedCanvas &canvas, QKeyCombination key) { canvas.key(key.key(), key.keyboardModifiers()); }

private Q_SLOTS:
    void keysActOnTheSelectedMark_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("count"); ///< of marks afterwards
        QTest::addColumn<int>("place"); ///< of the selected one; -1 for none
        QTest::newRow("Delete") << int(Qt::Key_Delete) << 2 << -1;
        QTest::newRow("Backspace") << int(Qt::Key_Backspace) << 2 << -1;
        QTest::newRow("cut") << (Qt::CTRL | Qt::Key_X).toCombined() << 2 << -1;
        QTest::newRow("duplicate") << (Qt::CTRL | Qt::Key_D).toCombined() << 4 << 3;
        QTest::newRow("forward") << int(Qt::Key_PageUp) << 3 << 2;
        QTest::newRow("backward") << int(Qt::Key_PageDown) << 3 << 0;
        QTest::newRow("to the front") << int(Qt::Key_Home) << 3 << 2;
        QTest::newRow("to the back") << int(Qt::Key_End) << 3 << 0;
        QTest::newRow("palette colour") << int(Qt::Key_4) << 3 << 1;
        QTest::newRow("saved style") << (Qt::ALT | Qt::Key_2).toCombined() << 3 << 1;
        QTest::newRow("right") << int(Qt::Key_Right) << 3 << 1;
    }
    void keysActOnTheSelectedMark()
    {
        QFETCH(int, key);
        QFETCH(int, count);
        QFETCH(int, place);
        EditedCanvas canvas;
        for (int index = 0; index < 3; ++index)
            canvas.add(AnnotationKind::Arrow, { 50.0 * index, 20 }, { 50.0 * index + 40, 60 });
        const Snapshot before = canvas.store.currentSnapshot();
        press(canvas, QKeyCombination::fromCombined(key));
        QCOMPARE(canvas.undoSteps(), 0); // nothing is selected
        QCOMPARE(canvas.store.currentSnapshot(), before);

        canvas.store.setSelectedID(canvas.store.annotations().at(1).id);
        press(canvas, QKeyCombination::fromCombined(key));
        QCOMPARE(canvas.count(), count);
        const auto selected = canvas.store.selectedID();
        QCOMPARE(selected ? int(*canvas.store.indexOf(*selected)) : -1, place);
        QCOMPARE(canvas.undoSteps(), 1);
        canvas.store.undo();
        QCOMPARE(canvas.store.currentSnapshot(), before);
    }

    void aMarkGoesThroughTheClipboard()
    {
        EditedCanvas canvas;
        canvas.store.setSelectedID(canvas.add(AnnotationKind::Rectangle, { 20, 20 }, { 60, 60 }));
        press(canvas, Qt::CTRL | Qt::Key_C);
        QVERIFY(canvas.clipboard.types().contains(QLatin1StringView(MarkClipboard::mimeType)));
        EditedCanvas other;
        other.clipboard.offer(std::move(canvas.clipboard.content));
        press(other, Qt::CTRL | Qt::Key_V);
        QCOMPARE(other.last().p1, QPointF(30, 30));
        QCOMPARE(other.undoSteps(), 1);
    }

    void copyWithNothingSelectedMeansThePicture()
    {
        EditedCanvas canvas;
        QSignalSpy requested(&canvas.view, &CanvasView::copyImageRequested);
        canvas.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(requested.count(), 1);
        QVERIFY(!canvas.clipboard.content);
    }

    void whatCannotBePastedIsToldInPassing()
    {
        EditedCanvas canvas;
        QSignalSpy told(&canvas.view, &CanvasView::message);
        canvas.clipboard.offer(std::make_unique<test::FixedOffer>(QStringLiteral("image/png"), "no picture"));
        canvas.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(told.count(), 1);
        QCOMPARE(canvas.count(), 0);
    }

    void stylesAreCopiedBetweenEditors()
    {
        EditedCanvas canvas;
        const QUuid first = canvas.add(AnnotationKind::Line, { 20, 20 }, { 60, 60 });
        const QUuid second = canvas.add(AnnotationKind::Line, { 120, 20 }, { 160, 60 });
        canvas.store.setSelectedID(first);
        canvas.store.updateSelection(Undo::Skip, [](Annotation &mark) { mark.lineWidth = 11; });
        press(canvas, Qt::CTRL | Qt::ALT | Qt::Key_C);
        canvas.store.setSelectedID(second);
        press(canvas, Qt::CTRL | Qt::ALT | Qt::Key_V);
        QCOMPARE(canvas.last().lineWidth, 11.0);
    }

    void lettersSwitchToolsOnlyWhileNothingElseHappens()
    {
        EditedCanvas canvas;
        canvas.key(Qt::Key_R);
        QCOMPARE(canvas.store.tool(), Tool::Rectangle);
        canvas.pull({ 20, 20 }, { 80, 80 });
        canvas.key(Qt::Key_A);
        canvas.key(Qt::Key_Delete);
        QCOMPARE(canvas.store.tool(), Tool::Rectangle);
        canvas.release();
        QCOMPARE(canvas.count(), 1);
        canvas.key(Qt::Key_A, Qt::ShiftModifier);
        QCOMPARE(canvas.store.tool(), Tool::Rectangle);
        canvas.key(Qt::Key_V);
        QCOMPARE(canvas.store.tool(), Tool::Select);
        QCOMPARE(canvas.store.selectedID(), canvas.last().id); // still there to be moved
    }

    void snappingIsSwitched()
    {
        EditedCanvas canvas;
        QSignalSpy changed(&canvas.view, &CanvasView::commandsChanged);
        press(canvas, Qt::CTRL | Qt::Key_Semicolon);
        QVERIFY(canvas.view.controller().snapping());
        QCOMPARE(changed.count(), 1);
    }

    void tabStaysWhileThereAreMarks()
    {
        QWidget window;
        QWidget next(&window);
        next.setFocusPolicy(Qt::TabFocus);
        EditedCanvas canvas;
        canvas.view.setParent(&window);
        QWidget::setTabOrder(&canvas.view, &next);
        window.show();
        canvas.view.show();
        window.activateWindow();
        canvas.view.setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const QUuid first = canvas.add(AnnotationKind::Line, { 20, 20 }, { 60, 60 });
        const QUuid second = canvas.add(AnnotationKind::Line, { 120, 20 }, { 160, 60 });
        canvas.key(Qt::Key_Tab);
        QCOMPARE(canvas.store.selectedID(), first);
        canvas.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(canvas.store.selectedID(), second);
        QVERIFY(canvas.view.hasFocus());
        canvas.key(Qt::Key_F6);
        QVERIFY(next.hasFocus());
        canvas.store.setAnnotations({});
        canvas.view.setFocus();
        canvas.key(Qt::Key_Tab);
        QVERIFY(next.hasFocus());
        canvas.view.setParent(nullptr);
    }

    void droppedThings_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("taken");
        QTest::newRow("a picture") << "a.png" << true;
        QTest::newRow("a document is for the window") << "b.tessaly" << false;
        QTest::newRow("a file that is not there") << "c.png" << false;
    }
    void droppedThings()
    {
        QFETCH(QString, name);
        QFETCH(bool, taken);
        QTemporaryDir folder;
        QVERIFY(QImage(40, 20, QImage::Format_RGB32).save(folder.filePath(QStringLiteral("a.png"))));
        QVERIFY(QFile::copy(folder.filePath(QStringLiteral("a.png")), folder.filePath(QStringLiteral("b.tessaly"))));
        EditedCanvas canvas;
        QMimeData data;
        data.setUrls({ QUrl::fromLocalFile(folder.filePath(name)) });
        const QPoint place = canvas.viewPosition({ 100, 80 }).toPoint();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&canvas.view, &enter);
        QCOMPARE(enter.isAccepted(), taken);
        QDropEvent drop(canvas.viewPosition({ 100, 80 }), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        drop.ignore();
        QApplication::sendEvent(&canvas.view, &drop);
        QCOMPARE(drop.isAccepted(), taken);
        QCOMPARE(canvas.count(), taken ? 1 : 0);
        if (taken)
            QCOMPARE(canvas.last().rect(), QRectF(80, 70, 40, 20));
    }

    void pasteIsOfferedForWhatCanBePasted()
    {
        EditedCanvas canvas;
        QVERIFY(!canvas.view.canPerform(CommandId::Paste));
        canvas.clipboard.offer(std::make_unique<test::FixedOffer>(QStringLiteral("image/png"), test::samplePng()));
        QVERIFY(canvas.view.canPerform(CommandId::Paste));
        QVERIFY(!canvas.view.canPerform(CommandId::Cut));
        QVERIFY(!canvas.view.knows(CommandId::Undo)); // the editor's, while no text is edited
    }
};

QTEST_MAIN(EditCommandRowsTest)
#include "EditCommandRowsTest.moc"
