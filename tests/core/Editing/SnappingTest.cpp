// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/Snapping.h"

#include <QTest>

using namespace tessaly;

/// The search for the nearest target, and the guides through it.
class SnappingTest : public QObject {
    Q_OBJECT

    static SnapTargets targets()
    {
        SnapTargets targets;
        targets.add({ 0, 0, 400, 300 });
        targets.add({ 104, 50, 20, 30 });
        targets.add({ 98, 150, 60, 30 });
        return targets;
    }

private Q_SLOTS:
    void theNearestTargetWins_data()
    {
        QTest::addColumn<QList<double>>("positions");
        QTest::addColumn<double>("offset");
        QTest::newRow("of two targets the nearer") << QList { 100.0 } << -2.0;
        QTest::newRow("of two positions the nearer") << QList { 100.0, 123.0 } << 1.0;
        QTest::newRow("exactly at the reach") << QList { 86.0, 406.0 } << -6.0;
        QTest::newRow("beyond the reach") << QList { 60.0, 406.5 } << 0.0;
        QTest::newRow("on a target already") << QList { 114.0, 99.0 } << 0.0;
        QTest::newRow("before the first") << QList { -4.0 } << 4.0;
        QTest::newRow("nothing to snap") << QList<double>() << 0.0;
    }
    void theNearestTargetWins()
    {
        QFETCH(QList<double>, positions);
        QTEST(targets().offsetX(positions, 6), "offset");
    }

    void aNegativeReachSnapsNowhere() { QCOMPARE(targets().offsetX({ 0, 98 }, -1), 0.0); }

    void guidesSpanWhatIsAligned()
    {
        const QRectF box(98, 200, 10, 10);
        QCOMPARE(targets().guides(box, { 98, 103, 108 }, { 200, 205, 210 }), (QList { QLineF(98, 150, 98, 210) }));
        QCOMPARE(targets().guides({ 195, 145, 10, 10 }, { 200 }, { 150 }),
            (QList { QLineF(200, 0, 200, 300), QLineF(0, 150, 400, 150) }));
    }

    void noTargetsNoGuides()
    {
        QCOMPARE(SnapTargets().offsetY({ 3 }, 6), 0.0);
        QVERIFY(SnapTargets().guides({ 0, 0, 1, 1 }, { 0 }, { 0 }).isEmpty());
    }
};

QTEST_GUILESS_MAIN(SnappingTest)
#include "SnappingTest.moc"
