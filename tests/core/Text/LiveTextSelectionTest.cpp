// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text/LiveTextSelection.h"
#include "tests/support/Rows.h"

#include <QRegularExpression>

using namespace tessaly;

/// Selects on drawn pages: each character of a page is one unit wide and each row two high, the upper of which is the
/// line; words are separated by blanks, lines of one row by three blanks or more.
class LiveTextSelectionTest : public QObject {
    Q_OBJECT

    using Unit = LiveTextSelection::Unit;

    struct Page {
        explicit Page(const QStringList &rows) : size(0, 2 * double(rows.size()))
        {
            for (const QString &row : rows)
                size.setWidth(std::max(size.width(), double(row.size())));
            static const QRegularExpression line(QStringLiteral("\\S+( {1,2}\\S+)*"));
            QList<RecognizedContent::Line> lines;
            for (qsizetype row = 0; row < rows.size(); ++row) {
                auto found = line.globalMatch(rows[row]);
                while (found.hasNext()) {
                    const auto match = found.next();
                    lines += lineOf(match.captured(), int(match.capturedStart()), int(row));
                }
            }
            content = RecognizedContent::arranged(lines, {});
        }

        QRectF box(double column, double row, double length) const
        {
            return { column / size.width(), 2 * row / size.height(), length / size.width(), 1 / size.height() };
        }
        /// The middle of a character.
        QPointF at(double column, double row) const { return box(column, row, 1).center(); }

        RecognizedContent::Line lineOf(const QString &text, int column, int row) const
        {
            static const QRegularExpression word(QStringLiteral("\\S+"));
            RecognizedContent::Line line { text.simplified(), box(column, row, double(text.size())) };
            auto found = word.globalMatch(text);
            while (found.hasNext()) {
                const auto match = found.next();
                line.words += { match.captured(),
                    box(column + double(match.capturedStart()), row, double(match.capturedLength())) };
            }
            return line;
        }

        QSizeF size;
        RecognizedContent content;
    };

    const QStringList m_paragraph { "The quick brown", "fox jumps", "over the lazy dog" };
    const QStringList m_columns { "one two      uno dos", "three        tres", "four five    cuatro" };

private Q_SLOTS:
    void draggingSelectsInReadingOrder_data()
    {
        // from: column and row of a character
        test::columns<QStringList, QPointF, QPointF, QString>("page", "from", "to", "text");
        const auto row = [](const char *name, const QStringList &page, QPointF from, QPointF to, const char *text) {
            QTest::newRow(name) << page << from << to << text;
        };
        row("within a word", m_paragraph, { 5, 0 }, { 7, 0 }, "quick");
        row("along a line", m_paragraph, { 0, 0 }, { 6, 0 }, "The quick");
        row("back along it", m_paragraph, { 6, 0 }, { 0, 0 }, "The quick");
        row("across lines", m_paragraph, { 12, 0 }, { 6, 2 }, "brown\nfox jumps\nover the");
        row("upwards", m_paragraph, { 6, 2 }, { 12, 0 }, "brown\nfox jumps\nover the");
        row("beyond the end of a line", m_paragraph, { 4, 0 }, { 30, 0 }, "quick brown");
        row("below all lines", m_paragraph, { 4, 1 }, { 40, 9 }, "jumps\nover the lazy dog");
        row("from beside the text", m_paragraph, { -3, 1 }, { 5, 1 }, "fox jumps");
        row("down one column", m_columns, { 0, 0 }, { 6, 2 }, "one two\nthree\nfour five");
        row("down the other", m_columns, { 17, 0 }, { 14, 2 }, "dos\ntres\ncuatro");
        row("across both", m_columns, { 5, 0 }, { 14, 2 }, "two uno dos\nthree tres\nfour five cuatro");
        row("indented lines between short ones", { "{", "     return 1", "}" }, { 0, 0 }, { 0, 2 }, "{\nreturn 1\n}");
    }

    void draggingSelectsInReadingOrder()
    {
        QFETCH(QStringList, page);
        QFETCH(QPointF, from);
        QFETCH(QPointF, to);
        const Page drawn(page);
        LiveTextSelection selection(drawn.content, drawn.size);
        selection.begin(drawn.at(from.x(), from.y()));
        QVERIFY2(selection.isEmpty(), "a press alone selects nothing");
        selection.extendTo(drawn.at(1, 1)); // on the way
        selection.extendTo(drawn.at(to.x(), to.y()));
        QTEST(selection.text(), "text");
    }

    void clicksSelectWordsAndLines()
    {
        const Page page(m_paragraph);
        LiveTextSelection selection(page.content, page.size);
        selection.selectAt(page.at(6, 0), Unit::Word);
        QCOMPARE(selection.text(), "quick");
        QVERIFY(selection.contains(page.at(4, 0)) && !selection.contains(page.at(0, 0)));
        selection.extendTo(page.at(0, 0)); // the word stays in when it goes back beyond it
        QCOMPARE(selection.text(), "The quick");
        selection.selectAt(page.at(6, 1), Unit::Line);
        QCOMPARE(selection.text(), "fox jumps");
        selection.extendTo(page.at(5, 2));
        QCOMPARE(selection.text(), "fox jumps\nover the lazy dog");
        selection.selectAt(page.at(3, 9), Unit::Word);
        QVERIFY(selection.isEmpty());
        selection.extendTo(page.at(0, 0));
        QVERIFY(selection.isEmpty());
        selection.selectAll();
        QCOMPARE(selection.text(), m_paragraph.join(u'\n'));
        selection.clear();
        QCOMPARE(selection.text(), QString());
    }

    void thePointerIsOverTextOnAndBetweenWords_data()
    {
        test::columns<QPointF, bool>("at", "isOver");
        test::row("on a word", QPointF(1, 0), true);
        test::row("between words", QPointF(3, 0), true);
        test::row("in a wide gap", QPointF(10, 0), false);
        test::row("beside a line", QPointF(12, 1), false);
        test::row("between lines", QPointF(1, 0.5), false);
    }

    void thePointerIsOverTextOnAndBetweenWords()
    {
        QFETCH(QPointF, at);
        const Page page(m_columns);
        QTEST(LiveTextSelection(page.content, page.size).isOverText(page.at(at.x(), at.y())), "isOver");
    }

    void boxesFollowTheLines()
    {
        const Page page(m_paragraph);
        LiveTextSelection selection(page.content, page.size);
        selection.begin(page.at(12, 0));
        selection.extendTo(page.at(6, 1));
        const QList<QRectF> boxes = selection.boxes();
        QCOMPARE(boxes.size(), 2);
        QCOMPARE(boxes[0], page.box(10, 0, 5));
        QCOMPARE(boxes[1], page.box(0, 1, 9));
    }

    void whatIsHiddenIsNotThere()
    {
        Page page({ "my password is secret indeed" });
        page.content.codes
            = { { "https://example.org", true, page.box(3, 0, 8) }, { "free", true, page.box(0, 0, 2) } };
        LiveTextSelection selection(page.content, page.size);
        selection.selectAll();
        const QRectF onlyTouching = page.box(20, 0, 1); // the last letter of "secret"
        selection.setHidden({ page.box(4, 0, 3), onlyTouching });
        QCOMPARE(selection.text(), "my is indeed");
        QCOMPARE(selection.boxes().size(), 3);
        for (const int column : { 3, 10, 15 })
            QVERIFY(!selection.isOverText(page.at(column, 0)));
        QVERIFY(!selection.codeAt(page.at(4, 0)) && !selection.codeAt(page.at(9, 0)));
        QVERIFY(selection.codeAt(page.at(1, 0)));
        selection.selectAt(page.at(17, 0), Unit::Word);
        QVERIFY(selection.isEmpty());
        selection.begin(page.at(0, 0));
        selection.extendTo(page.at(17, 0));
        QCOMPARE(selection.text(), "my is");
        selection.setHidden({});
        QCOMPARE(selection.text(), "my password is");
    }

    void wordsAreJoinedAsTheLineWritesThem_data()
    {
        test::columns<QString, QStringList, QString>("line", "words", "text");
        test::row("with blanks", "a b", QStringList { "a", "b" }, "a b");
        test::row("without", QString::fromUtf8("你好世界"),
            QStringList { QString::fromUtf8("你好"), QString::fromUtf8("世界") }, QString::fromUtf8("你好世界"));
        test::row("a word that the line lacks", "a c", QStringList { "a", "b", "c" }, "a b c");
        test::row("the same word again", "aa a", QStringList { "a", "a", "a" }, "aa a");
        test::row("no words", "a whole line", QStringList(), "a whole line");
    }

    void wordsAreJoinedAsTheLineWritesThem()
    {
        QFETCH(QString, line);
        QFETCH(QStringList, words);
        RecognizedContent::Line made { line, QRectF(0, 0, 1, 1) };
        for (const QString &word : words)
            made.words += { word, QRectF(0.1 * double(made.words.size()), 0, 0.05, 1) };
        LiveTextSelection selection(RecognizedContent { { made }, {} }, { 1, 1 });
        selection.selectAll();
        QTEST(selection.text(), "text");
    }

    void withoutTextNothingHappens()
    {
        LiveTextSelection selection;
        selection.begin({ 0.5, 0.5 });
        selection.extendTo({ 1, 1 });
        selection.selectAt({ 0.5, 0.5 }, Unit::Line);
        selection.selectAll();
        selection.setHidden({ QRectF(0, 0, 1, 1) });
        QVERIFY(selection.isEmpty() && selection.boxes().isEmpty() && !selection.isOverText({ 0, 0 }));
        QVERIFY(!selection.codeAt({ 0, 0 }));
    }
};

QTEST_GUILESS_MAIN(LiveTextSelectionTest)
#include "LiveTextSelectionTest.moc"
