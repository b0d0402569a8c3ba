// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ImageEncoder.h"
#include "core/History/HistoryKeeper.h"
#include "tests/app/CommandLine/Program.h"
#include "tests/support/Rows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTimeZone>

using namespace tessaly;
using namespace tessaly::test;

class HistoryCommandTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Program> m_program;

    HistoryStore files() const { return { m_program->path(".data/tessaly/History") }; }
    QStringList ids() const
    {
        QStringList all;
        const auto entries = HistoryKeeper(files()).load().entries;
        for (const HistoryEntry &entry : entries)
            all += entry.id.toString(QUuid::WithoutBraces).left(4);
        return all;
    }

    static TessalyDocument::Package packageOf(QSize size, const AnnotationDocument &document)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        const auto png = encodeImage(RasterImage::fromPixels(image), ExportFormat::Png, {});
        return *TessalyDocument::package(document, *png, std::nullopt);
    }

    /// Three captures, a day apart; the newest has a red mark all over it.
    static QList<HistoryEntry> captures()
    {
        const QDateTime last(QDate(2025, 3, 9), QTime(16, 5), QTimeZone::systemTimeZone());
        const QString long1 = QStringLiteral("menu\n") + QStringLiteral("words before ").repeated(12)
            + QStringLiteral("the Übersicht of it ") + QStringLiteral("words after ").repeated(12);
        return {
            { QUuid("aaaa1111-0000-4000-8000-000000000001"), "Screenshot", last, last, 40, 20, "Budget\nTotal 42" },
            { QUuid("aaab1111-0000-4000-8000-000000000002"), "Mail\nclient", last.addDays(-1), last, 1200, 30, long1 },
            { QUuid("bbbb1111-0000-4000-8000-000000000003"), "Total recall", last.addDays(-2), last, 8, 8, "" },
        };
    }

    Finished run(const QStringList &arguments) const { return m_program->run(QStringList { "history" } + arguments); }

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<Program>();
        HistoryKeeper keeper(files());
        for (const HistoryEntry &entry : captures()) {
            AnnotationDocument document;
            document.canvasSize = QSizeF(entry.pixelWidth, entry.pixelHeight);
            if (entry.title == "Screenshot") {
                Annotation mark;
                mark.kind = AnnotationKind::Rectangle;
                mark.filled = true;
                mark.colorHex = QStringLiteral("#FF0000");
                mark.p2 = { 40, 20 };
                document.annotations = { mark };
            }
            const auto put = keeper.put(packageOf({ entry.pixelWidth, entry.pixelHeight }, document), entry);
            QVERIFY2(put, qPrintable(put ? QString() : put.failure().message));
        }
    }

    void listsReadWell()
    {
        const Finished finished = run({ "list" });
        QCOMPARE(finished.messages, QString());
        QCOMPARE(QString::fromUtf8(finished.output),
            QStringLiteral("aaaa1111  2025-03-09 16:05  40×20    Screenshot\n"
                           "aaab1111  2025-03-08 16:05  1200×30  Mail?client\n"
                           "bbbb1111  2025-03-07 16:05  8×8      Total recall\n"));
    }

    void jsonHasAllThatIsKnown()
    {
        QJsonArray expected;
        for (const HistoryEntry &entry : captures())
            expected.append(entry.toJson());
        QCOMPARE(QJsonDocument::fromJson(run({ "list", "--json" }).output).array(), expected);
        const QJsonArray found
            = QJsonDocument::fromJson(run({ "search", "budget", "--json", "--no-recognition" }).output).array();
        QCOMPARE(found, QJsonArray { expected.first() });
    }

    void searchesShowTheHit_data()
    {
        columns<QStringList, QString>("query", "output");
        row("in text and title", QStringList { "total" },
            "aaaa1111  2025-03-09 16:05  40×20  Screenshot\n"
            "          Total 42\n"
            "bbbb1111  2025-03-07 16:05  8×8    Total recall\n");
        row("in a long line, without the accent", QStringList { "UBERSICHT" },
            "aaab1111  2025-03-08 16:05  1200×30  Mail?client\n"
            "          …re words before the Übersicht of it words after words after word…\n");
        row("every word, wherever", QStringList { "42 screenshot" },
            "aaaa1111  2025-03-09 16:05  40×20  Screenshot\n"
            "          Total 42\n");
        row("as separate arguments", QStringList { "screenshot", "2025-03-09" },
            "aaaa1111  2025-03-09 16:05  40×20  Screenshot\n");
        row("nothing", QStringList { "nowhere" }, "");
    }

    void searchesShowTheHit()
    {
        QFETCH(QStringList, query);
        QFETCH(QString, output);
        const Finished finished = run(QStringList { "search" } + query);
        QCOMPARE(finished.messages.isEmpty(), !output.isEmpty());
        QCOMPARE(finished.status, 0);
        QTEST(QString::fromUtf8(finished.output), "output");
    }

    void capturesAreExportedWithTheirMarks()
    {
        const Finished finished = run({ "export", "aaaa", "-o", "out.bmp" });
        QCOMPARE(finished.messages, QString());
        const QImage written(m_program->path("out.bmp"));
        QCOMPARE(written.size(), QSize(40, 20));
        QCOMPARE(written.pixelColor(20, 10), QColor(Qt::red));
    }

    void capturesAreRemoved_data()
    {
        columns<QStringList, int, QString, QStringList>("arguments", "status", "fragment", "left");
        const QStringList all { "aaaa", "aaab", "bbbb" };
        row("one", QStringList { "b" }, 0, "", QStringList { "aaaa", "aaab" });
        row("several", QStringList { "AAAA-1", "bbbb1111-0000-4000-8000-000000000003" }, 0, "", QStringList { "aaab" });
        row("an id of two", QStringList { "bbbb", "aaa" }, 1, "2 captures", all);
        row("an id of none", QStringList { "bbbb", "cc" }, 1, "\"cc\"", all);
        row("no id at all", QStringList { "bbbb", "" }, 1, "\"\"", all);
    }

    void capturesAreRemoved()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QString, fragment);
        const Finished finished = run(QStringList { "remove" } + arguments);
        QCOMPARE(finished.status, status);
        QCOMPARE(finished.messages.isEmpty(), status == 0);
        QVERIFY2(finished.messages.contains(fragment), qPrintable(finished.messages));
        QTEST(ids(), "left");
    }

    /// What a running Tessaly keeps, it takes out itself.
    void besideARunningTessaly()
    {
        HistoryKeeper keeper(files());
        QCOMPARE(keeper.role(), HistoryKeeper::Role::Keeper);
        QCOMPARE(run({ "remove", "bbbb" }).status, 0);
        QVERIFY(QFile::exists(files().packagePath(captures().last().id)));
        QCOMPARE(run({ "list" }).output.count('\n'), 2); // it is as good as gone
        QVERIFY(keeper.takeRequests());
        QVERIFY(!QFile::exists(files().packagePath(captures().last().id)));
    }

    void emptyingAsks_data()
    {
        columns<QByteArray, int>("typed", "left");
        row("yes", QByteArray("y\n"), 0);
        row("spelled out", QByteArray("Yes\n"), 0);
        row("no", QByteArray("n\n"), 3);
        row("nothing", QByteArray("\n"), 3);
        row("the end", QByteArray("\4"), 3);
    }

    void emptyingAsks()
    {
        QFETCH(QByteArray, typed);
        QFETCH(int, left);
        const Finished finished = m_program->runOnTerminal({ "history", "empty" }, typed);
        QVERIFY2(finished.output.contains("Empty the history?"), finished.output.constData());
        QVERIFY2(finished.output.contains("3 captures in the history will be deleted"), finished.output.constData());
        QCOMPARE(finished.status, left == 0 ? 0 : 1);
        QCOMPARE(ids().size(), left);
    }

    void emptyingWithoutATerminal()
    {
        QCOMPARE(run({ "empty" }).status, 2);
        QCOMPARE(ids().size(), 3);
        const Finished finished = run({ "empty", "--yes" });
        QCOMPARE(finished.messages, QString());
        QCOMPARE(finished.status, 0);
        QCOMPARE(ids().size(), 0);
        QCOMPARE(run({ "list", "--json" }).output.simplified(), QByteArray("[ ]"));
        QCOMPARE(onlyLine(run({ "list" })), "tessaly: There are no captures in the history yet.");
    }

    void openingNeedsADisplay()
    {
        QCOMPARE(run({ "open", "aaa" }).status, 1); // of two
        const Finished finished = run({ "open", "aaaa" });
        QCOMPARE(finished.status, 2);
        QVERIFY2(onlyLine(finished).contains("display"), qPrintable(onlyLine(finished)));
    }

    void readingAnEmptyHistoryMakesNone()
    {
        const Program fresh;
        QCOMPARE(fresh.run({ "history", "list" }).status, 0);
        QCOMPARE(fresh.run({ "history", "search", "x" }).status, 0);
        QCOMPARE(fresh.tree(), QStringList());
    }
};

QTEST_GUILESS_MAIN(HistoryCommandTest)
#include "HistoryCommandTest.moc"
