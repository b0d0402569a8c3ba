// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/MarkLimits.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleMarks.h"

#include <QRandomGenerator>

using namespace tessaly;

/// Marks out of range: what is said, and what is drawn.
class MarkLimitsTest : public QObject {
    Q_OBJECT

    static Annotation rectangle() { return { AnnotationKind::Rectangle, { 0, 0 }, { 10, 10 } }; }

private Q_SLOTS:
    void bringsStyleIntoRange_data()
    {
        test::columns<double Annotation::*, double, double, QString>("member", "stored", "drawn", "problem");
        const auto none = QString();
        test::row("opacity 7", &Annotation::highlightOpacity, 7.0, 1.0, QStringLiteral("its highlightOpacity is 7"));
        test::row("opacity 1", &Annotation::highlightOpacity, 1.0, 1.0, none);
        test::row("negative width", &Annotation::lineWidth, -3.0, 0.0, QStringLiteral("its lineWidth is -3"));
        test::row("endless width", &Annotation::lineWidth, 1e300, 1e4, QStringLiteral("its lineWidth is 1e+300"));
        test::row("no font size", &Annotation::fontSize, 0.0, 0.1, QStringLiteral("its fontSize is 0"));
        test::row("dim by NaN", &Annotation::spotDim, qQNaN(), 0.5, QStringLiteral("its spotDim is nan"));
        test::row(
            "infinite zoom", &Annotation::magnification, qInf(), 100.0, QStringLiteral("its magnification is inf"));
    }

    void bringsStyleIntoRange()
    {
        QFETCH(double Annotation::*, member);
        QFETCH(double, stored);
        QFETCH(QString, problem);
        Annotation mark = rectangle();
        mark.*member = stored;
        QCOMPARE(MarkLimits::problem(mark).value_or(QString()), problem);
        const auto drawn = MarkLimits::drawable(mark);
        QVERIFY(drawn);
        QTEST((*drawn).*member, "drawn");
        QCOMPARE(MarkLimits::problem(*drawn), std::nullopt);
    }

    void drawsNothingOutOfReach_data()
    {
        test::columns<QPointF, QString>("corner", "problem");
        test::row("too far", QPointF(1e300, 5), QStringLiteral("its p2 lies at (1e+300, 5)"));
        test::row("not a number", QPointF(1, qQNaN()), QStringLiteral("its p2 lies at (1, nan)"));
        test::row("just too far", QPointF(0, -1000001), QStringLiteral("its p2 lies at (0, -1e+06)"));
    }

    void drawsNothingOutOfReach()
    {
        QFETCH(QPointF, corner);
        Annotation mark = rectangle();
        mark.p2 = corner;
        QTEST(MarkLimits::problem(mark).value_or(QString()), "problem");
        QVERIFY(!MarkLimits::drawable(mark));
    }

    void hidesWhateverAnAreaReaches()
    {
        Annotation area = rectangle();
        area.kind = AnnotationKind::Pixelate;
        area.p1 = { -1e300, -qInf() };
        area.p2 = { 1e9, 5 };
        area.obscureStrength = -2;
        QVERIFY(MarkLimits::problem(area));
        const auto drawn = MarkLimits::drawable(area);
        QVERIFY(drawn);
        QCOMPARE(drawn->rect(), QRectF(QPointF(-1e6, -1e6), QPointF(1e6, 5)));
        QCOMPARE(drawn->obscureStrength, 0.0);
    }

    void thinsEndlessPaths()
    {
        Annotation pen(AnnotationKind::Pen, { 0, 0 }, { 10, 10 });
        for (int index = 0; index < 250'001; ++index)
            pen.points += QPointF(index % 1000, index / 1000);
        QCOMPARE(MarkLimits::problem(pen), QStringLiteral("its points has 250001 elements"));
        const auto drawn = MarkLimits::drawable(pen);
        QVERIFY(drawn);
        QVERIFY(drawn->points.size() <= MarkLimits::maxPathPoints);
        QCOMPARE(drawn->points.first(), pen.points.first());
        QCOMPARE(drawn->points.last(), pen.points.last());
        pen.points[7] = { 0, qInf() };
        QVERIFY(!MarkLimits::drawable(pen));
    }

    void cutsEndlessTextBetweenCharacters()
    {
        Annotation text(AnnotationKind::Text, { 0, 0 }, { 10, 10 });
        text.text = u'x' + QStringLiteral("😀").repeated(6000);
        QCOMPARE(MarkLimits::problem(text), QStringLiteral("its text has 12001 elements"));
        QCOMPARE(MarkLimits::drawable(text)->text, text.text.left(MarkLimits::maxTextLength - 1));
    }

    void bendsOnlyWithinReach()
    {
        Annotation arrow(AnnotationKind::Arrow, { 0, 0 }, { 10, 0 });
        arrow.curveHandle = { 0.5, 1e9 };
        QVERIFY(MarkLimits::drawable(arrow)); // straight, so the handle does not matter
        arrow.curved = true;
        QCOMPARE(MarkLimits::problem(arrow), QStringLiteral("its curveHandle lies at (0.5, 1e+09)"));
        QVERIFY(!MarkLimits::drawable(arrow));
    }

    void leavesOrdinaryMarksAlone()
    {
        for (const Annotation &mark : test::oneOfEachKind()) {
            QCOMPARE(MarkLimits::problem(mark), std::nullopt);
            QCOMPARE(MarkLimits::drawable(mark), mark);
        }
    }

    void whateverIsDrawnIsInRange()
    {
        QRandomGenerator random(5);
        int drawn = 0;
        for (int count = 0; count < 2000; ++count) {
            const auto mark = MarkLimits::drawable(test::randomMark(random));
            drawn += mark.has_value();
            QVERIFY(!mark || !MarkLimits::problem(*mark));
        }
        QVERIFY(drawn > 50);
    }
};

QTEST_GUILESS_MAIN(MarkLimitsTest)
#include "MarkLimitsTest.moc"
