// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkTraits.h"
#include "tests/support/Rows.h"

using namespace tessaly;

/// The table of kinds is whole, and the wheel keeps within its ranges.
class MarkTraitsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyKindIsMadeByItsTool()
    {
        for (const auto &[kind, name] : enumNames<AnnotationKind>) {
            const MarkTraits &traits = traitsOf(kind);
            QCOMPARE(traits.kind, kind);
            QCOMPARE(traitsMadeBy(traits.tool), &traits);
            QCOMPARE(rawValue(traits.tool), name);
            QVERIFY(!spokenName(Annotation(kind, {}, {})).isEmpty());
        }
        for (const Tool tool : { Tool::Select, Tool::Crop, Tool::Frame })
            QVERIFY(!traitsMadeBy(tool));
    }

    void theWheelKeepsWithinTheRange_data()
    {
        test::columns<AnnotationKind, double Annotation::*, double, int, double>(
            "kind", "member", "from", "notches", "to");
        using Kind = AnnotationKind;
        test::row("wider", Kind::Arrow, &Annotation::lineWidth, 4.0, 2, 6.0);
        test::row("never without width", Kind::Pen, &Annotation::lineWidth, 2.0, -5, 1.0);
        test::row("larger text", Kind::Text, &Annotation::fontSize, 18.0, 1, 19.0);
        test::row("opaque at most", Kind::Highlight, &Annotation::highlightOpacity, 0.98, 1, 1.0);
        test::row("lighter", Kind::Spotlight, &Annotation::spotDim, 0.5, -2, 0.4);
        test::row("beyond the range, further out", Kind::Line, &Annotation::lineWidth, 300.0, 1, 300.0);
        test::row("beyond the range, back in", Kind::Line, &Annotation::lineWidth, 300.0, -1, 200.0);
    }
    void theWheelKeepsWithinTheRange()
    {
        QFETCH(AnnotationKind, kind);
        QFETCH(double Annotation::*, member);
        QFETCH(double, from);
        QFETCH(int, notches);
        QFETCH(double, to);
        Annotation mark(kind, { 0, 0 }, { 50, 50 });
        mark.*member = from;
        QVERIFY(std::abs(afterWheel(mark, notches).*member - to) < 1e-9);
    }

    void theWheelGrowsWhatHasNoStroke()
    {
        const Annotation stamp(AnnotationKind::Stamp, { 100, 100 }, { 140, 140 });
        const Annotation grown = afterWheel(stamp, 1);
        QCOMPARE(grown.rect().center(), QPointF(120, 120));
        QVERIFY(std::abs(grown.rect().width() - 44) < 1e-9);
        QVERIFY(afterWheel(stamp, -100).rect().width() >= 1 - 1e-9);
    }
};

QTEST_GUILESS_MAIN(MarkTraitsTest)
#include "MarkTraitsTest.moc"
