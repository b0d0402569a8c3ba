// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/BoxDrag.h"

#include <QTest>

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
        QTest::addColumn<BoxDrag>("drag");
        QTest::addColumn<QPointF>("to");
        QTest::addColumn<QRectF>("box");
        QTest::newRow("flipped sizes are negative")
            << BoxDrag { .start = start } << QPointF(0, 10) << QRectF(10, 20, -10, -10);
        QTest::newRow("a flat box grows") << BoxDrag { .start = { 10, 20, 100, 0 }, .role = HandleRole::Bottom }
                                          << QPointF(0, 50) << QRectF(10, 20, 100, 30);
        QTest::newRow("the ratio of a side") << BoxDrag { .start = start, .role = HandleRole::Right, .ratio = 2 }
                                             << QPointF(50, 99) << QRectF(10, 35, 40, 20);
        QTest::newRow("the ratio of the top") << BoxDrag { .start = start, .role = HandleRole::Top, .ratio = 2 }
                                              << QPointF(0, 40) << QRectF(30, 40, 60, 30);
        QTest::newRow("the least keeps the ratio")
            << BoxDrag { .start = start, .ratio = 2 } << QPointF(10, 20) << QRectF(10, 20, 2, 1);
        QTest::newRow("about the centre, flipped")
            << BoxDrag { .start = start, .aboutCentre = true } << QPointF(50, 40) << QRectF(70, 50, -20, -10);
        QTest::newRow("within, free") << BoxDrag { .start = start, .within = picture } << QPointF(500, 500)
                                      << QRectF(10, 20, 190, 80);
        QTest::newRow("within, ratio: the nearer edge decides")
            << BoxDrag { .start = start, .ratio = 2, .within = picture } << QPointF(500, 500)
            << QRectF(10, 20, 160, 80);
        QTest::newRow("within, flipped with a ratio")
            << BoxDrag { .start = start, .ratio = 2, .within = picture } << QPointF(-90, 10) << QRectF(10, 20, -10, -5);
        QTest::newRow("within, about the centre") << BoxDrag { .start = start, .aboutCentre = true, .within = picture }
                                                  << QPointF(190, 95) << QRectF(0, 0, 120, 90);
        QTest::newRow("within, a side with a ratio")
            << BoxDrag { .start = { 10, 60, 40, 20 }, .role = HandleRole::Right, .ratio = 2, .within = picture }
            << QPointF(199, 70) << QRectF(10, 40, 120, 60);
    }
    void dragged()
    {
        QFETCH(BoxDrag, drag);
        QFETCH(QPointF, to);
        QTEST(drag.draggedTo(to), "box");
    }

    void theHandleFollowsTheFlip_data()
    {
        QTest::addColumn<HandleRole>("role");
        QTest::addColumn<QRectF>("dragged");
        QTest::addColumn<HandleRole>("after");
        QTest::newRow("unflipped") << HandleRole::Top << QRectF(0, 0, 5, 5) << HandleRole::Top;
        QTest::newRow("across") << HandleRole::TopLeft << QRectF(0, 0, -5, 5) << HandleRole::TopRight;
        QTest::newRow("both ways") << HandleRole::BottomRight << QRectF(0, 0, -5, -5) << HandleRole::TopLeft;
        QTest::newRow("a side") << HandleRole::Left << QRectF(0, 0, -5, 5) << HandleRole::Right;
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
