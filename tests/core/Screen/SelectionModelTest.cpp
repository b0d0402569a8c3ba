// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Screen/SelectionModel.h"
#include "tests/support/Rows.h"

using namespace tessaly;
using Constraint = SelectionModel::Constraint;

Q_DECLARE_METATYPE(tessaly::SelectionModel::Constraint)

/// Monitors of 1600 × 1000 device pixels, rectangles as x, y, width, height in them.
class SelectionModelTest : public QObject {
    Q_OBJECT

    static SelectionModel model(double scale = 1, const QRect &selected = {})
    {
        SelectionModel model({ 1600, 1000 }, scale);
        model.select(selected);
        return model;
    }

    static constexpr Constraint square { true, false, false }, centred { false, true, false },
        both { true, true, false };

private Q_SLOTS:
    void creates_data()
    {
        test::columns<QPoint, QPoint, Constraint, QRect>("from", "to", "keys", "rect");
        const auto row = [](const char *name, QPoint from, QPoint to, QRect rect, Constraint keys = {}) {
            QTest::newRow(name) << from << to << keys << rect;
        };
        row("down right", { 3, 5 }, { 103, 45 }, { 3, 5, 100, 40 });
        row("up left", { 103, 45 }, { 3, 5 }, { 3, 5, 100, 40 });
        row("beyond the monitor", { 1500, 900 }, { 4000, -7 }, { 1500, 0, 100, 900 });
        row("to the last pixel", { 0, 0 }, { 1599, 999 }, { 0, 0, 1600, 1000 });
        row("from the last pixel", { 1599, 999 }, { 1500, 900 }, { 1500, 900, 100, 100 });
        row("square", { 100, 100 }, { 130, 60 }, { 100, 60, 40, 40 }, square);
        row("square at the edge", { 100, 100 }, { 300, 90 }, { 100, 0, 100, 100 }, square);
        row("about the centre", { 100, 100 }, { 130, 80 }, { 70, 80, 60, 40 }, centred);
        row("about the centre at the edge", { 20, 100 }, { 130, 80 }, { 0, 80, 40, 40 }, centred);
        row("square about the centre", { 100, 100 }, { 90, 95 }, { 90, 90, 20, 20 }, both);
    }

    void creates()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(Constraint, keys);
        SelectionModel selection = model();
        selection.press(from);
        selection.drag(to, keys);
        selection.release();
        QTEST(selection.pixelRect(), "rect");
        QVERIFY(!selection.isDragging());
    }

    void theLeastIsFourPoints_data()
    {
        test::columns<double, QSize, bool>("scale", "size", "valid");
        test::row("too narrow", 1.0, QSize(3, 50), false);
        test::row("just enough", 1.0, QSize(4, 4), true);
        test::row("one and a half, too low", 1.5, QSize(50, 5), false);
        test::row("one and a half", 1.5, QSize(6, 6), true);
        test::row("two, too narrow", 2.0, QSize(7, 8), false);
        test::row("two", 2.0, QSize(8, 8), true);
    }

    void theLeastIsFourPoints()
    {
        QFETCH(double, scale);
        QFETCH(QSize, size);
        QFETCH(bool, valid);
        SelectionModel selection = model(scale);
        selection.press({ 100, 100 });
        selection.drag(QPoint(100, 100) + QPoint(size.width(), size.height()));
        QCOMPARE(selection.isValid(), valid);
        selection.release();
        QCOMPARE(selection.pixelRect(), valid ? QRect({ 100, 100 }, size) : QRect());
    }

    /// Each grip is taken 3 pixels off its middle; the edges move by the travel and no more.
    void resizes_data()
    {
        test::columns<QPoint, QPoint, Constraint, QRect>("grip", "travel", "keys", "rect");
        const auto row = [](const char *name, QPoint grip, QPoint travel, QRect rect, Constraint keys = {}) {
            QTest::newRow(name) << grip << travel << keys << rect;
        };
        row("top left", { 400, 300 }, { -10, 20 }, { 390, 320, 210, 80 });
        row("top right", { 600, 300 }, { 10, 20 }, { 400, 320, 210, 80 });
        row("bottom left", { 400, 400 }, { 10, 20 }, { 410, 300, 190, 120 });
        row("bottom right", { 600, 400 }, { 1, 1 }, { 400, 300, 201, 101 });
        row("top", { 500, 300 }, { 50, -20 }, { 400, 280, 200, 120 });
        row("bottom", { 500, 400 }, { 50, -20 }, { 400, 300, 200, 80 });
        row("left", { 400, 350 }, { -20, 50 }, { 380, 300, 220, 100 });
        row("right", { 600, 350 }, { -20, 50 }, { 400, 300, 180, 100 });
        row("past the opposite side", { 600, 350 }, { -300, 0 }, { 300, 300, 100, 100 });
        row("past the opposite corner", { 400, 300 }, { 300, 200 }, { 600, 400, 100, 100 });
        row("beyond the monitor", { 600, 400 }, { 5000, 5000 }, { 400, 300, 1200, 700 });
        row("square at a corner", { 600, 400 }, { 0, 150 }, { 400, 300, 250, 250 }, square);
        row("about the centre", { 600, 400 }, { 10, 20 }, { 390, 280, 220, 140 }, centred);
        row("about the centre beyond", { 600, 350 }, { 5000, 0 }, { 0, 300, 1000, 100 }, centred);
    }

    void resizes()
    {
        QFETCH(QPoint, grip);
        QFETCH(QPoint, travel);
        QFETCH(Constraint, keys);
        for (const double scale : { 1.0, 1.5, 2.0 }) {
            SelectionModel selection = model(scale, { 400, 300, 200, 100 });
            const QPoint taken = grip + QPoint(3, -3);
            selection.press(taken);
            QCOMPARE(selection.pixelRect(), QRect(400, 300, 200, 100));
            selection.drag(taken + travel, keys);
            selection.release();
            QTEST(selection.pixelRect(), "rect");
        }
    }

    void movesInsideTheMonitor()
    {
        SelectionModel selection = model(1, { 400, 300, 200, 100 });
        selection.press({ 450, 350 });
        selection.drag({ 460, 345 });
        QCOMPARE(selection.pixelRect(), QRect(410, 295, 200, 100));
        selection.drag({ 9000, -9000 });
        QCOMPARE(selection.pixelRect(), QRect(1400, 0, 200, 100));
        selection.cancelDrag();
        QCOMPARE(selection.pixelRect(), QRect(400, 300, 200, 100));
    }

    void anUnfinishedRectangleMovesAndGoesOn()
    {
        SelectionModel selection = model();
        selection.press({ 100, 100 });
        selection.drag({ 200, 150 });
        selection.drag({ 230, 140 }, { false, false, true });
        QCOMPARE(selection.pixelRect(), QRect(130, 90, 100, 50));
        selection.drag({ 240, 150 });
        QCOMPARE(selection.pixelRect(), QRect(130, 90, 110, 60));
    }

    void aClickBesideASelectionLeavesIt()
    {
        SelectionModel selection = model(1, { 400, 300, 200, 100 });
        selection.press({ 100, 100 });
        selection.drag({ 102, 101 });
        selection.release();
        QCOMPARE(selection.pixelRect(), QRect(400, 300, 200, 100));
    }

    void aSmallSelectionCanStillBeMoved()
    {
        const SelectionModel selection = model(2, { 400, 300, 16, 16 });
        QVERIFY(!selection.handleAt({ 400, 300 }));
        QVERIFY(!selection.handleAt({ 415, 315 }));
        QCOMPARE(selection.handleAt({ 399, 299 }), Handle::TopLeft);
        QCOMPARE(selection.handleAt({ 416, 316 }), Handle::BottomRight);
        QVERIFY(selection.handleRect(Handle::Top).isEmpty());
        const SelectionModel narrow = model(1, { 400, 300, 10, 300 });
        QCOMPARE(narrow.handleRect(Handle::Left), QRect(388, 444, 12, 12));
        QCOMPARE(narrow.handleRect(Handle::TopRight), QRect(410, 294, 12, 12));
        QVERIFY(narrow.handleRect(Handle::Bottom).isEmpty());
        QVERIFY(!model().handleAt({ 0, 0 }));
    }

    void arrowKeys_data()
    {
        test::columns<double, QRect, QPoint, bool, QRect>("scale", "before", "direction", "resizes", "after");
        const auto row = [](const char *name, double scale, QRect before, QPoint direction, bool resizes, QRect after) {
            QTest::newRow(name) << scale << before << direction << resizes << after;
        };
        const QPoint left(-1, 0), right(1, 0), up(0, -1), down(0, 1);
        row("right", 1, { 50, 60, 100, 100 }, right, false, { 60, 60, 100, 100 });
        row("down at one and a half", 1.5, { 50, 60, 100, 100 }, down, false, { 50, 75, 100, 100 });
        row("up at two, to the edge", 2, { 50, 12, 100, 100 }, up, false, { 50, 0, 100, 100 });
        row("right to the edge", 1, { 1495, 60, 100, 100 }, right, false, { 1500, 60, 100, 100 });
        row("wider", 1, { 50, 60, 100, 100 }, right, true, { 50, 60, 120, 100 });
        row("taller, the bottom stays", 1, { 50, 60, 100, 100 }, up, true, { 50, 40, 100, 120 });
        row("lower, the bottom stays", 1.5, { 50, 60, 100, 100 }, down, true, { 50, 90, 100, 70 });
        row("not below ten points", 1, { 50, 60, 12, 100 }, left, true, { 50, 60, 10, 100 });
        row("not below ten points at two", 2, { 50, 60, 24, 100 }, left, true, { 50, 60, 20, 100 });
        row("wider to the edge", 1, { 1495, 60, 100, 100 }, right, true, { 1495, 60, 105, 100 });
        row("taller to the edge", 1, { 50, 5, 100, 100 }, up, true, { 50, 0, 100, 105 });
        row("nothing yet", 1, {}, right, false, { 680, 380, 240, 240 });
        row("too little yet", 1.5, { 5, 5, 4, 90 }, left, true, { 620, 320, 360, 360 });
    }

    void arrowKeys()
    {
        QFETCH(double, scale);
        QFETCH(QRect, before);
        QFETCH(QPoint, direction);
        QFETCH(bool, resizes);
        SelectionModel selection = model(scale, before);
        QVERIFY(selection.nudge(direction, resizes));
        QTEST(selection.pixelRect(), "after");
        QCOMPARE(selection.isAdjusting(), before.isEmpty() || before.width() < 10);
    }

    void anArrowKeyAtTheEdgeChangesNothing()
    {
        SelectionModel selection = model(1, { 0, 0, 100, 100 });
        QVERIFY(!selection.nudge({ -1, 0 }, false));
        QVERIFY(!selection.nudge({ 0, -1 }, true));
    }
};

QTEST_GUILESS_MAIN(SelectionModelTest)
#include "SelectionModelTest.moc"
