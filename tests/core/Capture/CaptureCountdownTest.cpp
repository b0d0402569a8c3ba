// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/CaptureCountdown.h"
#include "tests/support/FakeCapture.h"
#include "tests/support/PatientTest.h"

#include <QTest>

using namespace tessaly;

/// The seconds before a capture, made short.
class CaptureCountdownTest : public QObject {
    Q_OBJECT

    QStringList m_events;
    std::unique_ptr<test::FakeCountdownView> m_view;
    std::unique_ptr<CaptureCountdown> m_countdown;

    void start(int seconds, const QString &name = {})
    {
        m_countdown->start(
            seconds, [this, name] { m_events += QStringLiteral("done") + name; },
            [this, name] { m_events += QStringLiteral("cancelled") + name; });
    }

private Q_SLOTS:
    void init()
    {
        using std::chrono::milliseconds;
        m_events.clear();
        m_view = std::make_unique<test::FakeCountdownView>();
        m_view->note = [this](const QString &event) { m_events += event; };
        m_countdown
            = std::make_unique<CaptureCountdown>(*m_view, CaptureCountdown::Pace { milliseconds(10), milliseconds(1) });
    }

    void countsDown()
    {
        start(3);
        QVERIFY(m_countdown->isRunning());
        QTRY_VERIFY(!m_countdown->isRunning());
        QCOMPARE(m_events,
            QStringList({ QStringLiteral("count 3"), QStringLiteral("count 2"), QStringLiteral("count 1"),
                QStringLiteral("count hidden"), QStringLiteral("done") }));
    }

    void withoutSecondsItIsDoneAtOnce()
    {
        for (const int seconds : { 0, -4 })
            start(seconds);
        QCOMPARE(m_events, QStringList({ QStringLiteral("done"), QStringLiteral("done") }));
    }

    void aClickCancels()
    {
        start(1000);
        const auto click = m_view->click;
        click();
        click(); // again, while it goes
        QCOMPARE(m_events,
            QStringList({ QStringLiteral("count 1000"), QStringLiteral("count hidden"), QStringLiteral("cancelled") }));
        QVERIFY(!m_countdown->isRunning());
    }

    void aNewOneTakesTheOldOnesPlaceSilently()
    {
        start(1000, QStringLiteral(" old"));
        start(1, QStringLiteral(" new"));
        QTRY_COMPARE(m_events.last(), QStringLiteral("done new"));
        QCOMPARE(m_events,
            QStringList({ QStringLiteral("count 1000"), QStringLiteral("count hidden"), QStringLiteral("count 1"),
                QStringLiteral("count hidden"), QStringLiteral("done new") }));
    }
};

QTEST_GUILESS_MAIN(CaptureCountdownTest)
#include "CaptureCountdownTest.moc"
