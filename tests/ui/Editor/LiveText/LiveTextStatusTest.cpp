// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/ui/Editor/LiveText/ReadCanvas.h"

#include <QContextMenuEvent>

using namespace tessaly;
using test::ReadCanvas;

/// When a capture is read, and what the badge tells of it.
class LiveTextStatusTest : public QObject {
    Q_OBJECT

    static LiveTextBadge *badge(ReadCanvas &read) { return read.canvas.view.findChild<LiveTextBadge *>(); }

private Q_SLOTS:
    void itReadsWhileItIsOn()
    {
        ReadCanvas read;
        QVERIFY(read.recognizer.pending.isEmpty());
        QVERIFY(!badge(read)->isVisible());
        read.overlay.setEnabled(true);
        read.overlay.setEnabled(true); // once
        QTRY_COMPARE(badge(read)->text(), "Analyzing text…");
        QCOMPARE(read.recognizer.pending.size(), 1);
        QCOMPARE(read.canvas.view.accessibleDescription(), "Analyzing text…");
        QVERIFY(badge(read)->isVisible() && badge(read)->testAttribute(Qt::WA_TransparentForMouseEvents));
        QVERIFY(read.canvas.view.rect().contains(badge(read)->geometry()));
        read.recognizer.answer(ReadCanvas::content());
        QCOMPARE(badge(read)->text(), QString());
        QTRY_VERIFY(!badge(read)->isVisible());
        read.canvas.doubleClick({ 60, 50 });
        QCOMPARE(read.canvas.view.accessibleDescription(), "Selected text: Hello");
        read.overlay.setEnabled(false);
        QCOMPARE(read.copied(), QString());
        QCOMPARE(read.canvas.view.accessibleDescription(), QString());
        read.canvas.doubleClick({ 60, 50 });
        QCOMPARE(read.copied(), QString());
    }

    void anotherPictureIsReadAgain()
    {
        ReadCanvas read;
        read.read();
        read.canvas.doubleClick({ 60, 50 });
        read.canvas.add(AnnotationKind::Highlight, { 10, 10 }, { 30, 30 });
        QCOMPARE(read.copied(), "Hello"); // marks change nothing
        QVERIFY(read.overlay.model().analysis());
        read.canvas.store.rotate(true);
        QCOMPARE(read.copied(), QString());
        QVERIFY(!read.overlay.model().analysis());
        QTRY_COMPARE(read.recognizer.pending.size(), 1);
        QCOMPARE(read.recognizer.pending.first()->request.image, read.canvas.store.image());
        read.canvas.store.rotate(true); // while it reads
        QCOMPARE(read.recognizer.cancelled, 1);
        QTRY_COMPARE(read.recognizer.pending.size(), 1);
        read.recognizer.answer(ReadCanvas::content());
        read.canvas.doubleClick({ 60, 50 });
        QCOMPARE(read.copied(), "Hello");
    }

    void aCaptureThatIsNotSeenIsNotRead()
    {
        ReadCanvas read;
        read.canvas.view.hide();
        read.overlay.setEnabled(true);
        QVERIFY(std::holds_alternative<LiveTextModel::Off>(read.overlay.model().status()));
        read.canvas.view.show();
        QTRY_COMPARE(read.recognizer.pending.size(), 1);
    }

    void theBadgeTellsOfNothing_data()
    {
        QTest::addColumn<bool>("fails");
        QTest::newRow("no text") << false;
        QTest::newRow("a failure") << true;
    }

    void theBadgeTellsOfNothing()
    {
        QFETCH(bool, fails);
        ReadCanvas read;
        read.overlay.setEnabled(true);
        QTRY_COMPARE(read.recognizer.pending.size(), 1);
        if (fails)
            read.recognizer.answer(Failure { "broken" });
        else
            read.recognizer.answer(RecognizedContent());
        QCOMPARE(badge(read)->text(), "No text in this image");
        QTRY_VERIFY(!badge(read)->isVisible());
    }

    void withoutARecognizerItSaysSo()
    {
        ReadCanvas read;
        read.recognizer.supported = false;
        read.overlay.setEnabled(true);
        QCOMPARE(badge(read)->text(), "Live Text isn't available on this Mac");
        read.overlay.setEnabled(false);
        QTRY_VERIFY(!badge(read)->isVisible());
    }
};

QTEST_MAIN(LiveTextStatusTest)
#include "LiveTextStatusTest.moc"
