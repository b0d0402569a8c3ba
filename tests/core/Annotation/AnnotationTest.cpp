// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationLabels.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleMarks.h"

#include <QJsonDocument>

using namespace tessaly;

/// The extent and the hits of single marks, and how one is read.
class AnnotationTest : public QObject {
    Q_OBJECT

    static Annotation stampIn(const QRectF &box)
    {
        Annotation mark(AnnotationKind::Stamp, box.topLeft(), box.bottomRight());
        mark.tailAngle = 0;
        return mark;
    }

    static Result<Annotation> read(const char *json)
    {
        return Annotation::fromJson(QJsonDocument::fromJson(json).object());
    }

    static constexpr const char *minimal = R"("kind":"arrow","p1":[1,2],"p2":[3,4])";

private Q_SLOTS:
    void keepsTheTailWithinItsRadii_data()
    {
        // reach: from the centre, rightwards
        test::columns<double, double, double>("width", "tailLength", "reach");
        test::row("as asked", 40.0, 34.0, 34.0);
        test::row("at least 1.4 radii", 40.0, 0.0, 28.0);
        test::row("at most 3 radii", 40.0, 1000.0, 60.0);
        test::row("a negative length", 40.0, -50.0, 28.0);
        test::row("a box without width has half a point of radius", 0.0, 34.0, 1.5);
    }

    void keepsTheTailWithinItsRadii()
    {
        QFETCH(double, width);
        QFETCH(double, tailLength);
        Annotation mark = stampIn({ 100, 50, width, 20 });
        mark.tailLength = tailLength;
        QVERIFY(mark.tailTip());
        QCOMPARE(mark.tailTip()->y(), 60.0);
        QTEST(mark.tailTip()->x() - (100 + width / 2), "reach");
        mark.tailAngle = M_PI / 2; // y grows downwards
        QVERIFY(mark.tailTip()->y() > 60);
        mark.tailAngle.reset();
        QVERIFY(!mark.tailTip());
        mark.tailAngle = 0;
        mark.kind = AnnotationKind::Rectangle;
        QVERIFY(!mark.tailTip());
    }

    void placesTheLabelByItsCharacters_data()
    {
        // rect: of a stamp at (0, 0)
        test::columns<QString, double, QRectF>("label", "side", "rect");
        test::row("one character on a small stamp", QStringLiteral("A"), 20.0, QRectF(23.52, 2, 22, 16));
        test::row("ten characters", QStringLiteral("ABCDEFGHIJ"), 40.0, QRectF(44.84, 9, 147.4, 22));
        test::row("a family is one character", QStringLiteral("👩‍👩‍👧"), 20.0, QRectF(23.52, 2, 22, 16));
        test::row("an accent is no character", QStringLiteral("e\u0301e\u0301"), 20.0, QRectF(23.52, 2, 27.84, 16));
    }

    void placesTheLabelByItsCharacters()
    {
        QFETCH(QString, label);
        QFETCH(double, side);
        Annotation mark = stampIn({ 0, 0, side, side });
        QVERIFY(!mark.stampLabelRect());
        mark.stampLabel = label;
        QVERIFY(mark.stampLabelRect());
        QTEST(*mark.stampLabelRect(), "rect");
    }

    void boundsEachKind_data()
    {
        test::columns<Annotation, QRectF>("mark", "bounds");
        Annotation text(AnnotationKind::Text, { 7, 9 }, { 500, 500 });
        test::row("empty text", text, QRectF(7, 9, 24, 23.4));
        text.text = QStringLiteral("abcdefghij");
        test::row("text", text, QRectF(7, 9, 108, 23.4));
        Annotation arrow(AnnotationKind::Arrow, { 110, 50 }, { 10, 70 });
        test::row("dragged to the left", arrow, QRectF(10, 50, 100, 20));
        arrow.p2 = { 10, 50 };
        arrow.curved = true;
        test::row("a curve leftwards bends down", arrow, QRectF(10, 50, 100, 22));
        Annotation stamp = stampIn({ 0, 0, 20, 20 });
        test::row("stamp with a tail", stamp, QRectF(0, 0, 40, 20));
        stamp.stampLabel = QStringLiteral("A");
        test::row("stamp with tail and label", stamp, QRectF(0, 0, 45.52, 20));
        stamp.p2 = stamp.p1;
        stamp.stampLabel.clear();
        test::row("a stamp without size keeps its tail", stamp, QRectF(0, 0, 1.5, 0));
    }

    void boundsEachKind()
    {
        QFETCH(Annotation, mark);
        QTEST(mark.boundingRect(), "bounds");
    }

    void isHitWhereItIsSeen_data()
    {
        test::columns<Annotation, QPointF, QPointF>("mark", "hit", "miss");
        Annotation line(AnnotationKind::Line, { 0, 0 }, { 100, 0 });
        test::row("a line reaches its width and 6", line, QPointF(50, 10), QPointF(50, 10.1));
        line.lineWidth = 0;
        test::row("and at least 8", line, QPointF(108, 0), QPointF(108.1, 0));
        Annotation curve(AnnotationKind::Arrow, { 0, 0 }, { 100, 0 });
        test::row("a straight arrow is a line", curve, QPointF(50, 0), QPointF(50, -22));
        curve.curved = true;
        test::row("a curve is hit along its bend", curve, QPointF(50, -30), QPointF(50, 0));
        const Annotation box(AnnotationKind::Rectangle, { 100, 100 }, { 60, 70 });
        test::row("a box and 6 around it", box, QPointF(54.5, 64.5), QPointF(53.5, 80));
    }

    void isHitWhereItIsSeen()
    {
        QFETCH(Annotation, mark);
        QFETCH(QPointF, hit);
        QFETCH(QPointF, miss);
        QVERIFY(mark.contains(hit));
        QVERIFY(!mark.contains(miss));
        for (const auto kind : { AnnotationKind::Pixelate, AnnotationKind::Pen }) {
            mark.kind = kind;
            QVERIFY(!mark.contains(hit));
        }
    }

    void readsDefaultsForWhatIsMissing()
    {
        const auto mark = read((std::string("{") + minimal + "}").c_str());
        QVERIFY(mark);
        Annotation expected(AnnotationKind::Arrow, { 1, 2 }, { 3, 4 });
        QVERIFY(!mark->id.isNull());
        QVERIFY(mark->id != expected.id);
        expected.id = mark->id;
        QCOMPARE(*mark, expected);
    }

    void readsOneMark_data()
    {
        // message: empty when it can be read
        test::columns<QByteArray, QString>("json", "message");
        const auto row = [](const char *name, const QByteArray &rest, const char *message = "") {
            QTest::newRow(name) << QByteArray("{" + QByteArray(minimal) + "," + rest + "}")
                                << QString::fromUtf8(message);
        };
        row("unknown keys do not matter", R"("future":{"a":[1]})");
        row("null stands for an absent option", R"("disc":null,"tailAngle":null,"imageData":null)");
        row("unknown head", R"("arrowHead":"fancy")", "The mark's “arrowHead” cannot be \"fancy\".");
        row("case counts", R"("obscure":"Blur")", "The mark's “obscure” cannot be \"Blur\".");
        row("number for a text", R"("text":7)", "The mark's “text” cannot be 7.");
        row("text for a number", R"("lineWidth":"4")", "The mark's “lineWidth” cannot be \"4\".");
        row("number for a flag", R"("bold":1)", "The mark's “bold” cannot be 1.");
        row("null for a number", R"("fontSize":null)", "The mark's “fontSize” cannot be null.");
        row("three coordinates", R"("curveHandle":[1,2,3])", "The mark's “curveHandle” cannot be […].");
        row("a bad point in the path", R"("points":[[1,2],[3]])", "The mark's “points” cannot be […].");
        row("not Base64", R"("imageData":"***")", "The mark's “imageData” cannot be \"***\".");
        row("not an identity", R"("id":"me")", "The mark's “id” cannot be \"me\".");
        row("a long text is cut", "\"kind\":\"" + QByteArray(99, 'x') + '"',
            "The mark's “kind” cannot be \"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx….");
        QTest::newRow("no kind") << QByteArray(R"({"p1":[1,2],"p2":[3,4]})")
                                 << QStringLiteral("The mark has no “kind”.");
        QTest::newRow("no p2") << QByteArray(R"({"kind":"pen","p1":[1,2]})") << QStringLiteral("The mark has no “p2”.");
    }

    void readsOneMark()
    {
        QFETCH(QByteArray, json);
        const auto mark = read(json);
        QTEST(mark ? QString() : mark.failure().message, "message");
    }

    void offersEveryCaseInOrder()
    {
        const auto sameOrder = [](const auto &labels, const auto &names) {
            return std::ranges::equal(
                labels, names, [](const auto &label, const auto &name) { return label.value == name.value; });
        };
        QVERIFY(sameOrder(optionLabels<ArrowHeadStyle>, enumNames<ArrowHeadStyle>));
        QVERIFY(sameOrder(optionLabels<StampKind>, enumNames<StampKind>));
        QVERIFY(sameOrder(optionLabels<ObscureStyle>, enumNames<ObscureStyle>));
        QVERIFY(sameOrder(optionLabels<CropAspect>, enumNames<CropAspect>));
        QCOMPARE(label(StampKind::Exclamation), QStringLiteral("Exclamation mark"));
        QCOMPARE(label(CropAspect::R3x4), QStringLiteral("3:4"));
    }

    void sampleMarksLieOnTheirCanvas()
    {
        const QRectF canvas({ 0, 0 }, test::sampleCanvas);
        for (const Annotation &mark : test::oneOfEachKind() + test::manyMarks(500))
            QVERIFY(canvas.contains(mark.rect()));
        QCOMPARE(test::oneOfEachKind(), test::oneOfEachKind());
    }
};

QTEST_GUILESS_MAIN(AnnotationTest)
#include "AnnotationTest.moc"
