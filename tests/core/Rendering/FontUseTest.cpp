// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/FontUse.h"

#include <QTest>

using namespace tessaly;

/// Fonts cost more than the rest of a start: only what writes may ask for them, and all that writes must.
class FontUseTest : public QObject {
    Q_OBJECT

    static Annotation stamp(StampKind kind, const QString &text = {}, const QString &label = {})
    {
        Annotation mark(AnnotationKind::Stamp, { 0, 0 }, { 20, 20 });
        mark.stamp = kind;
        mark.text = text;
        mark.stampLabel = label;
        return mark;
    }

    static Annotation written(AnnotationKind kind, const QString &text)
    {
        Annotation mark(kind, { 0, 0 }, { 20, 20 });
        mark.text = text;
        return mark;
    }

private Q_SLOTS:
    void needsFonts_data()
    {
        QTest::addColumn<Annotation>("mark");
        QTest::addColumn<bool>("needed");
        QTest::newRow("text") << written(AnnotationKind::Text, "a") << true;
        QTest::newRow("text of blanks") << written(AnnotationKind::Text, " \n") << false;
        QTest::newRow("sticker") << written(AnnotationKind::Sticker, "🎉") << true;
        QTest::newRow("empty sticker") << written(AnnotationKind::Sticker, "") << false;
        QTest::newRow("drawn stamp, its text unused") << stamp(StampKind::Check, "1") << false;
        QTest::newRow("drawn stamp with label") << stamp(StampKind::Star, {}, "a") << true;
        QTest::newRow("exclamation") << stamp(StampKind::Exclamation) << true;
        QTest::newRow("number") << stamp(StampKind::Number, "7") << true;
        QTest::newRow("number without number") << stamp(StampKind::Number) << false;
        QTest::newRow("other kind with a text") << written(AnnotationKind::Arrow, "a") << false;
        Annotation far = written(AnnotationKind::Text, "a");
        far.p1 = far.p2 = { 1e300, 0 };
        QTest::newRow("text that cannot be drawn") << far << false;
    }

    void needsFonts()
    {
        QFETCH(Annotation, mark);
        QTEST(tessaly::needsFonts({ Annotation(AnnotationKind::Line, {}, {}), mark }, std::nullopt), "needed");
    }

    void watermarks()
    {
        QCOMPARE(tessaly::needsFonts({}, std::nullopt), false);
        QCOMPARE(tessaly::needsFonts({}, Watermark { .text = " " }), false);
        QCOMPARE(tessaly::needsFonts({}, Watermark { .text = "a" }), true);
        QCOMPARE(tessaly::needsFonts(
                     {}, Watermark { .kind = WatermarkKind::Image, .text = "a", .imageData = QByteArray("x") }),
            false);
    }
};

QTEST_GUILESS_MAIN(FontUseTest)
#include "FontUseTest.moc"
