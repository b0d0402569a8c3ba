// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/ProgressWork.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <latch>
#include <new>

using namespace tessaly;

namespace {

QWidget *panel()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"progressPanel" && window->isVisible())
            return window;
    }
    return nullptr;
}

/// A widget that counts what reaches it.
class Witness final : public QPushButton {
public:
    int paints = 0;
    int closes = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
    void closeEvent(QCloseEvent *event) override
    {
        ++closes;
        QWidget::closeEvent(event);
    }
};

} // namespace

/// Work beside the windows. A latch holds the work until the test has seen what it waits for.
class ProgressWorkTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void shortWorkShowsNoPanel()
    {
        ProgressWork work;
        const auto *mainThread = QThread::currentThread();
        bool elsewhere = false;
        QVERIFY(work.run("Short", [&](const Cancellation &) { elsewhere = QThread::currentThread() != mainThread; }));
        QVERIFY(elsewhere);
        QVERIFY(!panel());
    }

    void whatMustComeToItsEndCannotBeCancelled()
    {
        std::latch seen(1);
        QTimer watch;
        connect(&watch, &QTimer::timeout, &watch, [&] {
            if (!panel())
                return;
            watch.stop();
            QVERIFY(!panel()->findChild<QPushButton *>());
            QTest::keyClick(panel(), Qt::Key_Escape);
            QVERIFY(panel());
            seen.count_down();
        });
        watch.start(1);
        bool ended = false;
        ProgressWork work;
        work.complete("Writing", [&](const Cancellation &cancellation) {
            seen.wait();
            ended = !cancellation.isCancelled();
        });
        QVERIFY(ended);
    }

    void windowsPaintButTakeNoInput()
    {
        Witness window;
        const QSignalSpy clicks(&window, &QPushButton::clicked);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        std::latch seen(1);
        QTimer watch;
        connect(&watch, &QTimer::timeout, &watch, [&] {
            if (!panel())
                return;
            watch.stop();
            const int before = window.paints;
            window.repaint();
            QCOMPARE(window.paints, before + 1);
            QTest::mouseClick(&window, Qt::LeftButton);
            QTest::keyClick(&window, Qt::Key_Space);
            window.close();
            QCOMPARE(panel()->findChild<QLabel *>()->text(), "Long");
            seen.count_down();
        });
        watch.start(1);
        ProgressWork work;
        QVERIFY(work.run("Long", [&](const Cancellation &) { seen.wait(); }));
        QVERIFY(!panel());
        QCOMPARE(clicks.size(), 0);
        QCOMPARE(window.closes, 0);
        QVERIFY(window.isVisible());
        QTest::mouseClick(&window, Qt::LeftButton);
        QCOMPARE(clicks.size(), 1);
    }

    void cancellingReturnsAtOnce_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("button") << false;
        QTest::newRow("Escape") << true;
    }

    void cancellingReturnsAtOnce()
    {
        QFETCH(bool, byKey);
        auto release = std::make_shared<std::latch>(1);
        auto told = std::make_shared<std::atomic<bool>>(false);
        QTimer watch;
        connect(&watch, &QTimer::timeout, &watch, [&] {
            QWidget *shown = panel();
            if (!shown)
                return;
            watch.stop();
            if (byKey)
                QTest::keyClick(shown, Qt::Key_Escape);
            else
                shown->findChild<QPushButton *>()->click();
        });
        watch.start(1);
        {
            ProgressWork work;
            QVERIFY(!work.run("Endless", [release, told](const Cancellation &cancellation) {
                release->wait();
                *told = cancellation.isCancelled();
            })); // it still runs
            QVERIFY(!panel());
            QVERIFY(work.run("Next", [](const Cancellation &) {}));
            release->count_down();
        } // joins
        QVERIFY(*told);
    }

    void runningOutOfMemoryIsSurvived()
    {
        ProgressWork work;
        bool assigned = false;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("given up"));
        QVERIFY(work.run("Huge", [&](const Cancellation &) {
            throw std::bad_alloc();
            assigned = true;
        }));
        QVERIFY(!assigned);
    }
};

QTEST_MAIN(ProgressWorkTest)
#include "ProgressWorkTest.moc"
