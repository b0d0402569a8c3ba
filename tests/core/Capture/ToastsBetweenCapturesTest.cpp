// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/ToastsBetweenCaptures.h"
#include "tests/core/Capture/CaptureStage.h"
#include "tests/support/Rows.h"

using namespace tessaly;
using test::CaptureStage;
using test::milliseconds;

using Act = std::function<void(CaptureStage &)>;
Q_DECLARE_METATYPE(Act)

class ToastsBetweenCapturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noticesWaitForTheEnd_data()
    {
        QTest::addColumn<Act>("end");
        test::row("cancelled", Act([](auto &stage) { stage.service.cancel(); }));
        test::row("given up", Act([](auto &stage) { stage.overlay.cancel(); }));
        test::row("captured", Act([](auto &stage) { stage.overlay.answer(stage.area({ 3, 4, 10, 6 })); }));
        test::row("failed", Act([](auto &stage) {
            stage.screen.failure = Failure { QStringLiteral("Refused.") };
            stage.overlay.answer(stage.area({ 3, 4, 10, 6 }));
        }));
    }

    void noticesWaitForTheEnd()
    {
        QFETCH(Act, end);
        CaptureStage stage;
        ToastsBetweenCaptures toasts(stage.toasts);
        toasts.setCaptures(stage.service);
        stage.service.start(stage.request(CaptureSubject::Region));
        toasts.show(QStringLiteral("first"), milliseconds(1));
        toasts.show(QStringLiteral("last"), milliseconds(1));
        QTRY_VERIFY(stage.overlay.isOpen());
        QVERIFY(stage.toasts.shown.isEmpty());
        end(stage);
        QTRY_COMPARE(stage.toasts.shown, QStringList { QStringLiteral("last") });
        toasts.showLink(QStringLiteral("link"), QStringLiteral("host"), [] {});
        QCOMPARE(stage.toasts.shown.size(), 2);
    }
};

QTEST_GUILESS_MAIN(ToastsBetweenCapturesTest)
#include "ToastsBetweenCapturesTest.moc"
