// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/CommandLine/Program.h"

#include <QTest>

#include <sys/stat.h>

using namespace tessaly::test;

namespace {

/// A PNG of some 100 bytes that claims 100 000 × 100 000 pixels.
const QByteArray bomb = QByteArray::fromHex(
    "89504e470d0a1a0a0000000d49484452000186a0000186a0080200000027309c9f0000000c49444154789c6360a03d000000"
    "64000186643c350000000049454e44ae426082");

/// JSON written with ' for ".
QByteArray json(QByteArray text) { return text.replace('\'', '"'); }

/// Two marks: a good one, and one of these fields.
QByteArray goodAnd(const QByteArray &fields)
{
    return json("[{'kind':'rectangle','p1':[4,4],'p2':[20,12]},{'p1':[2,2],") + fields + "}]";
}

QByteArray marks(int count)
{
    QByteArrayList list;
    list.fill(json("{'kind':'line','p1':[1,1],'p2':[9,9]}"), count);
    return '[' + list.join(',') + ']';
}

} // namespace

/// Input that is broken, hostile or out of reach: one sentence, the right status, and nothing half-written.
class BadInputTest : public QObject {
    Q_OBJECT

    using Prepare = std::function<void(const Program &)>;

    static void makePackage(const Program &program)
    {
        const Finished made = program.run({ "document", "good.png", "-o", "doc.tessaly" });
        if (made.status != 0)
            qFatal("%s", qPrintable(made.messages));
    }

private Q_SLOTS:
    void theWorkFails_data()
    {
        QTest::addColumn<Prepare>("prepare");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("named");
        const auto row = [](const char *name, QStringList arguments, const char *named, Prepare prepare) {
            QTest::newRow(name) << prepare << arguments << QString(named);
        };
        const QStringList exportBad { "export", "bad", "-o", "out.png" };
        const auto badFile
            = [](const QByteArray &bytes) { return [bytes](const Program &program) { program.put("bad", bytes); }; };
        row("empty file", exportBad, "bad", badFile({}));
        row("text", exportBad, "bad", badFile("this is no picture\n"));
        row("cut picture", exportBad, "bad", [](const Program &program) {
            const QByteArray whole = program.content("good.png");
            program.put("bad", whole.left(whole.size() / 2));
        });
        row("bomb", exportBad, "bad", badFile(bomb));
        row("missing", exportBad, "bad", [](const Program &) {});
        row("a folder", exportBad, "bad", [](const Program &program) { QDir().mkdir(program.path("bad")); });
        row("over the limit", { "export", "good.png", "-o", "out.png", "--max-pixels", "700" }, "good.png",
            [](const Program &) {});
        row("frame beyond the limit",
            { "export", "good.png", "-o", "out.png", "--frame", "default", "--max-pixels", "900" }, "good.png",
            [](const Program &) {});

        const QStringList exportMarks { "export", "good.png", "-o", "out.png", "--annotations", "bad" };
        row("marks: number for text", exportMarks, "bad",
            badFile(json("{'canvasSize':[40,20],'annotations':[],'generator':7}")));
        row("marks: NaN", exportMarks, "bad", badFile(json("{'canvasSize':[NaN,20]}")));
        row("marks: 1e400", exportMarks, "bad", badFile(json("{'canvasSize':[1e400,20]}")));
        row("marks: nested", exportMarks, "bad", badFile(QByteArray(100000, '[')));
        row("marks: nested and closed", exportMarks, "bad", badFile(QByteArray(100000, '[') + QByteArray(100000, ']')));
        row("marks: invalid UTF-8", exportMarks, "bad", badFile("{\"canvasSize\":[40,20],\"generator\":\"\xff\xfe\"}"));
        row("marks: 200 MB", exportMarks, "bad", [](const Program &program) {
            program.put("bad", "[");
            QFile::resize(program.path("bad"), 200000000);
        });
        row("marks: 100 000", exportMarks, "bad", badFile(marks(100000)));
        row("marks: empty", exportMarks, "bad", badFile({}));
        row("marks: missing", exportMarks, "bad", [](const Program &) {});
        row("frame: number for text", { "export", "good.png", "-o", "out.png", "--frame", "bad" }, "bad",
            badFile(json("{'solidHex':3}")));
        row("watermark: logo is a bomb", { "export", "good.png", "-o", "out.png", "--watermark", "bad" }, "bad",
            badFile(json("{'kind':'image','imageData':'") + bomb.toBase64() + "\"}"));

        const QStringList exportPackage { "export", "doc.tessaly", "-o", "out.png" };
        const auto package = [](Prepare spoil) {
            return [spoil](const Program &program) {
                makePackage(program);
                spoil(program);
            };
        };
        row("package: image is a folder", exportPackage, "doc.tessaly", package([](const Program &program) {
            QFile::remove(program.path("doc.tessaly/image.png"));
            QDir().mkdir(program.path("doc.tessaly/image.png"));
        }));
        row("package: image is a link out", exportPackage, "doc.tessaly", package([](const Program &program) {
            QFile::remove(program.path("doc.tessaly/image.png"));
            QFile::link(program.path("good.png"), program.path("doc.tessaly/image.png"));
        }));
        row("package: no image", exportPackage, "doc.tessaly",
            package([](const Program &program) { QFile::remove(program.path("doc.tessaly/image.png")); }));
        row("package: image is a bomb", exportPackage, "doc.tessaly",
            package([](const Program &program) { program.put("doc.tessaly/image.png", bomb); }));
        row("package: newer", exportPackage, "doc.tessaly",
            package([](const Program &program) { program.put("doc.tessaly/document.json", json("{'version':9}")); }));
        row("package: a file of that name", exportPackage, "doc.tessaly",
            [](const Program &program) { program.put("doc.tessaly", "x"); });

        const auto nothing = [](const Program &) {};
        row("output: no folder", { "export", "good.png", "-o", "nowhere/out.png" }, "nowhere/out.png", nothing);
        row("output: no folder, named as one", { "export", "good.png", "-o", "nowhere/" }, "nowhere/", nothing);
        row("output: no folder for two", { "export", "good.png", "good.png", "-o", "nowhere" }, "nowhere", nothing);
        row("output: read-only", { "export", "good.png", "-o", "/proc/out.png" }, "/proc/out.png", nothing);
        row("output: full device", { "export", "good.png", "-o", "/dev/full" }, "/dev/full", nothing);
        row("output: the source", { "export", "good.png", "-o", "good.png" }, "good.png", nothing);
        row("output: the source by another way", { "export", "good.png", "-o", "link.png" }, "link.png",
            [](const Program &program) { QFile::link(program.path("good.png"), program.path("link.png")); });
        row("output: the source's folder", { "export", "good.png", "-o", "." }, "good.png", nothing);
        row("output: the marks", { "export", "good.png", "-o", "bad", "--format", "png", "--annotations", "bad" },
            "bad", badFile("[]"));
        row("output: the open document", { "document", "doc.tessaly", "-o", "doc.tessaly" }, "doc.tessaly",
            package(nothing));
        row("output: inside a document", { "export", "good.png", "-o", "doc.tessaly/image.png" }, "doc.tessaly",
            package(nothing));
        row("output: a folder of other things", { "document", "good.png", "-o", "photos.tessaly" }, "photos.tessaly",
            [](const Program &program) {
                QDir().mkdir(program.path("photos.tessaly"));
                program.put("photos.tessaly/a.jpg", "x");
            });
        row("info of a cut picture", { "info", "bad", "--json" }, "bad", badFile(bomb.left(40)));
        row("no display", { "capture", "full-screen", "-o", "out.png" }, "DISPLAY", nothing);
    }

    void theWorkFails()
    {
        QFETCH(Prepare, prepare);
        QFETCH(QStringList, arguments);
        QFETCH(QString, named);
        const Program program;
        program.putPicture("good.png", { 40, 20 });
        prepare(program);
        const QStringList before = program.tree();
        const QByteArray picture = program.content("good.png");
        const Finished finished = program.run(arguments);
        QCOMPARE(finished.status, 1);
        const QString line = onlyLine(finished);
        QVERIFY2(line.startsWith("tessaly: ") && line.contains(named) && line.endsWith(u'.'), qPrintable(line));
        QCOMPARE(finished.output, QByteArray());
        QCOMPARE(program.tree(), before);
        QCOMPARE(program.content("good.png"), picture);
    }

    void badMarksAreCountedAndLeftOut_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("kept"); // marks of two
        const auto row = [](const char *name, const QByteArray &fields, int kept) {
            QTest::newRow(name) << goodAnd(fields) << kept;
        };
        row("unknown kind of head", json("'kind':'arrow','p2':[30,15],'arrowHead':'round'"), 1);
        row("number for a colour", json("'kind':'arrow','p2':[30,15],'colorHex':3"), 1);
        row("not Base64", json("'kind':'imageOverlay','p2':[30,15],'imageData':'*?*'"), 1);
        row("no picture", json("'kind':'imageOverlay','p2':[30,15],'imageData':'aGVsbG8='"), 1);
        row("a bomb", json("'kind':'imageOverlay','p2':[30,15],'imageData':'") + bomb.toBase64() + '"', 1);
        row("far away", json("'kind':'arrow','p2':[1e300,-1e300]"), 1);
        row("negative width", json("'kind':'arrow','p2':[30,15],'lineWidth':-4"), 2);
        row("opacity 7", json("'kind':'highlight','p2':[30,15],'highlightOpacity':7"), 2);
        row("size 0", json("'kind':'text','p2':[30,15],'text':'a','fontSize':0"), 2);
        QTest::newRow("no mark at all") << QByteArray(json("[{'kind':'line','p1':[1,1],'p2':[9,9]},7]")) << 1;
    }

    void badMarksAreCountedAndLeftOut()
    {
        QFETCH(QByteArray, json);
        QFETCH(int, kept);
        const Program program;
        program.putPicture("good.png", { 40, 20 });
        program.put("marks.json", json);
        const QStringList with { "--annotations", "marks.json" };
        const Finished exported = program.run(QStringList { "export", "good.png", "-o", "out.png" } + with);
        QCOMPARE(exported.status, 0);
        const QString line = onlyLine(exported);
        QVERIFY2(line.startsWith("tessaly: marks.json: 1 of 2 marks "), qPrintable(line));
        QCOMPARE(QImage(program.path("out.png")).size(), QSize(40, 20));
        const Finished info = program.run(QStringList { "info", "good.png", "--json" } + with);
        QCOMPARE(info.output.count("\"kind\""), kept);
    }

    void aFullDiskLeavesNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("picture") << QStringList { "export", "good.png", "-o", "out.bmp" };
        QTest::newRow("picture over another") << QStringList { "export", "good.png", "-o", "old.bmp" };
        QTest::newRow("document") << QStringList { "document", "good.png", "-o", "out.tessaly" };
    }

    void aFullDiskLeavesNothing()
    {
        QFETCH(QStringList, arguments);
        Program program;
        program.putPicture("good.png", { 400, 200 });
        program.put("old.bmp", "old");
        const QStringList before = program.tree();
        program.fileLimit = 100;
        const Finished finished = program.run(arguments);
        QCOMPARE(finished.status, 1);
        const QString line = onlyLine(finished);
        QVERIFY2(line.contains(arguments.last()), qPrintable(line));
        QCOMPARE(program.tree(), before);
        QCOMPARE(program.content("old.bmp"), "old");
    }

    void whatNobodyGetsIsNotDone_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("text") << QStringList { "info", "good.png" };
        QTest::newRow("picture") << QStringList { "export", "good.png", "-o", "-" };
    }

    void whatNobodyGetsIsNotDone()
    {
        QFETCH(QStringList, arguments);
        Program program;
        program.putPicture("good.png", { 40, 20 });
        program.lacksOutput = true;
        const Finished finished = program.run(arguments);
        QCOMPARE(finished.status, 1);
        const QString line = onlyLine(finished);
        QVERIFY2(line.contains("Standard output could not be written"), qPrintable(line));
    }
};

QTEST_GUILESS_MAIN(BadInputTest)
#include "BadInputTest.moc"
