// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/CountdownWindow.h"
#include "tests/support/FakeLayers.h"
#include "ui/Overlay/CountdownPanel.h"

#include <QApplication>
#include <QTest>

using namespace tessaly;

class CountdownWindowTest : public QObject {
    Q_OBJECT

    static QList<CountdownPanel *> shown()
    {
        QList<CountdownPanel *> panels;
        for (QWidget *window : QApplication::topLevelWidgets())
            if (auto *panel = qobject_cast<CountdownPanel *>(window); panel && panel->isVisible())
                panels += panel;
        return panels;
    }

private Q_SLOTS:
    void endsByClickAndEscape()
    {
        test::FakeLayers layers;
        CountdownWindow window(layers);
        int cancelled = 0;
        const auto cancel = [&] {
            ++cancelled;
            window.hide();
        };
        window.show(3, cancel);
        QCOMPARE(layers.floats.begin()->rects.last().size(), QSize(150, 150));
        QVERIFY(layers.escape);
        QCOMPARE(shown().size(), 1);
        QTest::mouseClick(shown().first(), Qt::LeftButton);
        QCOMPARE(cancelled, 1);
        QVERIFY(shown().isEmpty());
        QVERIFY(!layers.escape);
        window.show(3, cancel);
        const auto escape = layers.escape;
        escape();
        QCOMPARE(cancelled, 2);
        QVERIFY(shown().isEmpty());
    }

    void showsTheNumber()
    {
        test::FakeLayers layers;
        CountdownWindow window(layers);
        window.show(3, [] {});
        const QImage three = shown().first()->grab().toImage();
        window.setNumber(2);
        const QImage two = shown().first()->grab().toImage();
        QVERIFY(three != two);
        QCOMPARE(two.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(two.pixelColor(75, 20).alpha(), 199); // 0.78
        QCOMPARE(shown().first()->accessibleName(), "2. Esc to cancel");
        layers.givesEscape = false; // it would not be true then
        window.show(3, [] {});
        QCOMPARE(shown().first()->accessibleName(), "3. Click to cancel");
    }
};

QTEST_MAIN(CountdownWindowTest)
#include "CountdownWindowTest.moc"
