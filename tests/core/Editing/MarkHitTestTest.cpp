// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkHitTest.h"
#include "tests/support/Rows.h"

using namespace tessaly;

/// What is seen of a mark and what is not: distances from its visible part, and which of several is meant.
class MarkHitTestTest : public QObject {
    Q_OBJECT

    using Kind = AnnotationKind;

    /// 100 by 60 at 100, 100, with a stroke of 4.
    static Annotation sample(Kind kind, const std::function<void(Annotation &)> &change = {})
    {
        Annotation mark(kind, { 100, 100 }, { 200, 160 });
        if (change)
            change(mark);
        return mark;
    }

    TextGeometry m_text;

private Q_SLOTS:
    void distanceFromTheVisiblePart_data()
    {
        test::columns<Annotation, QPointF, double>("mark", "point", "distance");
        const auto fill = [](Annotation &mark) { mark.filled = true; };
        const auto bend = [](Annotation &mark) { mark.curved = true; };
        const auto label = [](Annotation &mark) { mark.stampLabel = QStringLiteral("Label"); };
        const auto tail = [](Annotation &mark) { mark.tailAngle = 0; };
        const auto disc = [](Annotation &mark) { mark.disc = true; };
        const auto square = [](Annotation &mark) { mark.magnifierRound = mark.spotEllipse = false; };
        const auto path = [](Annotation &mark) { mark.points = { { 100, 100 }, { 150, 100 }, { 150, 160 } }; };
        const QPointF middle(150, 130), corner(102, 102);

        test::row("rectangle, on its edge", sample(Kind::Rectangle), QPointF(101, 130), 0.0);
        test::row("rectangle, inside", sample(Kind::Rectangle), middle, 28.0);
        test::row("rectangle, outside", sample(Kind::Rectangle), QPointF(210, 130), 8.0);
        test::row("filled rectangle, inside", sample(Kind::Rectangle, fill), middle, 0.0);
        test::row("ellipse, inside", sample(Kind::Ellipse), middle, 28.0);
        test::row("ellipse, on its line", sample(Kind::Ellipse), QPointF(200, 130), 0.0);
        test::row("filled ellipse, at its box's corner", sample(Kind::Ellipse, fill), corner, 12.8);
        test::row("line, beside it", sample(Kind::Line), QPointF(150, 150), 15.15);
        test::row("arrow, in its head", sample(Kind::Arrow), QPointF(188, 146), 0.0);
        test::row("curved arrow, at its chord", sample(Kind::Arrow, bend), middle, 23.66);
        test::row("curved arrow, on its bend", sample(Kind::Arrow, bend), QPointF(163, 108), 0.0);
        test::row("pen, on its path", sample(Kind::Pen, path), QPointF(150, 130), 0.0);
        test::row("pen, inside its box", sample(Kind::Pen, path), QPointF(120, 130), 28.0);
        test::row("pen without points", sample(Kind::Pen), middle, std::numeric_limits<double>::infinity());
        test::row("highlight, inside", sample(Kind::Highlight), middle, 0.0);
        test::row("obscured area, inside", sample(Kind::Pixelate), middle, 0.0);
        test::row("image, beside it", sample(Kind::ImageOverlay), QPointF(95, 130), 5.0);
        test::row("round loupe, corner", sample(Kind::Magnifier), corner, 12.8);
        test::row("square loupe, corner", sample(Kind::Magnifier, square), corner, 0.0);
        test::row("oval spotlight, corner", sample(Kind::Spotlight), corner, 12.8);
        test::row("square spotlight, corner", sample(Kind::Spotlight, square), corner, 0.0);
        test::row("stamp, corner", sample(Kind::Stamp), corner, 0.0);
        test::row("stamp on a disc, corner", sample(Kind::Stamp, disc), corner, 12.8);
        test::row("stamp, on its label", sample(Kind::Stamp, label), QPointF(230, 130), 0.0);
        test::row("stamp, on its tail", sample(Kind::Stamp, tail), QPointF(215, 130), 0.0);
    }
    void distanceFromTheVisiblePart()
    {
        QFETCH(Annotation, mark);
        QFETCH(QPointF, point);
        QFETCH(double, distance);
        const double found = MarkShape::distance(mark, point, m_text);
        QVERIFY2(found == distance || std::abs(found - distance) < 0.5, qPrintable(QString::number(found)));
    }

    void aTextIsMeasured()
    {
        Annotation text(Kind::Text, { 100, 100 }, { 100, 100 });
        text.text = QStringLiteral("Wide enough to measure");
        const QRectF box = m_text.box(text);
        QCOMPARE(MarkShape::distance(text, box.bottomRight() + QPointF(-1, -1), m_text), 0.0);
        QCOMPARE(MarkShape::distance(text, box.bottomRight() + QPointF(3, 4), m_text), 5.0);
        const Annotation far = text;
        QVERIFY(!MarkHitTest::hits(far, { { far }, { 100, 400 } }, m_text));
        QVERIFY(MarkHitTest::hits(far, { { far }, box.bottomRight() + QPointF(3, 4) }, m_text));
    }

    void whichOfSeveralIsMeant_data()
    {
        // marks: from the bottom; below: the selected one, or the top-most when none is
        test::columns<QList<Annotation>, int, int, int>("marks", "selected", "topmost", "below");
        const Annotation box = sample(Kind::Rectangle), area = sample(Kind::Highlight);
        const Annotation hidden = sample(Kind::Pixelate), light = sample(Kind::Spotlight);
        test::row("nothing", QList<Annotation> { box }, -1, -1, -1);
        test::row("inside the selected", QList { box }, 0, 0, 0);
        test::row("through the selected", QList { area, box }, 1, 0, 0);
        test::row("the upper", QList { area, hidden }, -1, 1, 1);
        test::row("the next below", QList { area, hidden }, 1, 1, 0);
        test::row("wraps", QList { area, hidden }, 0, 1, 1);
        test::row("a spotlight lies below all", QList { area, light }, -1, 0, 0);
        test::row("and is reached from there", QList { area, light }, 0, 0, 1);
    }
    void whichOfSeveralIsMeant()
    {
        QFETCH(QList<Annotation>, marks);
        QFETCH(int, selected);
        QFETCH(int, topmost);
        QFETCH(int, below);
        for (Annotation &mark : marks)
            mark.id = QUuid::createUuid();
        MarkHitTest::Query query { marks, { 150, 130 } };
        if (selected >= 0)
            query.selectedID = marks[selected].id;
        const auto at = [&](int index) { return index < 0 ? nullptr : &std::as_const(marks)[index]; };
        QCOMPARE(MarkHitTest::topmost(query, m_text), at(topmost));
        QCOMPARE(MarkHitTest::nextBelow(query, m_text), at(below));
    }
};

QTEST_MAIN(MarkHitTestTest)
#include "MarkHitTestTest.moc"
