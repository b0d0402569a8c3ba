// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkClipboard.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Preferences/Settings.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleMarks.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QUrl>

using namespace tessaly;

/// Two captures and the clipboard between them.
class MarkClipboardTest : public QObject {
    Q_OBJECT

    struct Bench {
        Settings settings { QString() };
        AnnotationStore from { test::plainCapture({ 400, 300 }, Qt::white, 2), settings };
        AnnotationStore to { test::plainCapture({ 200, 100 }), settings };
        test::FakeClipboard clipboard;
        MarkClipboard marks { clipboard };

        void copy(const Annotation &mark)
        {
            from.append(mark);
            from.setSelectedID(mark.id);
            marks.copy(from);
        }
        void put(const QString &type, const QByteArray &bytes)
        {
            clipboard.offer(std::make_unique<test::FixedOffer>(type, bytes));
        }
        QByteArray data(const char *type) { return clipboard.data(QLatin1StringView(type)); }
    };

    static QByteArray file(const char *format, QSize size)
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::darkCyan);
        return picture.save(&buffer, format) ? bytes : QByteArray();
    }

private Q_SLOTS:
    void everyKindTravelsWhole_data()
    {
        QTest::addColumn<int>("index");
        const auto marks = test::oneOfEachKind();
        for (int index = 0; index < marks.size(); ++index)
            QTest::addRow("%d, %s", index, rawValue(marks[index].kind).data()) << index;
    }
    void everyKindTravelsWhole()
    {
        QFETCH(int, index);
        Bench bench;
        const Annotation mark = test::oneOfEachKind().at(index);
        bench.copy(mark);
        bench.to.setNextStampNumber(7);
        QVERIFY(bench.marks.paste(bench.to, QPointF(100, 50)));
        Annotation pasted = bench.to.annotations().last();
        QVERIFY(pasted.id != mark.id);
        QCOMPARE(bench.to.selectedID(), pasted.id);
        QVERIFY(QLineF(pasted.boundingRect().center(), { 100, 50 }).length() < 1e-6);
        const bool isNumber = mark.kind == AnnotationKind::Stamp && mark.stamp == StampKind::Number;
        QCOMPARE(pasted.text, isNumber ? QStringLiteral("7") : mark.text);
        QCOMPARE(bench.to.nextStampNumber(), isNumber ? 8 : 7);
        const QPointF offset = pasted.p1 - mark.p1;
        pasted.id = mark.id;
        pasted.text = mark.text;
        pasted.p1 = mark.p1;
        pasted.p2 -= offset;
        for (QPointF &point : pasted.points)
            point -= offset;
        QVERIFY(QLineF(pasted.p2, mark.p2).length() < 1e-6);
        pasted.p2 = mark.p2;
        for (qsizetype point = 0; point < pasted.points.size(); ++point)
            QVERIFY(QLineF(pasted.points[point], mark.points[point]).length() < 1e-6);
        pasted.points = mark.points;
        QCOMPARE(pasted, mark);
        bench.to.undo();
        QVERIFY(bench.to.annotations().isEmpty());
        QVERIFY(!bench.to.canUndo());
    }

    void pastedBesideAndInSight_data()
    {
        test::columns<QPointF, QPointF>("at", "first");
        test::row("at +10, +10", QPointF(20, 20), QPointF(30, 30));
        test::row("outside of a smaller capture: its middle", QPointF(350, 250), QPointF(80, 40));
    }
    void pastedBesideAndInSight()
    {
        QFETCH(QPointF, at);
        QFETCH(QPointF, first);
        Bench bench;
        bench.copy(Annotation(AnnotationKind::Rectangle, at, at + QPointF(40, 20)));
        QVERIFY(bench.marks.paste(bench.to));
        QCOMPARE(bench.to.annotations().last().p1, first);
    }

    void cutLeavesOneStepAndCanBePastedTwice()
    {
        Bench bench;
        const Annotation mark(AnnotationKind::Ellipse, { 10, 10 }, { 50, 50 });
        bench.copy(mark);
        bench.marks.cut(bench.from);
        QVERIFY(bench.from.annotations().isEmpty());
        QVERIFY(bench.marks.paste(bench.from));
        QVERIFY(bench.marks.paste(bench.from));
        QCOMPARE(bench.from.annotations().at(0).p1, QPointF(20, 20));
        QCOMPARE(bench.from.annotations().at(1).p1, QPointF(30, 30)); // not hidden below the first
    }

    void otherProgramsGetThePictureOfTheMarkAlone()
    {
        Bench bench;
        Annotation mark(AnnotationKind::Highlight, { 390, 10 }, { 430, 30 }); // hangs over the right edge
        mark.colorHex = QStringLiteral("#00FF00");
        mark.highlightOpacity = 1;
        bench.copy(mark);
        const QImage picture = QImage::fromData(bench.data("image/png"));
        QVERIFY(!picture.isNull());
        QCOMPARE(picture.size(), QSize(80, 40)); // 2 pixels a point
        QVERIFY(qGreen(picture.pixel(40, 20)) > 200 && qRed(picture.pixel(40, 20)) < 60);
        QVERIFY(bench.data("text/plain").isEmpty());

        Annotation text(AnnotationKind::Text, { 10, 10 }, { 10, 10 });
        text.text = QStringLiteral("Grüße");
        bench.copy(text);
        QCOMPARE(QString::fromUtf8(bench.data("text/plain")), text.text);
        const QImage letters = QImage::fromData(bench.data("image/png"));
        QVERIFY(letters.hasAlphaChannel() && letters.width() > 40);
    }

    void picturesFromElsewhere_data()
    {
        // size: on the capture of 200 by 100
        test::columns<QString, QByteArray, QSizeF, bool>("type", "bytes", "size", "keepsBytes");
        test::row("small PNG", "image/png", file("PNG", { 60, 20 }), QSizeF(60, 20), true);
        test::row("wide JPEG", "image/jpeg", file("JPG", { 800, 100 }), QSizeF(160, 20), true);
        test::row("tall PNG", "image/png", file("PNG", { 40, 400 }), QSizeF(8, 80), true);
        test::row("BMP becomes PNG", "image/bmp", file("BMP", { 30, 30 }), QSizeF(30, 30), false);
    }
    void picturesFromElsewhere()
    {
        QFETCH(QString, type);
        QFETCH(QByteArray, bytes);
        QFETCH(QSizeF, size);
        QFETCH(bool, keepsBytes);
        Bench bench;
        bench.put(type, bytes);
        QVERIFY(bench.marks.canPaste());
        QVERIFY(bench.marks.paste(bench.to));
        const Annotation mark = bench.to.annotations().last();
        QCOMPARE(mark.kind, AnnotationKind::ImageOverlay);
        QCOMPARE(mark.rect().size(), size);
        QCOMPARE(mark.rect().center(), QPointF(100, 50));
        QCOMPARE(*mark.imageData == bytes, keepsBytes);
        QVERIFY(!QImage::fromData(*mark.imageData).isNull());
    }

    void aCopiedPictureFileIsPastedAsItsPicture()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("a b.png"));
        QVERIFY(QImage(10, 10, QImage::Format_RGB32).save(path));
        Bench bench;
        bench.put(QStringLiteral("text/uri-list"), QUrl::fromLocalFile(path).toEncoded() + "\r\n");
        QVERIFY(bench.marks.paste(bench.to));
        QCOMPARE(bench.to.annotations().last().kind, AnnotationKind::ImageOverlay);
    }

    void textBecomesATextMarkInTheToolsStyle()
    {
        Bench bench;
        ToolStyle style = bench.to.toolStyle();
        style.textSize = 30;
        bench.to.setToolStyle(style);
        bench.put(QStringLiteral("text/plain;charset=utf-8"), "one\ntwö");
        QVERIFY(bench.marks.paste(bench.to, QPointF(20, 30)));
        const Annotation mark = bench.to.annotations().last();
        QCOMPARE(mark.kind, AnnotationKind::Text);
        QCOMPARE(mark.text, QStringLiteral("one\ntwö"));
        QCOMPARE(mark.fontSize, 30.0);
        QCOMPARE(mark.p1, QPointF(20, 30));
    }

    void whatCannotBePastedSaysSoAndChangesNothing_data()
    {
        test::columns<QString, QByteArray>("type", "bytes");
        const QString marks = QLatin1StringView(MarkClipboard::mimeType);
        test::row("cut short", marks, QByteArray("{\"version\": 1, \"annotations\": ["));
        test::row("no marks", marks, QByteArray("{\"version\": 1, \"canvasSize\": [1, 1], \"annotations\": []}"));
        test::row("no bytes", marks, QByteArray());
        test::row("damaged picture", "image/png", file("PNG", { 30, 30 }).left(60));
        test::row("blank text", "text/plain", QByteArray(" \n"));
        test::row("something else", "application/x-other", QByteArray("x"));
    }
    void whatCannotBePastedSaysSoAndChangesNothing()
    {
        QFETCH(QString, type);
        QFETCH(QByteArray, bytes);
        Bench bench;
        bench.put(type, bytes);
        const Snapshot before = bench.to.currentSnapshot();
        const Outcome outcome = bench.marks.paste(bench.to);
        QVERIFY(!outcome);
        QVERIFY(!outcome.failure().message.isEmpty());
        QCOMPARE(bench.to.currentSnapshot(), before);
        QVERIFY(!bench.to.canUndo() && !bench.to.hasUnsavedChanges());
    }
};

QTEST_MAIN(MarkClipboardTest)
#include "MarkClipboardTest.moc"
