// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/Rows.h"
#include "tests/ui/Editor/Canvas/EditedCanvas.h"

#include <QInputMethodEvent>

using namespace tessaly;
using test::EditedCanvas;

/// Editing texts in place.
class TextRowsTest : public QObject {
    Q_OBJECT

    static Annotation textMark(const QString &text, QPointF at = { 50, 50 })
    {
        Annotation mark(AnnotationKind::Text, at, at);
        mark.text = text;
        mark.fontSize = 30;
        return mark;
    }

    /// Adds a text and edits it with everything selected.
    static QUuid edit(EditedCanvas &canvas, const QString &text)
    {
        const QUuid id = canvas.add(textMark(text));
        canvas.store.setSelectedID(id);
        canvas.key(Qt::Key_F2);
        return id;
    }

    /// As the options bar does.
    static void makeLarger(EditedCanvas &canvas)
    {
        ToolStyle style = canvas.store.toolStyle();
        style.textSize += 6;
        canvas.store.setToolStyle(style);
        canvas.store.applyStyleToSelection(Undo::Record);
    }

    static void type(EditedCanvas &canvas, const QString &text) { QTest::keyClicks(&canvas.view, text); }

private Q_SLOTS:
    void clickWithTheToolWritesAtOnce()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Text);
        canvas.click({ 100, 100 });
        QVERIFY(canvas.view.isEditingText());
        type(canvas, QStringLiteral("vat 1"));
        QCOMPARE(canvas.last().text, QStringLiteral("vat 1"));
        QCOMPARE(canvas.store.tool(), Tool::Text); // no letter switched it
        canvas.key(Qt::Key_Escape);
        QVERIFY(!canvas.view.isEditingText());
        QCOMPARE(canvas.store.selectedID(), canvas.last().id);
        QCOMPARE(canvas.undoSteps(), 1);
        canvas.store.undo();
        QCOMPARE(canvas.count(), 0);
    }

    void finishing_data()
    {
        test::columns<int, int, QString, bool>("key", "modifiers", "text", "stillEditing");
        test::row("Enter is a new line", int(Qt::Key_Return), int(Qt::NoModifier), "x\n", true);
        test::row("Ctrl+Enter", int(Qt::Key_Return), int(Qt::ControlModifier), "x", false);
        test::row("Escape", int(Qt::Key_Escape), int(Qt::NoModifier), "x", false);
    }
    void finishing()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(QString, text);
        QFETCH(bool, stillEditing);
        EditedCanvas canvas;
        edit(canvas, QStringLiteral("old"));
        type(canvas, QStringLiteral("x"));
        canvas.key(key, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(canvas.last().text, text);
        QCOMPARE(canvas.view.isEditingText(), stillEditing);
    }

    void aClickOutsideOnlyFinishes()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Text);
        canvas.click({ 100, 100 });
        type(canvas, QStringLiteral("one"));
        canvas.click({ 300, 250 });
        QVERIFY(!canvas.view.isEditingText());
        QCOMPARE(canvas.count(), 1);
        canvas.click({ 300, 250 });
        QVERIFY(canvas.view.isEditingText());
        QCOMPARE(canvas.count(), 2);
    }

    void anotherToolOrASaveFinishes()
    {
        EditedCanvas canvas;
        edit(canvas, QStringLiteral("old"));
        type(canvas, QStringLiteral("new"));
        canvas.store.activate(Tool::Arrow);
        QVERIFY(!canvas.view.isEditingText());
        edit(canvas, QStringLiteral("second"));
        type(canvas, QStringLiteral("saved"));
        canvas.view.finishTextEditing();
        QCOMPARE(canvas.store.annotations().first().text, QStringLiteral("new"));
        QCOMPARE(canvas.last().text, QStringLiteral("saved"));
        QCOMPARE(canvas.undoSteps(), 2);
    }

    void nothingIsLeftOfAnEmptyText_data()
    {
        test::columns<QString, bool>("typed", "restyled");
        test::row("nothing typed", "", false);
        test::row("blanks", "  ", false);
        test::row("in another size", "", true);
    }
    void nothingIsLeftOfAnEmptyText()
    {
        QFETCH(QString, typed);
        QFETCH(bool, restyled);
        EditedCanvas canvas;
        canvas.store.activate(Tool::Text);
        canvas.click({ 100, 100 });
        type(canvas, typed);
        if (restyled)
            makeLarger(canvas);
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.count(), 0);
        QVERIFY(!canvas.store.canUndo());
        QVERIFY(!canvas.store.hasUnsavedChanges());
        QVERIFY(canvas.view.controller().adornments().handles.isEmpty());
    }

    void aStyleChosenWhileWritingBelongsToTheStep()
    {
        EditedCanvas canvas;
        canvas.store.activate(Tool::Text);
        canvas.click({ 100, 100 });
        makeLarger(canvas);
        type(canvas, QStringLiteral("new"));
        makeLarger(canvas);
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.undoSteps(), 1);
        makeLarger(canvas);
        QCOMPARE(canvas.undoSteps(), 2);
        canvas.store.undo();
        canvas.store.undo();
        QCOMPARE(canvas.count(), 0);
    }

    void anOldTextThatIsEmptiedGoesAndComesBack()
    {
        EditedCanvas canvas;
        edit(canvas, QStringLiteral("old"));
        canvas.key(Qt::Key_Delete);
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.count(), 0);
        QCOMPARE(canvas.undoSteps(), 1);
        canvas.store.undo();
        QCOMPARE(canvas.last().text, QStringLiteral("old"));
    }

    void anUnchangedTextLeavesNoStep()
    {
        EditedCanvas canvas;
        const QUuid id = edit(canvas, QStringLiteral("same"));
        type(canvas, QStringLiteral("s"));
        canvas.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(canvas.last().text, QStringLiteral("same"));
        canvas.key(Qt::Key_Escape);
        QVERIFY(!canvas.store.canUndo());
        QVERIFY(!canvas.store.hasUnsavedChanges());
        QCOMPARE(canvas.store.selectedID(), id);
    }

    void theWholeEditIsOneStep()
    {
        EditedCanvas canvas;
        edit(canvas, QStringLiteral("old"));
        type(canvas, QStringLiteral("two words"));
        canvas.key(Qt::Key_Return);
        type(canvas, QStringLiteral("more"));
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.undoSteps(), 1);
        canvas.store.undo();
        QCOMPARE(canvas.last().text, QStringLiteral("old"));
    }

    void takenBackFromOutsideEndsTheEdit()
    {
        EditedCanvas canvas;
        edit(canvas, QStringLiteral("old"));
        type(canvas, QStringLiteral("new"));
        canvas.store.undo();
        QVERIFY(!canvas.view.isEditingText());
        QCOMPARE(canvas.last().text, QStringLiteral("old"));
        canvas.store.redo();
        QCOMPARE(canvas.last().text, QStringLiteral("new"));
    }

    void editingBegins_data()
    {
        // key: 0 for a double click on the second letter; text: after an X is typed
        test::columns<int, QString>("key", "text");
        test::row("F2 selects all", int(Qt::Key_F2), "X");
        test::row("Enter selects all", int(Qt::Key_Return), "X");
        test::row("a double click puts the caret there", 0, "XWW");
    }
    void editingBegins()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        EditedCanvas canvas;
        const Annotation mark = textMark(QStringLiteral("WW"));
        canvas.add(mark);
        if (key) {
            canvas.store.setSelectedID(mark.id);
            canvas.key(key);
        } else {
            canvas.doubleClick({ 52, 68 });
        }
        type(canvas, QStringLiteral("X"));
        QCOMPARE(canvas.last().text, text);
    }

    void keysMoveAndEdit_data()
    {
        // keys: key combinations, after the caret was put at the end; result: with a | typed at the end
        test::columns<QString, QList<int>, QString>("start", "keys", "result");
        const int ctrl = int(Qt::CTRL), shift = int(Qt::SHIFT);
        test::row("left", "ab", QList<int> { Qt::Key_Left }, "a|b");
        test::row("over a whole emoji", "a👩‍🚀", QList<int> { Qt::Key_Left }, "a|👩‍🚀");
        test::row("backspace takes a whole emoji", "a👩‍🚀", QList<int> { Qt::Key_Backspace }, "a|");
        test::row("word left", "one two", QList<int> { ctrl | Qt::Key_Left }, "one |two");
        test::row("word right", "one two", QList<int> { ctrl | Qt::Key_Home, ctrl | Qt::Key_Right }, "one |two");
        test::row("line start", "a\nbc", QList<int> { Qt::Key_Home }, "a\n|bc");
        test::row("text start", "a\nbc", QList<int> { ctrl | Qt::Key_Home }, "|a\nbc");
        test::row("line end", "ab\nc", QList<int> { ctrl | Qt::Key_Home, Qt::Key_End }, "ab|\nc");
        test::row("up keeps the column", "WW\nWW", QList<int> { Qt::Key_Left, Qt::Key_Up }, "W|W\nWW");
        test::row("up in the first line", "ab", QList<int> { Qt::Key_Up }, "|ab");
        test::row("down and up again through a short line", "WWW\nW\nWWW", QList<int> { Qt::Key_Up, Qt::Key_Up },
            "WWW|\nW\nWWW");
        test::row(
            "selected letters are replaced", "abc", QList<int> { shift | Qt::Key_Left, shift | Qt::Key_Left }, "a|");
        test::row("left leaves a selection at its start", "abc",
            QList<int> { shift | Qt::Key_Left, shift | Qt::Key_Left, Qt::Key_Left }, "a|bc");
        test::row("select all", "ab\nc", QList<int> { ctrl | Qt::Key_A }, "|");
        test::row("delete a word", "one two", QList<int> { ctrl | Qt::Key_Backspace }, "one |");
        test::row("cut and paste twice", "ab",
            QList<int> { ctrl | Qt::Key_A, ctrl | Qt::Key_X, ctrl | Qt::Key_V, ctrl | Qt::Key_V }, "abab|");
        test::row("undo and redo", "ab",
            QList<int> { Qt::Key_Backspace, Qt::Key_Backspace, ctrl | Qt::Key_Z, ctrl | Qt::Key_Z, ctrl | Qt::Key_Y },
            "a|");
        test::row(
            "keys of the canvas do nothing", "ab", QList<int> { Qt::Key_PageUp, Qt::Key_Tab, ctrl | Qt::Key_D }, "ab|");
    }
    void keysMoveAndEdit()
    {
        QFETCH(QString, start);
        QFETCH(QList<int>, keys);
        QFETCH(QString, result);
        EditedCanvas canvas;
        const QUuid id = edit(canvas, start);
        canvas.key(Qt::Key_Right);
        for (const int key : keys) {
            const auto combination = QKeyCombination::fromCombined(key);
            canvas.key(combination.key(), combination.keyboardModifiers());
        }
        type(canvas, QStringLiteral("|"));
        QCOMPARE(canvas.last().text, result);
        QCOMPARE(canvas.count(), 1);
        QCOMPARE(canvas.store.selectedID(), id);
        QVERIFY(canvas.view.isEditingText());
    }

    void windowShortcutsLeaveTheKeysToTheText_data()
    {
        test::columns<int, bool>("key", "claimed");
        test::row("letter", int(Qt::Key_A), true);
        test::row("Delete", int(Qt::Key_Delete), true);
        test::row("Ctrl+Z", (Qt::CTRL | Qt::Key_Z).toCombined(), true);
        test::row("Ctrl+Left", (Qt::CTRL | Qt::Key_Left).toCombined(), true);
        test::row("Ctrl+S", (Qt::CTRL | Qt::Key_S).toCombined(), false);
        test::row("F10", int(Qt::Key_F10), false);
    }
    void windowShortcutsLeaveTheKeysToTheText()
    {
        QFETCH(int, key);
        QFETCH(bool, claimed);
        EditedCanvas canvas;
        const auto combination = QKeyCombination::fromCombined(key);
        const auto isClaimed = [&] {
            QKeyEvent event(QEvent::ShortcutOverride, combination.key(), combination.keyboardModifiers());
            event.ignore();
            QApplication::sendEvent(&canvas.view, &event);
            return event.isAccepted();
        };
        QVERIFY(!isClaimed());
        edit(canvas, QStringLiteral("x"));
        QCOMPARE(isClaimed(), claimed);
    }

    void aDragAfterADoubleClickSelectsWords()
    {
        EditedCanvas canvas;
        canvas.add(textMark(QStringLiteral("WW WW WW")));
        canvas.doubleClick({ 52, 68 }); // begins
        const QPointF place = canvas.viewPosition({ 52, 68 });
        QMouseEvent press(QEvent::MouseButtonDblClick, place, canvas.view.mapToGlobal(place), Qt::LeftButton,
            Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&canvas.view, &press);
        canvas.moveTo({ 600, 68 }); // behind the last
        canvas.moveTo({ 52, 68 });
        canvas.moveTo(canvas.view.controller().visibleBox(canvas.last().id).center()); // within the second
        canvas.release();
        type(canvas, QStringLiteral("x"));
        QCOMPARE(canvas.last().text, QStringLiteral("x WW"));
    }

    void theMouseSelects()
    {
        EditedCanvas canvas;
        canvas.add(textMark(QStringLiteral("WW WW\nWW")));
        canvas.doubleClick({ 52, 68 }); // begins
        canvas.doubleClick({ 52, 68 }); // the word
        type(canvas, QStringLiteral("x"));
        QCOMPARE(canvas.last().text, QStringLiteral("x WW\nWW"));
        canvas.doubleClick({ 52, 68 });
        canvas.click({ 52, 68 }); // a third time: the line
        type(canvas, QStringLiteral("y"));
        QCOMPARE(canvas.last().text, QStringLiteral("y\nWW"));
        canvas.drag({ 49, 68 }, { 49, 104 });
        type(canvas, QStringLiteral("z"));
        QCOMPARE(canvas.last().text, QStringLiteral("zWW"));
        QCOMPARE(canvas.last().p1, QPointF(50, 50)); // it was no move
    }

    void inputMethodsComposeInPlace()
    {
        EditedCanvas canvas;
        QVERIFY(!canvas.view.testAttribute(Qt::WA_InputMethodEnabled));
        edit(canvas, QStringLiteral("old"));
        QVERIFY(canvas.view.testAttribute(Qt::WA_InputMethodEnabled));
        QInputMethodEvent composing(QStringLiteral("に"), {});
        QApplication::sendEvent(&canvas.view, &composing);
        QCOMPARE(canvas.last().text, QStringLiteral("に"));
        QInputMethodEvent chosen;
        chosen.setCommitString(QStringLiteral("日本"));
        QApplication::sendEvent(&canvas.view, &chosen);
        QCOMPARE(canvas.last().text, QStringLiteral("日本"));
        QInputMethodQueryEvent query(Qt::ImCursorRectangle);
        QApplication::sendEvent(&canvas.view, &query);
        const QRectF caret = query.value(Qt::ImCursorRectangle).toRectF();
        QVERIFY(caret.left() > canvas.viewPosition({ 60, 0 }).x());
        QVERIFY(caret.height() > 20);
        QInputMethodEvent abandoned(QStringLiteral("x"), {});
        QApplication::sendEvent(&canvas.view, &abandoned);
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.last().text, QStringLiteral("日本"));
        QVERIFY(!canvas.view.testAttribute(Qt::WA_InputMethodEnabled));
    }

    void nothingJumpsWhenEditingBeginsOrEnds()
    {
        EditedCanvas canvas;
        canvas.zoom.setScale(1.37);
        const QUuid id = canvas.add(textMark(QStringLiteral("Tj Äg\nsecond"), { 40.3, 50.7 }));
        canvas.store.setSelectedID(id);
        const QImage before = canvas.view.picture().copy();
        canvas.key(Qt::Key_F2);
        canvas.key(Qt::Key_Right);
        QCOMPARE(canvas.view.picture(), before);
        type(canvas, QStringLiteral("!"));
        const QImage during = canvas.view.picture().copy();
        QVERIFY(during != before);
        canvas.key(Qt::Key_Escape);
        QCOMPARE(canvas.view.picture(), during);
    }
};

QTEST_MAIN(TextRowsTest)
#include "TextRowsTest.moc"
