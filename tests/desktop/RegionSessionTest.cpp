// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/DesktopSession.h"

#include <QFile>
#include <QTest>

using namespace tessaly::test;

/// Areas dragged with the mouse on two monitors of different scale; every pixel of the files is compared with what is
/// on the screen.
class RegionSessionTest : public QObject {
    Q_OBJECT

    static constexpr QSize screen { 1600, 700 };
    static constexpr int rightEdge = 800; ///< where the monitor with two pixels a point begins

    DesktopSession m_session { QStringLiteral("1600x700x24") };
    QImage m_pattern;

    /// A chequerboard of single pixels in which no two places of a neighbourhood are alike.
    static QImage pattern(int seed)
    {
        QImage image(screen, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const bool light = (x + y) % 2;
                image.setPixel(x, y, light ? qRgb(255 - x % 97, 255 - y % 89, 200 + seed) : qRgb(x % 83, y % 79, seed));
            }
        }
        return image;
    }

    /// Waits for the overlay; its bar is made when all of it has been painted.
    bool overlayIsOpen() const { return m_session.tree().find(QStringLiteral("Select what to capture")).has_value(); }

    QString file() const { return m_session.path(QStringLiteral("area.png")); }

    /// The pixels of the file that a region's capture wrote, after the user has done something over the overlay.
    QImage captured(const std::function<void()> &select)
    {
        QFile::remove(file());
        const auto command = m_session.command({ "capture", "region", "-o", file() });
        if (!overlayIsOpen())
            return {};
        select();
        return DesktopSession::finish(*command) == 0 ? DesktopSession::pixels(file()) : QImage();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_session.isReady());
        m_session.splitMonitors();
        m_pattern = pattern(20);
        m_session.showBackground(m_pattern);
        QVERIFY(m_session.startResident("{\"appearance\":\"light\"}"));
        QVERIFY(m_session.output(TESSALY_BINARIES "/tessaly", { "displays" }).contains("@2"));
    }

    void draggedAreasAreExact_data()
    {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QRect>("expected"); ///< pixels of the whole screen
        QTest::newRow("one pixel a point") << QPoint(101, 203) << QPoint(332, 404) << QRect(101, 203, 231, 201);
        QTest::newRow("two pixels a point") << QPoint(901, 103) << QPoint(1132, 304) << QRect(901, 103, 231, 201);
        QTest::newRow("backwards") << QPoint(1200, 400) << QPoint(1033, 301) << QRect(1033, 301, 167, 99);
        QTest::newRow("ends at the monitor's edge")
            << QPoint(701, 100) << QPoint(900, 200) << QRect(701, 100, rightEdge - 701, 100);
        QTest::newRow("from the other side") << QPoint(901, 50) << QPoint(700, 90) << QRect(rightEdge, 50, 101, 40);
        QTest::newRow("a few pixels") << QPoint(311, 17) << QPoint(316, 22) << QRect(311, 17, 5, 5);
    }

    void draggedAreasAreExact()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(QRect, expected);
        const QImage image = captured([&] { m_session.drag({ from, to }); });
        QCOMPARE(image.size(), expected.size());
        QCOMPARE(image, m_pattern.copy(expected));
    }

    void keysMoveAndResize()
    {
        QCOMPARE(m_session.stop(), 0);
        QVERIFY(m_session.startResident("{\"adjustRegionBeforeCapture\":true}"));
        const QImage image = captured([&] {
            m_session.drag({ { 1000, 200 }, { 1100, 300 } });
            m_session.key("Right"); // steps of ten points, of two pixels each
            m_session.key("Down");
            m_session.key("shift+Right"); // resizes by twenty
            m_session.key("Return");
        });
        QCOMPARE(image, m_pattern.copy(1020, 220, 140, 100));
    }

    void theLastRegionIsTakenAgain()
    {
        const QImage changed = pattern(50);
        m_session.showBackground(changed);
        const auto command = m_session.command({ "capture", "last-region", "-o", file() });
        QCOMPARE(DesktopSession::finish(*command), 0);
        QCOMPARE(DesktopSession::pixels(file()), changed.copy(1020, 220, 140, 100));
    }

    void whatIsFrozenStays()
    {
        QCOMPARE(m_session.stop(), 0);
        QVERIFY(m_session.startResident("{\"freezeScreenWhileSelecting\":true}"));
        m_session.showBackground(m_pattern);
        const QImage image = captured([&] {
            m_session.showBackground(pattern(50));
            m_session.drag({ { 101, 203 }, { 332, 404 } });
        });
        QCOMPARE(image, m_pattern.copy(101, 203, 231, 201));
        QCOMPARE(m_session.stop(), 0);
    }
};

QTEST_GUILESS_MAIN(RegionSessionTest)
#include "RegionSessionTest.moc"
