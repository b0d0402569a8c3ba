// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/Rows.h"
#include "tests/ui/Editor/LiveText/ReadCanvas.h"

#include <QContextMenuEvent>
#include <QSignalSpy>

using namespace tessaly;
using test::ReadCanvas;

/// Text that was read, under a real pointer and real keys.
class SelectedOnCanvasTest : public QObject {
    Q_OBJECT

    /// Whether the canvas shows something other than the white capture there.
    static bool isTinted(ReadCanvas &read, QPointF image)
    {
        QCoreApplication::processEvents();
        const QImage shown = read.canvas.view.grab().toImage();
        return shown.pixelColor((read.canvas.viewPosition(image) * shown.devicePixelRatio()).toPoint()) != Qt::white;
    }

private Q_SLOTS:
    void draggingSelectsAndPaintsWords_data()
    {
        test::columns<Tool, int, double, bool>("tool", "scale", "zoom", "framed");
        test::row("selecting", Tool::Select, 1, 1.0, false);
        test::row("a drawing tool", Tool::Rectangle, 1, 1.0, false);
        test::row("a placing tool", Tool::Text, 2, 1.0, false);
        test::row("the pen, large", Tool::Pen, 1, 2.5, false);
        test::row("small, on a frame", Tool::Select, 2, 0.5, true);
        test::row("large, on a frame", Tool::Arrow, 1, 4.0, true);
    }

    void draggingSelectsAndPaintsWords()
    {
        QFETCH(Tool, tool);
        QFETCH(int, scale);
        QFETCH(double, zoom);
        QFETCH(bool, framed);
        ReadCanvas read(scale);
        if (framed)
            read.canvas.store.setFrame(FrameStyle(), Undo::Skip);
        read.canvas.zoom.setScale(zoom);
        read.canvas.view.controller();
        read.read();
        read.canvas.store.activate(tool);
        read.canvas.drag({ 130, 50 }, { 60, 90 });
        QCOMPARE(read.copied(), "big world\nsecond");
        QCOMPARE(read.canvas.count(), 0);
        QVERIFY(!read.canvas.store.canUndo());
        if (zoom > 3) // the rest lies outside the view
            return;
        for (const QPointF &selected : { QPointF(111, 41), QPointF(155, 58), QPointF(239, 50), QPointF(41, 99) })
            QVERIFY(isTinted(read, selected));
        for (const QPointF &beside : { QPointF(100, 50), QPointF(249, 50), QPointF(110, 70), QPointF(129, 90) })
            QVERIFY(!isTinted(read, beside));
    }

    void clicksSelectWordsAndLines()
    {
        ReadCanvas read;
        read.read();
        read.canvas.doubleClick({ 120, 50 });
        QCOMPARE(read.copied(), "big");
        read.canvas.click({ 120, 50 }); // the third
        QCOMPARE(read.copied(), "Hello big world");
        read.canvas.click({ 60, 90 });
        QCOMPARE(read.copied(), QString());
        read.canvas.doubleClick({ 60, 90 });
        read.canvas.click({ 130, 50 }, Qt::ShiftModifier);
        QCOMPARE(read.copied(), "big world\nsecond");
    }

    void keysActOnSelectedTextOnly()
    {
        ReadCanvas read;
        QSignalSpy picture(&read.canvas.view, &CanvasView::copyImageRequested);
        read.read();
        read.canvas.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(read.copied(), QString());
        QCOMPARE(picture.size(), 1);
        read.canvas.doubleClick({ 60, 50 });
        read.canvas.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(read.copied(), "Hello big world\nsecond line");
        QCOMPARE(picture.size(), 1);
        read.canvas.store.activate(Tool::Arrow);
        read.canvas.key(Qt::Key_Escape);
        QCOMPARE(read.copied(), QString());
        QCOMPARE(read.canvas.store.tool(), Tool::Arrow); // the next Escape leaves the tool
        read.canvas.key(Qt::Key_Escape);
        QCOMPARE(read.canvas.store.tool(), Tool::Select);
    }

    void elsewhereTheToolsWork()
    {
        ReadCanvas read;
        read.read();
        read.canvas.doubleClick({ 60, 50 });
        read.canvas.store.activate(Tool::Rectangle);
        read.canvas.drag({ 20, 20 }, { 200, 90 }); // ends on text
        QCOMPARE(read.canvas.count(), 1);
        QCOMPARE(read.copied(), QString()); // the mark is selected, and with it nothing else
        QVERIFY(read.canvas.store.selectedID());
        read.canvas.store.activate(Tool::Select);
        const QUuid highlight = read.canvas.add(AnnotationKind::Highlight, { 100, 38 }, { 155, 62 });
        read.canvas.click({ 130, 50 });
        QCOMPARE(read.canvas.store.selectedID(), highlight);
        read.canvas.drag({ 130, 50 }, { 130, 150 });
        QCOMPARE(read.canvas.last().rect().center(), QPointF(127.5, 150));
        read.canvas.doubleClick({ 130, 50 }); // where it was
        QVERIFY(!read.canvas.store.selectedID());
        QCOMPARE(read.copied(), "big");
        read.canvas.store.activate(Tool::Crop);
        QCOMPARE(read.copied(), QString());
        read.canvas.drag({ 60, 50 }, { 200, 50 });
        QCOMPARE(read.copied(), QString());
    }

    void theCursorTellsWhatThePressWouldMean_data()
    {
        test::columns<QPointF, Qt::CursorShape>("at", "shape");
        test::row("word", QPointF(60, 50), Qt::IBeamCursor);
        test::row("between words", QPointF(105, 50), Qt::IBeamCursor);
        test::row("code", QPointF(320, 60), Qt::PointingHandCursor);
        test::row("nothing", QPointF(200, 200), Qt::CrossCursor);
        test::row("mark on a word", QPointF(150, 90), Qt::SizeAllCursor);
    }

    void theCursorTellsWhatThePressWouldMean()
    {
        QFETCH(QPointF, at);
        ReadCanvas read;
        read.read();
        read.canvas.store.activate(Tool::Arrow);
        read.canvas.store.setSelectedID(read.canvas.add(AnnotationKind::Highlight, { 130, 80 }, { 180, 100 }));
        read.canvas.moveTo(at);
        QTEST(read.canvas.view.cursor().shape(), "shape");
    }

    void hiddenWordsAndCodesAreNotThere_data()
    {
        test::columns<Annotation, bool>("mark", "hides");
        const auto row = [](const char *name, AnnotationKind kind, bool hides, auto change) {
            Annotation mark(kind, { 145, 30 }, { 310, 62 }); // touches "big", covers "world", touches the link
            change(mark);
            QTest::newRow(name) << mark << hides;
        };
        using Kind = AnnotationKind;
        row("pixelated", Kind::Pixelate, true, [](Annotation &) {});
        row("blurred", Kind::Pixelate, true, [](Annotation &mark) { mark.obscure = ObscureStyle::Blur; });
        row("solid, drawn backwards", Kind::Pixelate, true, [](Annotation &mark) {
            mark.obscure = ObscureStyle::Solid;
            std::swap(mark.p1, mark.p2);
        });
        row("filled", Kind::Rectangle, true, [](Annotation &mark) { mark.filled = true; });
        row("outlined", Kind::Rectangle, false, [](Annotation &) {});
        row("highlighted", Kind::Highlight, false, [](Annotation &) {});
    }

    void hiddenWordsAndCodesAreNotThere()
    {
        QFETCH(Annotation, mark);
        QFETCH(bool, hides);
        ReadCanvas read;
        read.read();
        read.canvas.doubleClick({ 60, 50 });
        read.canvas.key(Qt::Key_A, Qt::ControlModifier);
        read.canvas.add(mark);
        QCOMPARE(read.copied(), hides ? "Hello\nsecond line" : "Hello big world\nsecond line");
        read.canvas.moveTo({ 355, 95 }); // on the link, beside the mark
        QCOMPARE(read.canvas.view.cursor().shape() == Qt::PointingHandCursor, !hides);
        read.canvas.moveTo({ 112, 50 }); // on "big", beside the mark
        QCOMPARE(read.canvas.view.cursor().shape() == Qt::IBeamCursor, !hides);
        read.canvas.store.setAnnotations({});
        QCOMPARE(read.copied(), "Hello big world\nsecond line");
        QCOMPARE(read.recognizer.pending.size(), 0);
    }

    void theMenuIsAboutTheTextUnderThePointer()
    {
        ReadCanvas read;
        read.read();
        read.rightClick({ 120, 50 });
        QVERIFY(read.action("Select All"));
        QCOMPARE(read.copied(), "big"); // what it lies on
        read.action("Select All")->trigger();
        read.rightClick({ 60, 90 });
        read.action("Copy")->trigger(); // what was selected stays
        QCOMPARE(read.canvas.clipboard.data("text/plain"), "Hello big world\nsecond line");
        read.menu()->close();
        read.canvas.key(Qt::Key_Menu);
        QVERIFY(read.action("Select All"));
        read.menu()->close();
        read.rightClick({ 200, 200 });
        QVERIFY(read.action("Paste Here"));
        QCOMPARE(read.copied(), QString());
    }

    void aLinkOpensOnlyWhenItIsChosen()
    {
        ReadCanvas read;
        read.read();
        read.canvas.moveTo({ 320, 60 });
        QVERIFY(isTinted(read, { 297, 70 })); // its frame
        read.canvas.moveTo({ 290, 200 });
        QVERIFY(!isTinted(read, { 297, 70 }));
        read.canvas.click({ 320, 60 });
        QVERIFY(read.action("example.org"));
        QVERIFY(!read.action("example.org")->isEnabled());
        QVERIFY(read.links.opened.isEmpty());
        read.action("Open Link")->trigger();
        QCOMPARE(read.links.opened, QList { QUrl("https://example.org/a") });
        read.rightClick({ 320, 60 });
        read.action("Copy")->trigger();
        QVERIFY(read.canvas.clipboard.types().contains("text/uri-list"));
        QCOMPARE(read.canvas.clipboard.data("text/plain"), "https://example.org/a");
        read.menu()->close();
        read.canvas.click({ 320, 170 });
        QVERIFY(read.action("12345") && !read.action("Open Link"));
        read.menu()->close();
        read.canvas.drag({ 320, 60 }, { 350, 90 });
        QVERIFY(!read.menu());
    }

    void draggingBeyondTheEdgeScrolls()
    {
        ReadCanvas read;
        read.read();
        read.canvas.zoom.setScale(8);
        read.canvas.press({ 200, 50 });
        const QPointF below = read.canvas.view.controller().transform().toImage(
            QPointF(read.canvas.viewPosition({ 200, 50 }).x(), read.canvas.view.height() + 10));
        if (below.y() < 80)
            QVERIFY(read.copied().isEmpty());
        read.canvas.moveTo(below);
        QTRY_VERIFY(read.canvas.viewPosition({ 0, 290 }).y() < read.canvas.view.height());
        QCOMPARE(read.copied(), "world\nsecond line");
        read.canvas.release();
    }
};

QTEST_MAIN(SelectedOnCanvasTest)
#include "SelectedOnCanvasTest.moc"
