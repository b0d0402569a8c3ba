// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/BoxDrag.h"
#include "tests/support/Rows.h"

using namespace tessaly;

namespace {

/// The box that is dragged where a row names none: 100 by 50 at 10, 20.
constexpr QRectF start { 10, 20, 100, 50 };
constexpr QRectF picture { 0, 0, 200, 100 };

} // namespace

/// The arithmetic of dragged boxes. What the gestures make of it is tested with the canvas; here is what they rarely
/// reach.
class BoxDragTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dragged_data()
    {
        test::columns<BoxDrag, QPointF, QRectF>("drag", "to", "box");
        test::row("flipped sizes are negative", BoxDrag { .start = start }, QPointF(0, 10), QRectF(10, 20, -10, -10));
        test::row("a flat box grows", BoxDrag { .start = { 10, 20, 100, 0 }, .role = HandleRole::Bottom },
            QPointF(0, 50), QRectF(10, 20, 100, 30));
        test::row("the ratio of a side", BoxDrag { .start = start, .role = HandleRole::Right, .ratio = 2 },
            QPointF(50, 99), QRectF(10, 35, 40, 20));
        test::row("the ratio of the top", BoxDrag { .start = start, .role = HandleRole::Top, .ratio = 2 },
            QPointF(0, 40), QRectF(30, 40, 60, 30));
        test::row(
            "the least keeps the ratio", BoxDrag { .start = start, .ratio = 2 }, QPointF(10, 20), QRectF(10, 20, 2, 1));
        test::row("about the centre, flipped", BoxDrag { .start = start, .aboutCentre = true }, QPointF(50, 40),
            QRectF(70, 50, -20, -10));
        test::row(
            "within, free", BoxDrag { .start = start, .within = picture }, QPointF(500, 500), QRectF(10, 20, 190, 80));
        test::row("within, ratio: the nearer edge decides", BoxDrag { .start = start, .ratio = 2, .within = picture },
            QPointF(500, 500), QRectF(10, 20, 160, 80));
        test::row("within, flipped with a ratio", BoxDrag { .start = start, .ratio = 2, .within = picture },
            QPointF(-90, 10), QRectF(10, 20, -10, -5));
        test::row("within, about the centre", BoxDrag { .start = start, .aboutCentre = true, .within = picture },
            QPointF(190, 95), QRectF(0, 0, 120, 90));
        test::row("within, a side with a ratio",
            BoxDrag { .start = { 10, 60, 40, 20 }, .role = HandleRole::Right, .ratio = 2, .within = picture },
            QPointF(199, 70), QRectF(10, 40, 120, 60));
    }
    void dragged()
    {
        QFETCH(BoxDrag, drag);
        QFETCH(QPointF, to);
        QTEST(drag.draggedTo(to), "box");
    }

    void theHandleFollowsTheFlip_data()
    {
        test::columns<HandleRole, QRectF, HandleRole>("role", "dragged", "after");
        test::row("unflipped", HandleRole::Top, QRectF(0, 0, 5, 5), HandleRole::Top);
        test::row("across", HandleRole::TopLeft, QRectF(0, 0, -5, 5), HandleRole::TopRight);
        test::row("both ways", HandleRole::BottomRight, QRectF(0, 0, -5, -5), HandleRole::TopLeft);
        test::row("a side", HandleRole::Left, QRectF(0, 0, -5, 5), HandleRole::Right);
    }
    void theHandleFollowsTheFlip()
    {
        QFETCH(HandleRole, role);
        QFETCH(QRectF, dragged);
        QTEST(roleAfter(role, dragged), "after");
    }
};

QTEST_GUILESS_MAIN(BoxDragTest)
#include "BoxDragTest.moc"
