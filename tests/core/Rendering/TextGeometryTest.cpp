// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/TextGeometry.h"

#include "tests/support/DrawnMarks.h"

#include <QTest>

using namespace tessaly;

/// Where a text can be clicked, selected and typed into must be where it is drawn.
class TextGeometryTest : public QObject {
    Q_OBJECT

    static Annotation written(const QString &text, double size = 40)
    {
        Annotation mark(AnnotationKind::Text, { 20, 30 }, { 20, 30 });
        mark.text = text;
        mark.fontSize = size;
        mark.colorHex = QStringLiteral("#000000");
        return mark;
    }

    /// The box of all pixels that are not white.
    static QRect ink(const Annotation &mark)
    {
        const QImage picture = test::drawn(test::plainCapture({ 600, 300 }), { mark });
        QRect box;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixel(x, y) != qRgb(255, 255, 255))
                    box |= QRect(x, y, 1, 1);
            }
        }
        return box;
    }

private Q_SLOTS:
    void stops_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<qsizetype>>("stops"); // the positions that a caret can stand at
        const auto row = [](const char *name, const QString &text, const QList<qsizetype> &stops) {
            QTest::newRow(name) << text << stops;
        };
        row("Latin", u"Wavy"_qs, { 0, 1, 2, 3, 4 });
        row("ligature", u"office"_qs, { 0, 1, 2, 3, 4, 5, 6 });
        row("empty", QString(), { 0 });
        row("blanks", u"a  "_qs, { 0, 1, 2, 3 });
        row("combining accent", u"e\u0301x"_qs, { 0, 2, 3 });
        row("emoji", u"a😀b"_qs, { 0, 1, 3, 4 });
        row("flag", u"🇩🇪🇫🇷"_qs, { 0, 4, 8 });
        row("skin tone", u"👍🏽!"_qs, { 0, 4, 5 });
        row("joined family", u"👨‍👩‍👧x"_qs, { 0, 8, 9 });
        row("keycap", u"1️⃣2"_qs, { 0, 3, 4 });
        row("two lines", u"ab\ncd"_qs, { 0, 1, 2, 3, 4, 5 });
        row("carriage return and line feed", u"a\r\nb"_qs, { 0, 1, 3, 4 });
        row("line break at the end", u"a\n"_qs, { 0, 1, 2 });
        row("empty line between", u"a\n\nb"_qs, { 0, 1, 2, 3, 4 });
    }

    void stops()
    {
        QFETCH(QString, text);
        QFETCH(QList<qsizetype>, stops);
        TextGeometry geometry;
        for (const bool styled : { false, true }) {
            Annotation mark = written(text);
            mark.bold = mark.italic = styled;
            const double lineHeight = geometry.caret(mark, 0).length();
            QList<qsizetype> found;
            QLineF before(-1, -1, -1, -1);
            for (qsizetype position = 0; position <= text.size(); ++position) {
                const QLineF caret = geometry.caret(mark, position);
                QVERIFY(qFuzzyCompare(caret.length(), lineHeight));
                QVERIFY(geometry.box(mark).adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(caret.p1()));
                if (geometry.positionAt(mark, caret.center()) == position) {
                    found += position;
                    QVERIFY(caret.y1() > before.y1() || caret.x1() > before.x1()); // all these read to the right
                }
                before = caret;
            }
            QCOMPARE(found, stops);
        }
    }

    void carets()
    {
        TextGeometry geometry;
        const double height = geometry.caret(written(QString()), 0).length();
        QCOMPARE(geometry.caret(written(QString()), 0), QLineF(20, 30, 20, 30 + height));
        QVERIFY(height > 40 && height < 80);
        QCOMPARE(geometry.caret(written(u"abc\n"_qs), 4), QLineF(20, 30 + height, 20, 30 + 2 * height));
        QCOMPARE(geometry.caret(written(u"abc"_qs), 99), geometry.caret(written(u"abc"_qs), 3));
        QCOMPARE(geometry.caret(written(u"אב"_qs), 0).x1(), geometry.box(written(u"אב"_qs)).right());
        QCOMPARE(geometry.caret(written(u"אב"_qs), 2).x1(), 20.0);
    }

    void positions_data()
    {
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<qsizetype>("position");
        QTest::newRow("left of the first line") << QPointF(-500, 35) << qsizetype(0);
        QTest::newRow("above") << QPointF(-500, -500) << qsizetype(0);
        QTest::newRow("right of the first line") << QPointF(900, 35) << qsizetype(3);
        QTest::newRow("below") << QPointF(900, 900) << qsizetype(6);
        QTest::newRow("left of the last line") << QPointF(0, 900) << qsizetype(4);
    }

    void positions()
    {
        QFETCH(QPointF, point);
        TextGeometry geometry;
        QTEST(geometry.positionAt(written(u"abc\nde"_qs), point), "position");
    }

    /// Letters whose ink fills their advance but for hardly a pixel.
    void boxIsWhatIsDrawn_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("size");
        QTest::newRow("plain") << u"____"_qs << 40.0;
        QTest::newRow("large") << u"__"_qs << 160.0;
        QTest::newRow("two lines") << u"_\n____"_qs << 33.0;
    }

    void boxIsWhatIsDrawn()
    {
        QFETCH(QString, text);
        QFETCH(double, size);
        TextGeometry geometry;
        for (const bool bold : { false, true }) {
            Annotation mark = written(text, size);
            mark.bold = bold;
            const QRectF box = geometry.box(mark);
            const QRectF drawn = ink(mark);
            const double bearing = 0.02 * size; // an underscore joins its neighbours, or nearly
            QVERIFY(std::abs(drawn.left() - box.left()) <= 1 + bearing);
            QVERIFY(std::abs(drawn.right() - box.right()) <= 1 + bearing);
            QVERIFY(box.top() < drawn.top() && drawn.bottom() <= box.bottom() + 1);
        }
    }

    void selections()
    {
        TextGeometry geometry;
        const Annotation mark = written(u"abc\n\ndef"_qs);
        const auto x = [&](qsizetype position) { return geometry.caret(mark, position).x1(); };
        const QList<QRectF> one = geometry.selection(mark, 1, 3);
        QCOMPARE(one.size(), 1);
        QCOMPARE(one[0].left(), x(1));
        QCOMPARE(one[0].right(), x(3));
        const QList<QRectF> three = geometry.selection(mark, 2, 7);
        QCOMPARE(three.size(), 3);
        QVERIFY(three[0].right() > x(3)); // with its line break
        QVERIFY(three[1].width() > 0);
        QCOMPARE(three[2].left(), 20.0);
        QCOMPARE(three[2].right(), x(7));
        QCOMPARE(geometry.selection(mark, 2, 2).size(), 0);
    }
};

QTEST_MAIN(TextGeometryTest)
#include "TextGeometryTest.moc"
