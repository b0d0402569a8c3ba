// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/CommandLine/Program.h"

#include <QJsonDocument>
#include <QTest>

using namespace tessaly::test;

class InfoCommandTest : public QObject {
    Q_OBJECT

    /// The value with its numbers rounded to what a reader of the text can tell apart.
    static QJsonValue rounded(const QJsonValue &value)
    {
        if (value.isDouble())
            return std::round(value.toDouble() * 1e6) / 1e6;
        QJsonArray array = value.toArray();
        for (qsizetype index = 0; index < array.size(); ++index)
            array[index] = rounded(array.at(index));
        QJsonObject object = value.toObject();
        for (const QString &key : object.keys())
            object[key] = rounded(object.value(key));
        return value.isArray() ? QJsonValue(array) : value.isObject() ? QJsonValue(object) : value;
    }

    static QJsonObject parsed(const QByteArray &json)
    {
        return rounded(QJsonDocument::fromJson(json).object()).toObject();
    }

    static QJsonObject jsonOf(const Finished &finished) { return parsed(finished.output); }

private Q_SLOTS:
    void jsonHoldsTheGeometry()
    {
        const Program program;
        program.putPicture("in.png", { 2000, 1000 }, 144);
        program.put("marks.json", R"([
            {"id":"11111111-2222-4333-8444-555555555555","kind":"arrow","p1":[30,40],"p2":[10,60]},
            {"id":"21111111-2222-4333-8444-555555555555","kind":"stamp","p1":[100,100],"p2":[120,120],
             "stampLabel":"a","tailAngle":0,"tailLength":1000},
            {"id":"31111111-2222-4333-8444-555555555555","kind":"text","p1":[7,9],"p2":[7,9]}])");
        const Finished finished
            = program.run({ "info", "in.png", "--annotations", "marks.json", "--frame", "default", "--json" });
        QCOMPARE(finished.messages, QString());
        QCOMPARE(finished.status, 0);
        // The stamp: radius 10, tail 30 long; its label 16 high, 3.52 right of it, 22 wide. The text: 24 × 23.4.
        QCOMPARE(jsonOf(finished), parsed(R"({
            "pixelSize": [2000, 1000], "pointSize": [1000, 500], "dpi": 144,
            "frameLayout": {"canvasSize": [1113, 613], "imageOrigin": [56.5, 56.5], "imageSize": [1000, 500]},
            "annotations": [
                {"id": "11111111-2222-4333-8444-555555555555", "kind": "arrow",
                 "rect": [10, 40, 20, 20], "boundingRect": [10, 40, 20, 20]},
                {"id": "21111111-2222-4333-8444-555555555555", "kind": "stamp",
                 "rect": [100, 100, 20, 20], "boundingRect": [100, 100, 45.52, 20], "tailTip": [140, 110],
                 "stampLabelRect": [123.52, 102, 22, 16]},
                {"id": "31111111-2222-4333-8444-555555555555", "kind": "text",
                 "rect": [7, 9, 0, 0], "boundingRect": [7, 9, 24, 23.4]}]})"));
    }

    void jsonOfADocumentSaysWhereItComesFrom()
    {
        const Program program;
        program.putPicture("in.png", { 40, 20 });
        QCOMPARE(program.run({ "document", "in.png", "-o", "doc.tessaly", "--scale", "2" }).status, 0);
        QJsonObject report = jsonOf(program.run({ "info", "doc.tessaly", "--json" }));
        QJsonObject origin = report.take("document").toObject();
        QVERIFY(origin.take("generator").toString().startsWith("Tessaly "));
        QCOMPARE(origin, parsed(R"({"version":1,"skippedAnnotations":0})"));
        QCOMPARE(report, parsed(R"({"pixelSize":[40,20],"pointSize":[20,10],"dpi":144,"annotations":[],
            "frameLayout":{"canvasSize":[20,10],"imageOrigin":[0,0],"imageSize":[20,10]}})"));

        program.put("doc.tessaly/document.json", R"({"version":3,"canvasSize":[40,20],"annotations":[4,{}]})");
        const Finished newer = program.run({ "info", "doc.tessaly", "--json" });
        QCOMPARE(newer.status, 0);
        QCOMPARE(jsonOf(newer).value("document").toObject(),
            parsed(R"({"version":3,"generator":null,"skippedAnnotations":2})"));
        QCOMPARE(newer.messageLines().size(), 2);
    }

    void textReadsWell()
    {
        const Program program;
        program.putPicture("in.png", { 40, 20 });
        program.put("marks.json", R"([{"kind":"arrow","p1":[30,4],"p2":[10,10]}])");
        const Finished finished
            = program.run({ "info", "-", "--annotations", "marks.json" }, program.content("in.png"));
        QCOMPARE(finished.status, 0);
        QCOMPARE(QString::fromUtf8(finished.output),
            QStringLiteral("standard input\n"
                           "  Pixels     40 × 20\n"
                           "  Points     40 × 20 (scale 1, 72 dpi)\n"
                           "  Frame      none\n"
                           "  Watermark  none\n"
                           "  Marks      1\n"
                           "      1  arrow         20 × 6 at 10, 4\n"));
    }
};

QTEST_GUILESS_MAIN(InfoCommandTest)
#include "InfoCommandTest.moc"
