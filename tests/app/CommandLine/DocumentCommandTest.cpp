// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/CommandLine/Program.h"

#include <QTest>

using namespace tessaly::test;

namespace {

/// Marks without chance in them, a frame and a watermark.
const QByteArray marks = R"({"canvasSize":[60,40],"nextStampNumber":3,"annotations":[
    {"kind":"rectangle","p1":[5,5],"p2":[40,30],"filled":true,"colorHex":"#00AA44"},
    {"kind":"arrow","p1":[2,38],"p2":[50,6]},
    {"kind":"stamp","stamp":"number","text":"2","p1":[30,10],"p2":[50,30],"stampLabel":"here"},
    {"kind":"pixelate","obscure":"stripes","p1":[0,0],"p2":[12,9]}],
    "frame":{"padding":0.2,"shadow":0.4},"watermark":{"text":"Tessaly"}})";

} // namespace

class DocumentCommandTest : public QObject {
    Q_OBJECT

    static void succeed(const Program &program, const QStringList &arguments)
    {
        const Finished finished = program.run(arguments);
        QCOMPARE(finished.messages, QString());
        QCOMPARE(finished.status, 0);
    }

private Q_SLOTS:
    void exportOfADocumentIsExportOfItsParts_data()
    {
        QTest::addColumn<QStringList>("made"); // options of `document`
        QTest::addColumn<QStringList>("drawn"); // options of `export` of the document
        QTest::addColumn<QStringList>("direct"); // options of `export` of the picture
        const QStringList all { "--annotations", "marks.json" };
        const QStringList unframed { "--frame", "none" };
        const QStringList unmarked { "--watermark", "none" };
        QTest::newRow("all") << all << QStringList() << all;
        QTest::newRow("at two pixels a point")
            << all + QStringList { "--scale", "2" } << QStringList() << all + QStringList { "--scale", "2" };
        QTest::newRow("the frame removed when made") << all + unframed << QStringList() << all + unframed;
        QTest::newRow("the watermark removed when drawn") << all << unmarked << all + unmarked;
        QTest::newRow("everything removed")
            << all << QStringList { "--annotations", "none.json" } + unframed + unmarked << QStringList();
        QTest::newRow("the frame exchanged")
            << all << QStringList { "--frame", "default" } << all + QStringList { "--frame", "default" };
        QTest::newRow("marks of a bare list leave the frame")
            << all << QStringList { "--annotations", "list.json" }
            << QStringList { "--annotations", "list.json", "--frame", "frame.json", "--watermark", "watermark.json" };
    }

    void exportOfADocumentIsExportOfItsParts()
    {
        QFETCH(QStringList, made);
        QFETCH(QStringList, drawn);
        QFETCH(QStringList, direct);
        const Program program;
        program.putPicture("in.png", { 120, 80 });
        program.put("marks.json", marks);
        program.put("none.json", "[]");
        program.put("list.json", R"([{"kind":"line","p1":[1,1],"p2":[50,30]}])");
        program.put("frame.json", R"({"padding":0.2,"shadow":0.4})");
        program.put("watermark.json", R"({"text":"Tessaly"})");
        succeed(program, QStringList { "document", "in.png", "-o", "doc.tessaly" } + made);
        succeed(program, QStringList { "export", "doc.tessaly", "-o", "drawn.png" } + drawn);
        succeed(program, QStringList { "export", "in.png", "-o", "direct.png" } + direct);
        QVERIFY(!program.content("drawn.png").isEmpty());
        QCOMPARE(QImage(program.path("drawn.png")), QImage(program.path("direct.png")));
    }

    void aDocumentIsReplacedWhole()
    {
        const Program program;
        program.putPicture("a.png", { 120, 80 });
        program.putPicture("b.png", { 30, 20 });
        succeed(program, { "document", "a.png", "-o", "doc.tessaly" });
        program.put("doc.tessaly/stray", "x");
        succeed(program, { "document", "b.png", "-o", "doc.tessaly/" });
        QCOMPARE(program.tree(),
            QStringList({ "a.png", "b.png", "doc.tessaly", "doc.tessaly/QuickLook",
                "doc.tessaly/QuickLook/Thumbnail.png", "doc.tessaly/document.json", "doc.tessaly/image.png" }));
        QCOMPARE(QImage(program.path("doc.tessaly/image.png")).size(), QSize(30, 20));
    }

    void aNewerDocumentOpensWithANote()
    {
        const Program program;
        program.putPicture("a.png", { 120, 80 });
        succeed(program, { "document", "a.png", "-o", "doc.tessaly" });
        program.put("doc.tessaly/document.json", R"({"version":4,"canvasSize":[120,80],"layers":[1]})");
        const Finished finished = program.run({ "export", "doc.tessaly", "-o", "out.png" });
        QCOMPARE(finished.status, 0);
        QVERIFY2(onlyLine(finished).contains("newer version"), qPrintable(finished.messages));
        QCOMPARE(QImage(program.path("out.png")).size(), QSize(120, 80));
    }
};

QTEST_GUILESS_MAIN(DocumentCommandTest)
#include "DocumentCommandTest.moc"
