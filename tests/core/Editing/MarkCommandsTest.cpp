// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkCommands.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Preferences/Settings.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/Rows.h"

using namespace tessaly;

class MarkCommandsTest : public QObject {
    Q_OBJECT

    /// A store with one mark of a kind, selected, and the commands on it.
    struct Bench {
        Settings settings { QString() };
        AnnotationStore store { test::plainCapture({ 400, 300 }), settings };
        SavedStyles styles { settings };
        CopiedStyle copied;
        MarkCommands commands { store, styles, copied };

        const Annotation &add(Annotation mark)
        {
            store.append(mark);
            store.setSelectedID(mark.id);
            return *store.selected();
        }
        const Annotation &add(AnnotationKind kind) { return add(Annotation(kind, { 20, 20 }, { 80, 60 })); }
        int steps()
        {
            const auto selected = store.selectedID();
            int count = 0;
            for (; store.canUndo(); ++count)
                store.undo();
            for (int step = 0; step < count; ++step)
                store.redo();
            store.setSelectedID(selected);
            return count;
        }
    };

private Q_SLOTS:
    void duplicateRepeatsTheLastOffset()
    {
        Bench bench;
        bench.add(AnnotationKind::Rectangle);
        bench.commands.duplicate();
        QCOMPARE(bench.store.selected()->p1, QPointF(30, 30));
        bench.store.updateSelection(Undo::Record, [](Annotation &mark) {
            mark.p1 += QPointF(40, 0);
            mark.p2 += QPointF(40, 0);
        });
        bench.commands.duplicate();
        QCOMPARE(bench.store.selected()->p1, QPointF(120, 40)); // 50 to the right and 10 down again
        QCOMPARE(bench.store.selected()->rect().size(), QSizeF(60, 40));
        bench.store.setSelectedID(bench.store.annotations().first().id);
        bench.commands.duplicate();
        QCOMPARE(bench.store.selected()->p1, QPointF(30, 30)); // another mark begins anew
        QCOMPARE(bench.store.annotations().size(), 4);
        QCOMPARE(bench.steps(), 4);
    }

    void aDuplicatedNumberTakesTheNextOne()
    {
        Bench bench;
        Annotation stamp(AnnotationKind::Stamp, { 20, 20 }, { 50, 50 });
        stamp.stamp = StampKind::Number;
        stamp.text = QStringLiteral("1");
        bench.store.setNextStampNumber(2);
        bench.add(stamp);
        bench.commands.duplicate();
        QCOMPARE(bench.store.selected()->text, QStringLiteral("2"));
        QCOMPARE(bench.store.nextStampNumber(), 3);
        bench.store.undo();
        QCOMPARE(bench.store.nextStampNumber(), 2);
    }

    void reorderMovesTheMark_data()
    {
        test::columns<int, int, QString>("selected", "order", "marks");
        test::row("forward", 0, int(Order::Forward), "BAC");
        test::row("backward", 2, int(Order::Backward), "ACB");
        test::row("to the front", 0, int(Order::ToFront), "BCA");
        test::row("to the back", 2, int(Order::ToBack), "CAB");
        test::row("forward at the front: no step", 2, int(Order::Forward), "ABC");
        test::row("to the back at the back: no step", 0, int(Order::ToBack), "ABC");
    }
    void reorderMovesTheMark()
    {
        QFETCH(int, selected);
        QFETCH(int, order);
        QFETCH(QString, marks);
        Bench bench;
        for (const QChar name : { u'A', u'B', u'C' }) {
            Annotation mark(AnnotationKind::Text, { 1, 1 }, { 1, 1 });
            mark.text = name;
            bench.add(mark);
        }
        bench.store.setSelectedID(bench.store.annotations().at(selected).id);
        bench.commands.reorder(static_cast<Order>(order));
        QString names;
        for (const Annotation &mark : bench.store.annotations())
            names += mark.text;
        QCOMPARE(names, marks);
        QCOMPARE(bench.steps(), marks == u"ABC" ? 0 : 1);
        QCOMPARE(bench.store.selected()->text, QStringLiteral("ABC").at(selected));
    }

    void aStyleIsPastedAsFarAsTheOtherKindHasIt()
    {
        Bench bench;
        Annotation arrow(AnnotationKind::Arrow, { 0, 0 }, { 50, 50 });
        arrow.colorHex = QStringLiteral("#5E5CE6");
        arrow.lineWidth = 9;
        arrow.curved = true;
        bench.add(arrow);
        bench.commands.copyStyle();
        Annotation box(AnnotationKind::Rectangle, { 20, 20 }, { 80, 60 });
        box.filled = true;
        bench.add(box);
        bench.commands.pasteStyle();
        const Annotation styled = *bench.store.selected();
        QCOMPARE(styled.colorHex, arrow.colorHex);
        QCOMPARE(styled.lineWidth, 9.0);
        QVERIFY(styled.filled);
        QVERIFY(!styled.curved);
        QCOMPARE(styled.rect(), box.rect());
        QCOMPARE(bench.store.toolStyle().lineWidth, 9.0);
        bench.commands.pasteStyle(); // looks so already
        QCOMPARE(bench.steps(), 1);
    }

    void aStickerStaysWhatItIs()
    {
        Bench bench;
        Annotation sticker(AnnotationKind::Sticker, { 0, 0 }, { 50, 50 });
        sticker.text = QStringLiteral("🎉");
        bench.add(sticker);
        bench.commands.copyStyle();
        sticker.id = QUuid::createUuid();
        sticker.text = QStringLiteral("😀");
        bench.add(sticker);
        bench.commands.pasteStyle();
        QCOMPARE(bench.store.selected()->text, QStringLiteral("😀"));
    }

    void digitsColourTheMarkAndTheTool_data()
    {
        test::columns<AnnotationKind, int, QString, bool>("kind", "number", "color", "changesMark");
        test::row("first", AnnotationKind::Arrow, 2, "#FF9500", true);
        test::row("last", AnnotationKind::Text, 9, "#1D1D1F", true);
        test::row("a loupe has no colour", AnnotationKind::Magnifier, 5, "#2E7DF6", false);
        test::row("the colour that it has", AnnotationKind::Pen, 1, "#FF3366", false);
    }
    void digitsColourTheMarkAndTheTool()
    {
        QFETCH(AnnotationKind, kind);
        QFETCH(int, number);
        QFETCH(QString, color);
        QFETCH(bool, changesMark);
        Bench bench;
        const Annotation before = bench.add(kind);
        bench.commands.applyPaletteColor(number);
        QCOMPARE(bench.store.toolStyle().colorHex, color);
        QCOMPARE(bench.steps(), changesMark ? 1 : 0);
        Annotation expected = before;
        if (changesMark)
            expected.colorHex = color;
        QCOMPARE(*bench.store.selected(), expected);
    }

    void savedStylesAreThoseOfTheSelectedMark()
    {
        Bench bench;
        bench.store.activate(Tool::Arrow);
        bench.commands.applySavedStyle(2);
        QCOMPARE(bench.store.toolStyle().lineWidth, bench.styles.styles(Tool::Arrow).at(1).lineWidth);
        bench.add(AnnotationKind::Text);
        bench.commands.applySavedStyle(1);
        QCOMPARE(bench.store.selected()->fontSize, 36.0);
        QVERIFY(bench.store.selected()->bold);
        QCOMPARE(bench.steps(), 1);
        bench.commands.applySavedStyle(9); // there is none
        QCOMPARE(bench.steps(), 1);
    }
};

QTEST_GUILESS_MAIN(MarkCommandsTest)
#include "MarkCommandsTest.moc"
