// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkReshaping.h"

#include "core/Editing/MarkSteps.h"
#include "tests/support/Rows.h"

using namespace tessaly;

namespace {

bool isNear(QPointF a, QPointF b) { return std::hypot(a.x() - b.x(), a.y() - b.y()) < 0.01; }

} // namespace

/// The parts of reshaping that a drag with the mouse seldom meets.
class MarkReshapingTest : public QObject {
    Q_OBJECT

    using Kind = AnnotationKind;
    TextGeometry m_text;

private Q_SLOTS:
    void aBoxKeepsItsCornersWhenFitted_data()
    {
        test::columns<QPointF, QPointF, QPointF, QPointF>("p1", "p2", "newP1", "newP2");
        const QPointF left(10, 10), right(30, 20), newLeft(0, 5), newRight(60, 35);
        test::row("drawn downwards", left, right, newLeft, newRight);
        test::row("drawn upwards", right, left, newRight, newLeft);
        test::row("without size", left, left, newLeft, newRight);
    }
    void aBoxKeepsItsCornersWhenFitted()
    {
        QFETCH(QPointF, p1);
        QFETCH(QPointF, p2);
        const Annotation mark(Kind::Highlight, p1, p2);
        const Annotation fitted = MarkReshaping::fitted(mark, mark.rect(), { 0, 5, 60, 30 });
        QTEST(fitted.p1, "newP1");
        QTEST(fitted.p2, "newP2");
    }

    void aPathIsMirroredWithItsFrame()
    {
        Annotation pen(Kind::Pen, {}, {});
        pen.points = { { 10, 10 }, { 20, 30 }, { 30, 10 } };
        const Annotation flipped = MarkReshaping::fitted(pen, { 10, 10, 20, 20 }, { 10, 10, -40, 20 });
        QCOMPARE(flipped.points, (QList<QPointF> { { 10, 10 }, { -10, 30 }, { -30, 10 } }));
        QCOMPARE(flipped.rect(), QRectF(-30, 10, 40, 20));
        pen.points = { { 10, 10 }, { 30, 10 } }; // a frame without height
        const Annotation flat = MarkReshaping::fitted(pen, { 10, 10, 20, 0 }, { 10, 12, 40, 30 });
        QCOMPARE(flat.points, (QList<QPointF> { { 10, 12 }, { 50, 12 } }));
    }

    void stepsOf15Degrees_data()
    {
        test::columns<QPointF, QPointF>("point", "stepped");
        test::row("level", QPointF(110, 55), QPointF(110, 50));
        test::row("upright", QPointF(53, 20), QPointF(50, 20));
        test::row("15 degrees", QPointF(146.59, 75.88), QPointF(146.59, 75.88));
        test::row("diagonal", QPointF(90, 92), QPointF(91, 91));
        test::row("the centre itself", QPointF(50, 50), QPointF(50, 50));
    }
    void stepsOf15Degrees()
    {
        QFETCH(QPointF, point);
        QFETCH(QPointF, stepped);
        QVERIFY(isNear(MarkReshaping::inSteps(point, { 50, 50 }), stepped));
    }

    void anArrowWithoutLengthCannotBeBent()
    {
        const Annotation arrow(Kind::Arrow, { 10, 10 }, { 10, 10 });
        QCOMPARE(MarkReshaping::bentThrough(arrow, { 30, 40 }), arrow);
    }

    void aTextNeverGetsTooSmallToGrab()
    {
        Annotation text(Kind::Text, { 50, 50 }, { 50, 50 });
        text.text = QStringLiteral("Text");
        QCOMPARE(MarkReshaping::scaledText(text, 0, HandleRole::TopLeft, m_text).fontSize, 4.0);
        text.fontSize = 2; // from a file
        QCOMPARE(MarkReshaping::scaledText(text, 0.5, HandleRole::TopLeft, m_text).fontSize, 2.0);
        const QPointF centre = m_text.box(text).center();
        QVERIFY(isNear(m_text.box(MarkReshaping::scaledTextAboutCentre(text, 9, m_text)).center(), centre));
    }

    void theFarEdgeStepsByThePoint_data()
    {
        // size: from 20 by 10
        test::columns<Kind, QPointF, QSizeF>("kind", "step", "size");
        test::row("wider", Kind::Ellipse, QPointF(10, 0), QSizeF(30, 10));
        test::row("lower", Kind::Stamp, QPointF(0, 1), QSizeF(20, 11));
        test::row("never below a point", Kind::Ellipse, QPointF(0, -10), QSizeF(20, 1));
        test::row("a line's end", Kind::Line, QPointF(0, -10), QSizeF(20, 0));
        test::row("a path", Kind::Pen, QPointF(20, 0), QSizeF(40, 10));
    }
    void theFarEdgeStepsByThePoint()
    {
        QFETCH(Kind, kind);
        QFETCH(QPointF, step);
        Annotation mark(kind, { 50, 50 }, { 70, 60 });
        mark.points = { mark.p1, mark.p2 };
        const QRectF stepped = withFarEdgeMoved(mark, step, m_text).rect();
        QCOMPARE(stepped.topLeft(), QPointF(50, 50));
        QTEST(stepped.size(), "size");
    }

    void theFarEdgeOfATextStepsByThePoint()
    {
        Annotation text(Kind::Text, { 50, 50 }, { 50, 50 });
        text.text = QStringLiteral("A text");
        const QRectF before = m_text.box(text);
        const QRectF after = m_text.box(withFarEdgeMoved(text, { 10, 0 }, m_text));
        QVERIFY(std::abs(after.width() - before.width() - 10) < 0.01);
        QVERIFY(isNear(after.topLeft(), before.topLeft()));
    }
};

QTEST_MAIN(MarkReshapingTest)
#include "MarkReshapingTest.moc"
