// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/LastRegion.h"
#include "core/Preferences/Settings.h"

#include <QTest>

using namespace tessaly;

/// What is stored of the last region, and what of it counts.
class LastRegionTest : public QObject {
    Q_OBJECT

    const QList<tessaly::Display> m_displays { { QStringLiteral("a"), { 0, 0, 300, 200 }, { 300, 200 }, 1.5, true },
        { QStringLiteral("b"), { -100, 0, 100, 80 }, { 100, 80 }, 1, false } };

private Q_SLOTS:
    void comesBackToThePixel()
    {
        Settings settings { {} };
        for (const auto &display : m_displays)
            for (const QRect rect : { QRect(0, 0, 7, 5), QRect(31, 17, 61, 63) }) {
                LastRegion::save(settings, { display, rect, {} });
                const auto loaded = LastRegion::load(settings, m_displays);
                QVERIFY(loaded);
                QCOMPARE(loaded->pixelRect, rect);
                QCOMPARE(loaded->display, display);
            }
    }

    void onlyWholeRegionsOfDisplaysCount_data()
    {
        QTest::addColumn<QString>("stored"); // with D for the first display's id
        QTest::addColumn<bool>("valid");
        QTest::newRow("five numbers") << "[D,1,2,30,40]" << true;
        QTest::newRow("the smallest") << "[D,0,0,2,2]" << true;
        QTest::newRow("no array") << "{\"a\":1}" << false;
        QTest::newRow("four numbers") << "[D,1,2,30]" << false;
        QTest::newRow("a text") << "[D,1,2,30,\"40\"]" << false;
        QTest::newRow("too narrow") << "[D,1,2,1.5,40]" << false;
        QTest::newRow("negative") << "[D,1,2,-30,40]" << false;
        QTest::newRow("another display") << "[12,1,2,30,40]" << false;
        QTest::newRow("outside") << "[D,250,2,30,40]" << false;
        QTest::newRow("far away") << "[D,1e300,2,30,40]" << false;
    }

    void onlyWholeRegionsOfDisplaysCount()
    {
        QFETCH(QString, stored);
        Settings settings { {} };
        stored.replace(u'D', QString::number(m_displays.first().id()));
        QVERIFY(settings.set(SettingKeys::lastRegionRect, stored.toUtf8()));
        QTEST(LastRegion::load(settings, m_displays).has_value(), "valid");
    }
};

QTEST_GUILESS_MAIN(LastRegionTest)
#include "LastRegionTest.moc"
