// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/Rows.h"
#include "tests/support/SampleMarks.h"

#include <QRandomGenerator>

using namespace tessaly;

/// Documents as text: what is written comes back, and what is wrong is said in one sentence.
class AnnotationDocumentTest : public QObject {
    Q_OBJECT

    static QString message(const auto &result) { return result ? QString() : result.failure().message; }

    static AnnotationDocument documentWith(const Annotation &mark)
    {
        AnnotationDocument document;
        document.annotations = { mark };
        return document;
    }

private Q_SLOTS:
    void randomDocumentsComeBackTheSame()
    {
        for (quint32 seed = 1; seed <= 60; ++seed) {
            QRandomGenerator random(seed);
            const AnnotationDocument document = test::randomDocument(random, 8);
            const auto first = document.encoded();
            QVERIFY2(first, qPrintable(message(first)));
            const auto decoded = AnnotationDocument::decoded(*first);
            QVERIFY2(decoded, qPrintable(message(decoded)));
            QCOMPARE(decoded->firstSkippedReason, QString());
            QVERIFY2(*decoded == document, qPrintable(QStringLiteral("seed %1").arg(seed)));
            QCOMPARE(*decoded->encoded(), *first);
        }
    }

    void writesSortedKeysOnLinesOfTheirOwn()
    {
        AnnotationDocument document;
        document.canvasSize = { 10, 20.5 };
        document.generator = QStringLiteral("A test");
        QCOMPARE(*document.encoded(), QByteArray(R"({
    "annotations": [
    ],
    "canvasSize": [
        10,
        20.5
    ],
    "generator": "A test",
    "nextStampNumber": 1,
    "version": 1
}
)"));
    }

    void keepsWhatItCanRead()
    {
        const auto document = AnnotationDocument::decoded(R"({"canvasSize":[4,3],"annotations":[
            {"kind":"line","p1":[0,0],"p2":[1,1]}, {"kind":"hexagon","p1":[0,0],"p2":[1,1]},
            {"kind":"pen","p1":[0,0],"p2":[1,1]}, 7, {"kind":"text","p1":[0,0],"p2":[1,1]}]})");
        QVERIFY2(document, qPrintable(message(document)));
        QCOMPARE(document->annotations.size(), 3);
        QCOMPARE(document->annotations[1].kind, AnnotationKind::Pen);
        QCOMPARE(document->skippedAnnotations, 2);
        QCOMPARE(document->firstSkippedReason, QStringLiteral("Mark 2: The mark's “kind” cannot be \"hexagon\"."));
        QVERIFY(!document->encoded()->contains("skipped"));
    }

    void readsWhatMayBeMissing()
    {
        const auto document = AnnotationDocument::decoded(
            R"({"canvasSize":[4,3],"version":1.0,"pixelSize":null,"generator":null,"frame":{},"extra":1})");
        QVERIFY2(document, qPrintable(message(document)));
        AnnotationDocument expected;
        expected.canvasSize = { 4, 3 };
        expected.frame = FrameStyle();
        QCOMPARE(*document, expected);
    }

    void saysWhatIsWrong_data()
    {
        test::columns<QByteArray, QString>("json", "sentence");
        const auto row = [](const char *name, const QByteArray &json, const char *sentence) {
            QTest::newRow(name) << json << QString::fromUtf8(sentence);
        };
        const auto key = [&row](const char *name, const QByteArray &rest, const char *sentence) {
            row(name, "{\"canvasSize\":[4,3]," + rest + "}", sentence);
        };
        row("empty", "", "The text is not JSON: illegal value at byte 0.");
        row("cut off", "{\"canvasSize\":[4,", "The text is not JSON: unterminated array at byte 17.");
        row("NaN", R"({"canvasSize":[NaN,3]})", "The text is not JSON: illegal number at byte 15.");
        row("1e400", R"({"canvasSize":[1e400,3]})", "The text is not JSON: illegal number at byte 20.");
        row("invalid UTF-8", "{\"canvasSize\":[4,3],\"generator\":\"\xff\"}",
            "The text is not JSON: invalid UTF8 string at byte 33.");
        row("100 000 deep", QByteArray(100'000, '['), "The text is not JSON: too deeply nested document at byte 1025.");
        row("200 MB", QByteArray(200'000'000, ' '), "The JSON text is longer than 128 MiB.");
        row("millions of tiny lists", '[' + QByteArray("[1],").repeated(5'000'000) + "1]",
            "The JSON text holds more than 8000000 values.");
        row("a list", "[]", "The JSON text is a list, not a document.");
        row("no canvas", "{}", "“canvasSize” is missing.");
        row("canvas of one number", R"({"canvasSize":[4]})", "“canvasSize” is not a pair of numbers.");
        key("version of another type", R"("version":"1")", "“version” is not a whole number.");
        key("half a number", R"("nextStampNumber":1.5)", "“nextStampNumber” is not a whole number.");
        key("a number beyond all stamps", R"("nextStampNumber":3e9)", "“nextStampNumber” is not a whole number.");
        key("pixels as text", R"("pixelSize":"big")", "“pixelSize” is not a pair of numbers.");
        key("number for the generator", R"("generator":4)", "“generator” is not a text.");
        key("marks as an object", R"("annotations":{})", "“annotations” is not a list.");
        key("frame as a list", R"("frame":[])", "“frame” is not an object.");
        key("padding as a text", R"("frame":{"padding":"wide"})", "The frame's “padding” cannot be \"wide\".");
        key("unknown position", R"("watermark":{"position":"middle"})",
            "The watermark's “position” cannot be \"middle\".");
        key("100 000 marks", "\"annotations\":[1" + QByteArray(",1").repeated(99'999) + ']',
            "There are 100000 marks; a document holds at most 50000.");
    }

    void saysWhatIsWrong()
    {
        QFETCH(QByteArray, json);
        QTEST(message(AnnotationDocument::decoded(json)), "sentence");
    }

    void commasInTextsAreNoValues()
    {
        const QByteArray text = QByteArray("[,\\\",").repeated(3'000'000);
        const auto document = AnnotationDocument::decoded("{\"canvasSize\":[4,3],\"generator\":\"" + text + "\"}");
        QVERIFY2(document, qPrintable(message(document)));
        QCOMPARE(document->generator->size(), text.size() / 5 * 4);
    }

    void refusesNumbersThatAreNone_data()
    {
        test::columns<AnnotationDocument, QString>("document", "sentence");
        Annotation mark(AnnotationKind::Pen, { 0, 0 }, { 1, 1 });
        mark.points = { { 0, 0 }, { 0, qInf() } };
        test::row(
            "in a path", documentWith(mark), QStringLiteral("The “points” of mark 1 has a number that is not finite."));
        mark.points.clear();
        mark.tailAngle = qQNaN();
        test::row("in an option", documentWith(mark),
            QStringLiteral("The “tailAngle” of mark 1 has a number that is not finite."));
        AnnotationDocument document;
        document.canvasSize = { qInf(), 1 };
        test::row("in the canvas", document, QStringLiteral("“canvasSize” has a number that is not finite."));
        document.canvasSize = { 1, 1 };
        document.frame = FrameStyle { .padding = qQNaN() };
        test::row("in the frame", document, QStringLiteral("“padding” has a number that is not finite."));
        document.frame.reset();
        document.annotations = QList<Annotation>(AnnotationDocument::maxAnnotations + 1);
        test::row("too many marks", document, QStringLiteral("There are 50001 marks; a document holds at most 50000."));
    }

    void refusesNumbersThatAreNone()
    {
        QFETCH(AnnotationDocument, document);
        QTEST(message(document.encoded()), "sentence");
    }

    void takesABareListOfMarks()
    {
        const auto list = AnnotationDocument::decodedDocumentOrList(R"([{"kind":"line","p1":[0,0],"p2":[1,1]}, {}])");
        QVERIFY2(list, qPrintable(message(list)));
        QCOMPARE(list->annotations.size(), 1);
        QCOMPARE(list->skippedAnnotations, 1);
        QVERIFY(list->canvasSize.isEmpty());
        QCOMPARE(message(AnnotationDocument::decodedDocumentOrList(R"({"annotations":[]})")),
            QStringLiteral("“canvasSize” is missing."));
    }

    void probesTheVersion_data()
    {
        test::columns<QByteArray, int>("json", "version");
        QTest::newRow("newer, and nothing else to read") << QByteArray(R"({"version":7,"annotations":3})") << 7;
        test::row("none", QByteArray("{}"), 1);
        QTest::newRow("of another type") << QByteArray(R"({"version":"7"})") << 1;
        test::row("no JSON", QByteArray("version 7"), 1);
    }

    void probesTheVersion()
    {
        QFETCH(QByteArray, json);
        QTEST(AnnotationDocument::probedVersion(json), "version");
    }

    void readsAFrameFromEitherFile_data()
    {
        test::columns<QByteArray, QString>("json", "sentence");
        QTest::newRow("bare") << QByteArray(R"({"padding":0.5})") << QString();
        QTest::newRow("of a document") << QByteArray(R"({"canvasSize":[1,1],"frame":{"padding":0.5}})") << QString();
        QTest::newRow("a document without")
            << QByteArray(R"({"canvasSize":[1,1]})") << QStringLiteral("There is no frame in it.");
        test::row("a list", QByteArray("[]"), QStringLiteral("There is no frame in it."));
        QTest::newRow("ill-typed") << QByteArray(R"({"padding":true})")
                                   << QStringLiteral("The frame's “padding” cannot be true.");
    }

    void readsAFrameFromEitherFile()
    {
        QFETCH(QByteArray, json);
        const auto frame = decodedFrame(json);
        QTEST(message(frame), "sentence");
        if (frame)
            QCOMPARE(frame->padding, 0.5);
    }

    void readsAWatermark()
    {
        const auto watermark = decodedWatermark(R"({"canvasSize":[1,1],"watermark":{"text":"©","position":"tile"}})");
        QVERIFY2(watermark, qPrintable(message(watermark)));
        QCOMPARE(watermark->text, QStringLiteral("©"));
        QCOMPARE(message(decodedWatermark(R"({"canvasSize":[1,1]})")), QStringLiteral("There is no watermark in it."));
    }
};

QTEST_GUILESS_MAIN(AnnotationDocumentTest)
#include "AnnotationDocumentTest.moc"
