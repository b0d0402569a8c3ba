// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryPruning.h"

#include <QTest>

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
        QTest::addColumn<qint64>("age");
        QTest::addColumn<int>("days");
        QTest::addColumn<bool>("isOpen");
        QTest::addColumn<bool>("goes");
        QTest::newRow("as old as may be") << 30 * day << 30 << false << false;
        QTest::newRow("a moment older") << 30 * day + 1 << 30 << false << true;
        QTest::newRow("a moment older, but open") << 30 * day + 1 << 30 << true << false;
        QTest::newRow("one day") << day + 1 << 1 << false << true;
        QTest::newRow("no limit") << 3650 * day << 0 << false << false;
        QTest::newRow("no limit either") << 3650 * day << -7 << false << false;
        QTest::newRow("a limit that no clock reaches") << 3650 * day << 1'000'000 << false << false;
        QTest::newRow("from the future") << -5 * day << 1 << false << false;
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
        QTest::addColumn<int>("count");
        QTest::addColumn<QSet<int>>("open"); // by age, 0 is the newest
        QTest::addColumn<QList<int>>("expired");
        QTest::newRow("thousand") << 1000 << QSet<int>() << QList<int>();
        QTest::newRow("one more") << 1001 << QSet<int>() << QList { 1000 };
        QTest::newRow("the oldest is open") << 1001 << QSet { 1000 } << QList<int>();
        QTest::newRow("open ones count") << 1002 << QSet { 3, 1001 } << QList { 1000 };
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
        QTest::addColumn<int>("days");
        QTest::addColumn<QString>("title");
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
