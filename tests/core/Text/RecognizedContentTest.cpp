// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text/RecognizedContent.h"

#include <QTest>

using namespace tessaly;
using Line = RecognizedContent::Line;
using Code = RecognizedContent::Code;

class RecognizedContentTest : public QObject {
    Q_OBJECT

    static Code code(const QString &payload, double x = 0, double y = 0)
    {
        return { payload, true, QRectF(x, y, 0.1, 0.1) };
    }

private Q_SLOTS:
    void linesAreReadInRows_data()
    {
        QTest::addColumn<QList<Line>>("lines");
        QTest::addColumn<QString>("text");
        const QRectF box(0.1, 0.1, 0.2, 0.1);
        QTest::newRow("nothing") << QList<Line>() << "";
        QTest::newRow("one under the other, found bottom up")
            << QList<Line> { { "b", box.translated(0, 0.2) }, { "a", box } } << "a\nb";
        QTest::newRow("side by side, found right to left")
            << QList<Line> { { "b", box.translated(0.5, 0) }, { "a", box } } << "a b";
        QTest::newRow("the right one a little higher")
            << QList<Line> { { "b", box.translated(0.5, -0.04) }, { "a", box } } << "a b";
        QTest::newRow("in common exactly half the height")
            << QList<Line> { { "a", { 0.5, 0.2, 0.1, 0.25 } }, { "b", { 0, 0.325, 0.1, 0.25 } } } << "a\nb";
        QTest::newRow("exactly half, of boxes in whole pixels of 1080") << QList<Line> {
            { "a", { 0.5, 709 / 1080.0, 0.1, 14 / 1080.0 } }, { "b", { 0, 716 / 1080.0, 0.1, 14 / 1080.0 } }
        } << "a\nb";
        QTest::newRow("a pixel more than half") << QList<Line> { { "b", { 0.5, 709 / 1080.0, 0.1, 14 / 1080.0 } },
            { "a", { 0, 715 / 1080.0, 0.1, 14 / 1080.0 } } }
                                                << "a b";
        QTest::newRow("half of the smaller one counts") << QList<Line> { { "small", { 0.5, 0.1, 0.1, 0.02 } },
            { "LARGE", { 0.1, 0.1, 0.3, 0.2 } } } << "LARGE small";
        QTest::newRow("a stair is measured from its first line; joining, from the last") << QList<Line> {
            { "3", { 0.1, 0.20, 0.1, 0.1 } }, { "1", { 0.4, 0.12, 0.1, 0.1 } }, { "2", { 0.7, 0.16, 0.1, 0.1 } }
        } << "1 2 3";
        QTest::newRow("three rows of two columns") << QList<Line> { { "a", { 0, 0.1, 0.3, 0.05 } },
            { "c", { 0, 0.2, 0.3, 0.05 } }, { "e", { 0, 0.3, 0.3, 0.05 } }, { "b", { 0.5, 0.1, 0.3, 0.05 } },
            { "d", { 0.5, 0.2, 0.3, 0.05 } }, { "f", { 0.5, 0.3, 0.3, 0.05 } } }
                                                   << "a b\nc d\ne f";
        QTest::newRow("the same place: as they were found") << QList<Line> { { "x", box }, { "y", box } } << "x y";
        QTest::newRow("no height at all")
            << QList<Line> { { "b", { 0.4, 0.1, 0.1, 0 } }, { "a", { 0.1, 0.1, 0.1, 0 } } } << "b\na";
        QTest::newRow("white space and empty ones") << QList<Line> { { " a\n", box }, { "\t ", box } } << "a";
    }

    void linesAreReadInRows()
    {
        QFETCH(QList<Line>, lines);
        QFETCH(QString, text);
        QCOMPARE(RecognizedContent::arranged(lines, {}).text(), text);
    }

    void codesAreInOrderAndOnce_data()
    {
        QTest::addColumn<QList<Code>>("codes");
        QTest::addColumn<QStringList>("payloads");
        QTest::newRow("down, then across") << QList<Code> { code("c", 0, 0.6), code("b", 0.5, 0.1),
            code("a", 0.2, 0.1) } << QStringList { "a", "b", "c" };
        QTest::newRow("the first of the same payload stays where it is")
            << QList<Code> { code("a", 0.5, 0.5), code("b", 0.1, 0.3), code("a", 0, 0) } << QStringList { "b", "a" };
        QTest::newRow("empty ones") << QList<Code> { code(""), code("a"), code("") } << QStringList { "a" };
    }

    void codesAreInOrderAndOnce()
    {
        QFETCH(QList<Code>, codes);
        QFETCH(QStringList, payloads);
        QStringList found;
        for (const Code &each : RecognizedContent::arranged({}, codes).codes)
            found += each.payload;
        QCOMPARE(found, payloads);
    }

    void aWebLinkHasSchemeAndHost_data()
    {
        QTest::addColumn<QString>("link"); // empty: the payload is none
        const auto row = [](const char *payload, const char *link) { QTest::newRow(payload) << QString(link); };
        row("https://example.org/a?b=1#c", "https://example.org/a?b=1#c");
        row("HTTP://EXAMPLE.ORG/A", "http://example.org/A");
        row(" \nhttps://example.org\r\n", "https://example.org");
        row("https://user@example.org:8080/", "https://user@example.org:8080/");
        row("ftp://example.org/file", "");
        row("https://", "");
        row("http:example.org", "");
        row("https:///path", "");
        row("example.org", "");
        row("https://example.org/two words", "");
        row("see https://example.org", "");
        row("https://exa mple.org", "");
        row("javascript:alert(1)", "");
        row("WIFI:S:home;;", "");
        row("", "");
    }

    void aWebLinkHasSchemeAndHost()
    {
        QFETCH(QString, link);
        const std::optional<QUrl> url = code(QString::fromUtf8(QTest::currentDataTag())).webURL();
        QCOMPARE(url.has_value(), !link.isEmpty());
        QCOMPARE(url.value_or(QUrl()).toString(), link);
    }
};

QTEST_GUILESS_MAIN(RecognizedContentTest)
#include "RecognizedContentTest.moc"
