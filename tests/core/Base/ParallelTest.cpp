// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/Parallel.h"

#include <QTest>

#include <atomic>

using namespace tessaly;

/// Every index and every row is worked on exactly once, whatever the number of threads.
class ParallelTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coversEverythingOnce_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("bands");
        QTest::addColumn<int>("threads");
        QTest::newRow("one thread") << 100 << 8 << 1;
        QTest::newRow("more threads than bands") << 100 << 3 << 8;
        QTest::newRow("more bands than rows") << 5 << 64 << 4;
        QTest::newRow("one row") << 1 << 1 << 4;
        QTest::newRow("no rows") << 0 << 4 << 4;
        QTest::newRow("no threads still work") << 10 << 4 << 0;
    }

    void coversEverythingOnce()
    {
        QFETCH(int, count);
        QFETCH(int, bands);
        QFETCH(int, threads);
        std::vector<std::atomic<int>> seen(static_cast<std::size_t>(count));
        Parallel::forEach(count, threads, [&](int index) { ++seen[static_cast<std::size_t>(index)]; });
        Parallel::inBands(count, bands, threads, [&](int first, int end) {
            for (int row = first; row < end; ++row)
                ++seen[static_cast<std::size_t>(row)];
        });
        QVERIFY(std::ranges::all_of(seen, [](int times) { return times == 2; }));
    }
};

QTEST_GUILESS_MAIN(ParallelTest)
#include "ParallelTest.moc"
