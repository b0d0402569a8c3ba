// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/CommandLine/Program.h"
#include "tests/support/Rows.h"

using namespace tessaly::test;

static constexpr char redCover[]
    = R"([{"kind":"rectangle","filled":true,"p1":[0,0],"p2":[40,20],"colorHex":"#FF0000","cornerRadius":0}])";

class CollageCommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void picturesAreJoined_data()
    {
        // between: a point of the gap
        columns<QStringList, QString, QSize, QPoint, QColor>("options", "name", "size", "between", "background");
        // a.png is 40 × 20 points, b.png 30 × 10; a.png has 2 pixels per point where that is said.
        row("side by side", QStringList { "--layout", "side-by-side" }, "x.png", QSize(40 + 12 + 60, 20),
            QPoint(45, 10), QColor(Qt::white));
        row("stacked with a gap of colour",
            QStringList { "--layout", "stacked", "--gap", "7", "--background", "#c080FF" }, "x.bmp", QSize(40, 40),
            QPoint(3, 23), QColor(0xc0, 0x80, 0xff));
        row("clear gaps", QStringList { "--layout", "side-by-side", "--gap", "1", "--background", "00000000" }, "x.png",
            QSize(40 + 1 + 60, 20), QPoint(40, 0), QColor(0, 0, 0, 0));
        row("of two pixels a point", QStringList { "--layout", "side-by-side", "--scale", "2" }, "x.png",
            QSize(40 + 24 + 60, 20), QPoint(50, 10), QColor(Qt::white));
    }

    void picturesAreJoined()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, name);
        QFETCH(QPoint, between);
        const Program program;
        program.putPicture("a.png", { 40, 20 });
        program.putPicture("b.png", { 30, 10 });
        const Finished finished = program.run(QStringList { "collage", "a.png", "b.png", "-o", name } + options);
        QCOMPARE(finished.messages, QString());
        QCOMPARE(finished.status, 0);
        const QImage collage(program.path(name));
        QTEST(collage.size(), "size");
        QTEST(collage.pixelColor(between), "background");
    }

    /// A document takes part as it is shown: what it hides stays hidden.
    void documentsAreFinishedFirst()
    {
        const Program program;
        program.putPicture("a.png", { 40, 20 });
        program.put("marks.json", redCover);
        QCOMPARE(program.run({ "document", "a.png", "-o", "a.tessaly", "--annotations", "marks.json" }).status, 0);
        QCOMPARE(program.run({ "collage", "a.tessaly", "-o", "x.png", "--layout", "stacked" }).status, 0);
        QCOMPARE(QImage(program.path("x.png")).pixelColor(20, 10), QColor(Qt::red));
    }

    void whatCannotBeJoined_data()
    {
        columns<QStringList, QString>("arguments", "fragment");
        const QStringList layout { "--layout", "stacked" };
        row("a missing picture is named", QStringList { "a.png", "gone.png", "-o", "x.png" } + layout, "gone.png");
        row("a broken one", QStringList { "broken.png", "a.png", "-o", "x.png" } + layout, "broken.png");
        row("onto one of them", QStringList { "a.png", "-o", "a.png" } + layout, "a.png");
        row("into a folder", QStringList { "a.png", "-o", "." } + layout, "folder");
        row("too large", QStringList { "a.png", "-o", "x.png", "--max-pixels", "799" } + layout, "a.png");
        row("too large together", QStringList { "a.png", "a.png", "-o", "x.png", "--max-pixels", "1000" } + layout,
            "--max-pixels");
    }

    void whatCannotBeJoined()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, fragment);
        const Program program;
        program.putPicture("a.png", { 40, 20 });
        program.put("broken.png", program.content("a.png").left(60));
        const QByteArray before = program.content("a.png");
        const Finished finished = program.run(QStringList { "collage" } + arguments);
        QCOMPARE(finished.status, 1);
        QVERIFY2(onlyLine(finished).contains(fragment), qPrintable(onlyLine(finished)));
        QVERIFY(!QFile::exists(program.path("x.png")));
        QCOMPARE(program.content("a.png"), before);
    }
};

QTEST_GUILESS_MAIN(CollageCommandTest)
#include "CollageCommandTest.moc"
