// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/EntryTexts.h"
#include "tests/support/Rows.h"

#include <QLocale>

using namespace tessaly;

class EntryTextsTest : public QObject {
    Q_OBJECT

    const QDateTime m_now { QDate(2024, 3, 1), QTime(0, 5) };

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }

    void namesTheDay_data()
    {
        test::columns<QDateTime, QString>("created", "text");
        test::row("now", m_now, QStringLiteral("Today, 00:05"));
        test::row("minutes ago, before midnight", QDateTime(QDate(2024, 2, 29), QTime(23, 59)),
            QStringLiteral("Yesterday, 23:59"));
        test::row("two days ago", QDateTime(QDate(2024, 2, 28), QTime(23, 59)), QStringLiteral("28/02/2024, 23:59"));
        test::row(
            "a clock that was wrong", QDateTime(QDate(2031, 1, 2), QTime(8, 0)), QStringLiteral("02/01/2031, 08:00"));
    }

    void namesTheDay()
    {
        QFETCH(QDateTime, created);
        QTEST(EntryTexts::moment(created.toUTC(), m_now), "text");
    }

    void describesAnEntry()
    {
        HistoryEntry entry;
        entry.title = QStringLiteral(" Two\nlines ");
        entry.created = m_now.toUTC();
        entry.pixelWidth = 1280;
        entry.pixelHeight = 800;
        QCOMPARE(EntryTexts::title(entry), QStringLiteral("Two lines"));
        QCOMPARE(EntryTexts::subtitles(entry, m_now),
            QStringList({ QStringLiteral(u"Today, 00:05 · 1280 × 800"), QStringLiteral(u"Today · 1280 × 800"),
                QStringLiteral("Today, 00:05"), QStringLiteral("Today") }));
        QVERIFY(EntryTexts::spoken(entry).startsWith(u"Two lines, Friday, 1 March 2024"));
        entry.title.clear();
        QCOMPARE(EntryTexts::title(entry), QStringLiteral("Screenshot"));
    }

    void tellsHowLongCapturesAreKept_data()
    {
        test::columns<double, QString>("days", "text");
        const QString forever = QStringLiteral("Captures are kept only on this Mac, until you delete them.");
        test::row("never deleted", 0.0, forever);
        test::row("nonsense", -3.0, forever);
        test::row("less than a day", 0.9, forever);
        test::row("a month", 30.0, QStringLiteral("Captures are kept only on this Mac, for 30 days."));
    }

    void tellsHowLongCapturesAreKept()
    {
        QFETCH(double, days);
        QTEST(EntryTexts::retention(days), "text");
    }
};

QTEST_GUILESS_MAIN(EntryTextsTest)
#include "EntryTextsTest.moc"
