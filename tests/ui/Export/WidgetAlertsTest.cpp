// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/WidgetAlerts.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace tessaly;

/// Alerts, answered with the keyboard and the mouse.
class WidgetAlertsTest : public QObject {
    Q_OBJECT

    /// Calls `act` with the alert as soon as it is there.
    static void whenShown(QTimer &timer, const std::function<void(QMessageBox &)> &act)
    {
        connect(&timer, &QTimer::timeout, &timer, [&timer, act] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || !box->isActiveWindow())
                return;
            timer.stop();
            act(*box);
        });
        timer.start(0);
    }

private Q_SLOTS:
    void theKeysAnswer_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<int>("answer");
        QTest::newRow("Return") << int(Qt::Key_Return) << Qt::KeyboardModifiers() << 0;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << Qt::KeyboardModifiers() << 1;
        QTest::newRow("Ctrl+D") << int(Qt::Key_D) << Qt::KeyboardModifiers(Qt::ControlModifier) << 2;
    }

    void theKeysAnswer()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QStringList labels;
        QTimer timer;
        whenShown(timer, [&](QMessageBox &box) {
            QList<QAbstractButton *> buttons = box.buttons();
            std::ranges::sort(buttons, {}, [](QAbstractButton *button) { return button->x(); });
            for (const QAbstractButton *button : buttons)
                labels += button->text();
            QTest::keyClick(&box, Qt::Key(key), modifiers);
        });
        WidgetAlerts alerts;
        const int answer = alerts.ask({ .message = "Save?",
            .informativeText = "It matters.",
            .answers = { { "Save…" }, { "Cancel" }, { "Don't Save", "Ctrl+D" } },
            .escapeAnswer = 1 });
        QTEST(answer, "answer");
        QCOMPARE(labels, QStringList({ "Save…", "Cancel", "Don't Save" }));
    }

    void aFailureIsToldAsItIs()
    {
        const QString message = "Couldn't save <b>.png";
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QTimer timer;
        whenShown(timer, [&](QMessageBox &box) {
            icon = box.icon();
            QCOMPARE(box.text(), message);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QVERIFY(box.textInteractionFlags() & Qt::TextSelectableByMouse);
            QCOMPARE(box.informativeText(), "No room.");
            QCOMPARE(box.buttons().size(), 1);
            box.close();
        });
        WidgetAlerts().warn(message, "No room.");
        QCOMPARE(icon, QMessageBox::Warning);
    }
};

QTEST_MAIN(WidgetAlertsTest)
#include "WidgetAlertsTest.moc"
