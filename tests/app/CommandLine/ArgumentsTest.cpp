// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/CommandLine/Program.h"

#include <QTest>

using namespace tessaly::test;

class ArgumentsTest : public QObject {
    Q_OBJECT

    Program m_program;

private Q_SLOTS:
    void wrongUsageEndsWithTwo_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("fragment");
        QTest::newRow("nothing") << QStringList() << "no display";
        QTest::newRow("a file to open") << QStringList { "file" } << "no display";
        QTest::newRow("files to open") << QStringList { "open", "file", "other" } << "no display";
        QTest::newRow("an operation") << QStringList { "--action", "CaptureRegion" } << "no display";
        QTest::newRow("no file to open") << QStringList { "open" } << "FILE";
        QTest::newRow("unknown command") << QStringList { "exprot" } << "\"exprot\"";
        QTest::newRow("unknown option") << QStringList { "export", "--loud" } << "\"--loud\"";
        QTest::newRow("no command of capture") << QStringList { "capture" } << "command";
        QTest::newRow("no input") << QStringList { "export", "-o", "x.png" } << "INPUT";
        QTest::newRow("no output") << QStringList { "export", "a.png" } << "--output";
        QTest::newRow("output without value") << QStringList { "export", "a.png", "-o" } << "--output";
        QTest::newRow("quality too high")
            << QStringList { "export", "a.png", "-o", "x", "--quality", "1.1" } << "\"1.1\"";
        QTest::newRow("quality not a number")
            << QStringList { "export", "a.png", "-o", "x", "--quality", "nan" } << "nan";
        QTest::newRow("scale of nothing") << QStringList { "export", "a.png", "-o", "x", "--scale", "0" } << "--scale";
        QTest::newRow("unknown format") << QStringList { "export", "a.png", "-o", "x", "--format", "heic" } << "heic";
        QTest::newRow("part of a pixel") << QStringList { "info", "a.png", "--max-pixels", "1.5" } << "--max-pixels";
        QTest::newRow("two to standard output") << QStringList { "export", "a.png", "b.png", "-o", "-" } << "folder";
        QTest::newRow("two into a file") << QStringList { "export", "a.png", "b.png", "-o", "file" } << "folder";
        QTest::newRow("standard input twice") << QStringList { "export", "-", "-", "-o", "." } << "once";
        QTest::newRow("a document is no picture") << QStringList { "export", "a.png", "-o", "x.tessaly" } << "document";
        QTest::newRow("a picture is no document") << QStringList { "document", "a.png", "-o", "x.png" } << ".tessaly";
        QTest::newRow("no layout") << QStringList { "collage", "a.png", "-o", "x.png" } << "--layout";
        QTest::newRow("unknown layout") << QStringList { "collage", "a.png", "-o", "x.png", "--layout", "round" }
                                        << "\"round\"";
        QTest::newRow("no colour") << QStringList { "collage", "a.png", "-o", "x.png", "--layout", "stacked",
            "--background", "whyte" }
                                   << "\"whyte\"";
        QTest::newRow("gap below nothing")
            << QStringList { "collage", "a.png", "-o", "x.png", "--layout", "stacked", "--gap", "-1" } << "--gap";
        QTest::newRow("nothing to read") << QStringList { "text" } << "IMAGE";
        QTest::newRow("text of standard input twice") << QStringList { "text", "-", "-" } << "once";
        QTest::newRow("no command of history") << QStringList { "history" } << "command";
        QTest::newRow("nothing to search") << QStringList { "history", "search" } << "QUERY";
        QTest::newRow("nobody to ask") << QStringList { "history", "empty" } << "--yes";
        QTest::newRow("capture into no file") << QStringList { "capture", "full-screen", "-o", "" } << "-o";
        QTest::newRow("display 0") << QStringList { "capture", "full-screen", "-o", "x", "--display", "0" }
                                   << "--display";
        const auto row = [](const char *name, const QStringList &arguments, const char *fragment) {
            QTest::newRow(name) << QStringList { "capture" } + arguments << fragment;
        };
        row("a place that is none", { "region", "--to", "moon" }, "\"moon\"");
        row("a file that is not written", { "region", "--to", "clipboard", "-o", "x.png" }, "--to clipboard");
        row("three numbers", { "region", "--rect", "1,2,3" }, "\"1,2,3\"");
        row("a display to select on", { "region", "--display", "1" }, "--rect");
        row("a selection to standard output", { "region", "-o", "-" }, "standard output");
        row("an area of a window", { "window", "--rect", "1,2,3,4" }, "\"--rect\"");
        row("a display of the last region", { "last-region", "--display", "1" }, "\"--display\"");
        row("a window of a display", { "full-screen", "--window", "1" }, "\"--window\"");
        row("a delay of nothing", { "front-window", "--delay", "-1" }, "--delay");
        row("nothing to show it on", { "full-screen" }, "no display");
        row("nothing to select on", { "region", "-o", "x.png" }, "no display");
    }

    void wrongUsageEndsWithTwo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, fragment);
        m_program.put("file", "x");
        const QStringList before = m_program.tree();
        const Finished finished = m_program.run(arguments);
        QCOMPARE(finished.status, 2);
        const QString line = onlyLine(finished);
        QVERIFY2(line.startsWith("tessaly: ") && line.contains(fragment), qPrintable(line));
        QVERIFY(finished.output.isEmpty());
        QCOMPARE(m_program.tree(), before);
    }

    void helpFitsATerminal_data()
    {
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("tessaly") << QStringList()
                                 << QStringList { "export", "document", "info", "capture", "displays", "windows",
                                        "text", "history", "collage", "--version" };
        QTest::newRow("export") << QStringList { "export" }
                                << QStringList { "--output", "--format", "--quality", "--annotations", "--frame",
                                       "--watermark", "--scale", "--max-pixels", "INPUT..." };
        QTest::newRow("document") << QStringList { "document" } << QStringList { "--output", "--annotations" };
        QTest::newRow("info") << QStringList { "info" } << QStringList { "--json", "--frame" };
        QTest::newRow("capture") << QStringList { "capture" }
                                 << QStringList { "region", "window", "front-window", "full-screen", "last-region" };
        QTest::newRow("region") << QStringList { "capture", "region" }
                                << QStringList { "--to", "--output", "--delay", "--rect", "--display" };
        QTest::newRow("windows") << QStringList { "windows" } << QStringList { "--json" };
        QTest::newRow("text") << QStringList { "text" } << QStringList { "--json", "--codes", "IMAGE..." };
        QTest::newRow("collage") << QStringList { "collage" }
                                 << QStringList { "IMAGE... --layout side-by-side|stacked -o OUT", "--gap", "#FFFFFF" };
        QTest::newRow("history") << QStringList { "history" }
                                 << QStringList { "list", "search", "open", "export", "remove", "empty",
                                        "tessaly history COMMAND --help" };
        QTest::newRow("history search") << QStringList { "history", "search" }
                                        << QStringList { "--json", "--no-recognition" };
        QTest::newRow("history export") << QStringList { "history", "export" } << QStringList { "--output", "--frame" };
        QTest::newRow("history empty") << QStringList { "history", "empty" } << QStringList { "--yes" };
        QTest::newRow("full-screen") << QStringList { "capture", "full-screen" } << QStringList { "--display" };
    }

    void helpFitsATerminal()
    {
        QFETCH(QStringList, command);
        QFETCH(QStringList, names);
        const Finished finished = m_program.run(command + QStringList { "--help" });
        QCOMPARE(finished.status, 0);
        QCOMPARE(finished.messages, QString());
        const QString page = QString::fromUtf8(finished.output);
        for (const QString &line : page.split(u'\n'))
            QVERIFY2(line.size() <= 80, qPrintable(line));
        for (const QString &name : names)
            QVERIFY2(page.contains(name), qPrintable(name));
    }

    void versionIsOneLine()
    {
        const Finished finished = m_program.run({ "--version" });
        QCOMPARE(finished.status, 0);
        QVERIFY(QRegularExpression("^Tessaly [0-9.]+ \\([0-9]+\\)\n$").match(finished.output).hasMatch());
    }
};

QTEST_GUILESS_MAIN(ArgumentsTest)
#include "ArgumentsTest.moc"
