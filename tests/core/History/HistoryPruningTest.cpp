// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryPruning.h"
#include "tests/support/Rows.h"

using namespace tessaly;

/// Which captures go when.
class HistoryPruningTest : public QObject {
    Q_OBJECT

    const QDateTime m_now { QDate(2024, 5, 1), QTime(12, 0), Qt::UTC };

    HistoryEntry entry(qint64 millisecondsOld) const
    {
        return { .id = QUuid::createUuid(), .created = m_now.addMSecs(-millisecondsOld) };
    }

private Q_SLOTS:
    void ageIsMeasuredInWholeRetentions_data()
    {
        constexpr qint64 day = 86'400'000;
        test::columns<qint64, int, bool, bool>("age", "days", "isOpen", "goes");
        test::row("as old as may be", 30 * day, 30, false, false);
        test::row("a moment older", 30 * day + 1, 30, false, true);
        test::row("a moment older, but open", 30 * day + 1, 30, true, false);
        test::row("one day", day + 1, 1, false, true);
        test::row("no limit", 3650 * day, 0, false, false);
        test::row("no limit either", 3650 * day, -7, false, false);
        test::row("a limit that no clock reaches", 3650 * day, 1'000'000, false, false);
        test::row("from the future", -5 * day, 1, false, false);
    }

    void ageIsMeasuredInWholeRetentions()
    {
        QFETCH(qint64, age);
        QFETCH(int, days);
        QFETCH(bool, isOpen);
        QFETCH(bool, goes);
        const QList<HistoryEntry> entries { entry(age), entry(0) };
        const QSet<QUuid> open = isOpen ? QSet { entries[0].id } : QSet<QUuid>();
        const auto expired = HistoryPruning::expired(entries, days, m_now, open);
        QCOMPARE(expired, goes ? QList { entries[0].id } : QList<QUuid>());
    }

    void atMostThousandAreKept_data()
    {
        // open: by age, 0 is the newest
        test::columns<int, QSet<int>, QList<int>>("count", "open", "expired");
        test::row("thousand", 1000, QSet<int>(), QList<int>());
        test::row("one more", 1001, QSet<int>(), QList { 1000 });
        test::row("the oldest is open", 1001, QSet { 1000 }, QList<int>());
        test::row("open ones count", 1002, QSet { 3, 1001 }, QList { 1000 });
    }

    void atMostThousandAreKept()
    {
        QFETCH(int, count);
        QFETCH(QSet<int>, open);
        QFETCH(QList<int>, expired);
        QList<HistoryEntry> entries; // the oldest first, as the list may come
        QSet<QUuid> openIDs;
        for (int age = count - 1; age >= 0; --age) {
            entries += entry(age);
            if (open.contains(age))
                openIDs += entries.last().id;
        }
        QList<int> ages;
        const auto ids = HistoryPruning::expired(entries, 0, m_now, openIDs);
        for (const QUuid &id : ids)
            ages += count - 1 - int(std::ranges::find(entries, id, &HistoryEntry::id) - entries.begin());
        QCOMPARE(ages, expired);
    }

    void everyNumberOfDaysHasATitle_data()
    {
        test::columns<int, QString>("days", "title");
        for (const auto &[days, title] :
            { std::pair(7, "1 week"), std::pair(30, "1 month"), std::pair(90, "3 months"), std::pair(365, "1 year"),
                std::pair(0, "Forever"), std::pair(31, "Forever"), std::pair(-1, "Forever") })
            QTest::addRow("%d", days) << days << title;
    }

    void everyNumberOfDaysHasATitle()
    {
        QFETCH(int, days);
        QTEST(HistoryPruning::retentionTitle(days), "title");
    }
};

QTEST_GUILESS_MAIN(HistoryPruningTest)
#include "HistoryPruningTest.moc"
