// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/CommandLine/Program.h"
#include "tests/support/Rows.h"

#include <QColorSpace>

using namespace tessaly::test;

class ExportCommandTest : public QObject {
    Q_OBJECT

    static QByteArray stateOf(const Finished &finished)
    {
        return QByteArray::number(finished.status) + ' ' + finished.messages.toUtf8();
    }

private Q_SLOTS:
    void formatFollowsOptionThenExtensionThenSettings_data()
    {
        // start: of the file
        columns<QString, QString, QByteArray>("output", "option", "start");
        row("png", "out.png", "", QByteArray("\x89PNG"));
        row("jpg", "out.jpg", "", QByteArray("\xff\xd8\xff"));
        row("jpeg, in capitals", "out.JPEG", "", QByteArray("\xff\xd8\xff"));
        row("webp", "out.webp", "", QByteArray("RIFF"));
        row("pdf", "out.pdf", "", QByteArray("%PDF"));
        row("tif", "out.tif", "", QByteArray("II*"));
        row("gif", "out.gif", "", QByteArray("GIF8"));
        row("bmp", "out.bmp", "", QByteArray("BM"));
        row("the option wins", "out.png", "gif", QByteArray("GIF8"));
        row("settings for an unknown extension", "out.picture", "", QByteArray("BM"));
        row("settings for standard output", "-", "", QByteArray("BM"));
        row("option for standard output", "-", "png", QByteArray("\x89PNG"));
    }

    void formatFollowsOptionThenExtensionThenSettings()
    {
        QFETCH(QString, output);
        QFETCH(QString, option);
        QFETCH(QByteArray, start);
        const Program program;
        program.putPicture("in.png", { 30, 20 });
        QDir().mkpath(program.path(".config/tessaly"));
        program.put(".config/tessaly/settings.json", R"({"exportFormat":"bmp"})");
        QStringList arguments { "export", "in.png", "-o", output };
        if (!option.isEmpty())
            arguments += { "--format", option };
        const Finished finished = program.run(arguments);
        QCOMPARE(stateOf(finished), "0 ");
        const QByteArray written = output == u"-" ? finished.output : program.content(output);
        QVERIFY2(written.startsWith(start), written.left(8).toHex());
    }

    void standardInputGoesToStandardOutput()
    {
        const Program program;
        const QImage picture = program.putPicture("in.png", { 33, 21 });
        const Finished finished = program.run({ "export", "-", "-o", "-" }, program.content("in.png"));
        QCOMPARE(stateOf(finished), "0 ");
        QImage written = QImage::fromData(finished.output).convertToFormat(QImage::Format_RGB32);
        written.setColorSpace({});
        QCOMPARE(written, picture);
        QCOMPARE(program.tree(), QStringList("in.png"));

        QCOMPARE(stateOf(program.run({ "export", "-", "-o", "." }, program.content("in.png"))), "0 ");
        QVERIFY(program.tree().contains("stdin.png"));
    }

    void theWorkGoesOnPastABadInput()
    {
        const Program program;
        program.putPicture("a.png", { 30, 20 });
        program.put("broken.png", "no picture");
        program.putPicture("info", { 30, 20 }); // named like a command
        QDir().mkdir(program.path("out"));
        const Finished finished
            = program.run({ "export", "a.png", "broken.png", "info", "-o", "out", "--format", "webp" });
        QCOMPARE(finished.status, 1);
        QVERIFY2(onlyLine(finished).contains("broken.png"), qPrintable(finished.messages));
        QCOMPARE(program.tree(), QStringList({ "a.png", "broken.png", "info", "out", "out/a.webp", "out/info.webp" }));
    }

    void equalNamesDoNotOverwriteEachOther()
    {
        const Program program;
        QDir().mkpath(program.path("one"));
        QDir().mkpath(program.path("two"));
        QDir().mkpath(program.path("out"));
        const QImage first = program.putPicture("one/a.png", { 30, 20 });
        program.putPicture("two/a.png", { 10, 10 });
        const Finished finished = program.run({ "export", "one/a.png", "two/a.png", "-o", "out" });
        QCOMPARE(finished.status, 1);
        const QString line = onlyLine(finished);
        QVERIFY2(line.contains("one/a.png") && line.contains("two/a.png"), qPrintable(line));
        QCOMPARE(QImage(program.path("out/a.png")).size(), first.size());
    }

    void scaleComesFromTheResolutionOrTheOption_data()
    {
        // dpi: of the input, 0 for none; written: the output's dpi
        columns<int, QStringList, int>("dpi", "option", "written");
        row("none", 0, QStringList(), 72);
        row("two pixels a point", 144, QStringList(), 144);
        row("no scale of ours", 96, QStringList(), 72);
        row("the option wins", 144, QStringList { "--scale", "3" }, 216);
        row("any scale is an option", 0, QStringList { "--scale", "1.1" }, 79);
    }

    void scaleComesFromTheResolutionOrTheOption()
    {
        QFETCH(int, dpi);
        QFETCH(QStringList, option);
        const Program program;
        program.putPicture("in.png", { 60, 30 }, dpi);
        QCOMPARE(stateOf(program.run(QStringList { "export", "in.png", "-o", "out.png" } + option)), "0 ");
        const QImage written(program.path("out.png"));
        QCOMPARE(written.size(), QSize(60, 30));
        // A picture without a resolution is read with the one of the platform.
        const bool recorded = program.content("out.png").contains("pHYs");
        QTEST(recorded ? qRound(written.dotsPerMeterX() * 0.0254) : 72, "written");
    }

    void linksAndStreamsAreWrittenThrough()
    {
        const Program program;
        program.putPicture("in.png", { 30, 20 });
        program.put("target.png", "old");
        QFile::link(program.path("target.png"), program.path("link.png"));
        QCOMPARE(stateOf(program.run({ "export", "in.png", "-o", "link.png" })), "0 ");
        QVERIFY(QFileInfo(program.path("link.png")).isSymLink());
        QCOMPARE(QImage(program.path("target.png")).size(), QSize(30, 20));
        const Finished streamed
            = program.run({ "export", "/dev/stdin", "-o", "/dev/stdout" }, program.content("in.png"));
        QCOMPARE(stateOf(streamed), "0 ");
        QCOMPARE(QImage::fromData(streamed.output).size(), QSize(30, 20));
        QCOMPARE(stateOf(program.run({ "export", "in.png", "-o", "/dev/null" })), "0 ");
        QVERIFY(!QFileInfo("/dev/null").isFile());
    }

    void marksThatWriteNothingDrawWithoutFonts()
    {
        const Program program;
        program.putPicture("in.png", { 30, 20 });
        program.put("marks.json", R"([{"kind":"stamp","stamp":"number","p1":[1,1],"p2":[15,15]},
            {"kind":"text","text":" ","p1":[1,1],"p2":[1,1]},{"kind":"sticker","p1":[1,1],"p2":[9,9]},
            {"kind":"stamp","stamp":"star","stampLabel":" ","p1":[16,1],"p2":[29,15]}])");
        const Finished finished = program.run({ "export", "in.png", "-o", "out.png", "--annotations", "marks.json" });
        QCOMPARE(stateOf(finished), "0 ");
    }

    void fileNamesAreTakenAsTheyAre()
    {
        const Program program;
        const QString odd = QStringLiteral("-a %1\nü \x1b[31m.png");
        program.putPicture(odd, { 30, 20 });
        QDir().mkdir(program.path("out"));
        QCOMPARE(stateOf(program.run({ "export", "-o", "out", "--", odd })), "0 ");
        QVERIFY(program.tree().contains("out/" + odd));
        program.put(odd, "broken");
        const Finished failed = program.run({ "export", "-o", "out", "--", odd });
        QCOMPARE(failed.status, 1);
        QVERIFY2(onlyLine(failed).contains("%1?ü ?[31m.png"), qPrintable(failed.messages));
    }
};

QTEST_GUILESS_MAIN(ExportCommandTest)
#include "ExportCommandTest.moc"
