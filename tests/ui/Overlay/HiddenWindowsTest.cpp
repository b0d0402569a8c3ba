// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/HiddenWindows.h"
#include "tests/support/Rows.h"
#include "ui/Style/CaptureProperties.h"

#include <QApplication>
#include <QDialog>

using namespace tessaly;

class HiddenWindowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hidesWhatIsInTheWay_data()
    {
        test::columns<Qt::WindowFlags, QByteArray, Qt::WindowStates, bool>("flags", "property", "state", "hidden");
        const auto row = [](const char *name, Qt::WindowFlags flags, bool hidden, const char *property = "",
                             Qt::WindowStates state = {}) {
            QTest::newRow(name) << flags << QByteArray(property) << state << hidden;
        };
        row("window", Qt::Window, true);
        row("dialog", Qt::Dialog, true);
        row("pin", Qt::Tool | Qt::FramelessWindowHint, false);
        row("thumbnail", Qt::Tool | Qt::FramelessWindowHint, true, CaptureProperties::hides);
        row("notice", Qt::ToolTip, true, CaptureProperties::ends);
        row("full screen", Qt::Window, false, "", Qt::WindowFullScreen);
        row("minimized", Qt::Window, false, "", Qt::WindowMinimized);
    }

    void hidesWhatIsInTheWay()
    {
        QFETCH(Qt::WindowFlags, flags);
        QFETCH(QByteArray, property);
        QFETCH(Qt::WindowStates, state);
        QFETCH(bool, hidden);
        HiddenWindows windows;
        QWidget window(nullptr, flags);
        window.setGeometry(40, 50, 200, 100);
        if (!property.isEmpty())
            window.setProperty(property.constData(), true);
        window.setWindowState(state);
        window.setVisible(true);
        const bool wasVisible = window.windowHandle()->isVisible();
        const quint64 id = window.winId();
        QCOMPARE(windows.hide().contains(id), hidden);
        QCOMPARE(window.isVisible(), !hidden);
        windows.restore();
        QCOMPARE(window.isVisible(), property != CaptureProperties::ends);
        QCOMPARE(window.windowHandle() && window.windowHandle()->isVisible(),
            wasVisible && property != CaptureProperties::ends);
        QCOMPARE(window.windowState() & ~Qt::WindowActive, state);
        QVERIFY(!window.testAttribute(Qt::WA_ShowWithoutActivating));
        if (!state)
            QCOMPARE(window.geometry(), QRect(40, 50, 200, 100));
    }

    void aQuestionKeepsItsWindow()
    {
        HiddenWindows windows;
        QWidget owner, other;
        QDialog question(&owner);
        question.setWindowModality(Qt::WindowModal);
        for (QWidget *each : { &owner, &other, static_cast<QWidget *>(&question) })
            each->show();
        QCOMPARE(windows.hide(), QList<quint64> { other.winId() });
        QVERIFY(owner.isVisible() && question.isVisible());
        windows.restore();
        QVERIFY(other.isVisible());
    }

    /// The one with the focus comes last, above the others. A window that is gone meanwhile is forgotten.
    void theOrderStays()
    {
        HiddenWindows windows;
        QWidget first, second;
        auto third = std::make_unique<QWidget>();
        for (QWidget *each : { &first, &second, third.get() }) {
            each->show();
            each->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(each));
        }
        first.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&first));
        const QList<quint64> ids { second.winId(), third->winId(), first.winId() };
        QCOMPARE(windows.hide(), ids);
        third.reset();
        windows.restore();
        QVERIFY(first.isVisible() && second.isVisible());
        QCOMPARE(windows.hide().size(), 2);
    }
};

QTEST_MAIN(HiddenWindowsTest)
#include "HiddenWindowsTest.moc"
