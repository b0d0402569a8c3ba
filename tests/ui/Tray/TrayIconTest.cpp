// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tray/TrayIcon.h"

#include <QTest>

using namespace tessaly;

class TrayIconTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isDrawnForEverySizeOfAPanel()
    {
        const QIcon icon = TrayIcon::icon();
        for (const int side : { 16, 22, 24, 32, 48, 44, 64, 96 })
            QVERIFY2(icon.availableSizes().contains(QSize(side, side)), qPrintable(QString::number(side)));
    }

    /// White marks with edges between pixels on a ground that is neither light nor dark.
    void isCrispAndStandsOut_data()
    {
        QTest::addColumn<int>("side");
        for (const int side : { 16, 22, 24, 32, 48 })
            QTest::addRow("%d", side) << side;
    }

    void isCrispAndStandsOut()
    {
        QFETCH(int, side);
        const QImage icon = TrayIcon::drawn(side);
        const auto lightnessAt = [&](int x, int y) { return icon.pixelColor(x, y).lightness(); };
        const QColor edge = icon.pixelColor(side / 2, 0);
        QCOMPARE(edge.alpha(), 255);
        QVERIFY(edge.lightness() > 60 && edge.lightness() < 200);
        int white = 0, between = 0;
        for (int y = 0; y < side; ++y) { // the left half has no slanting line
            for (int x = side / 6; x < side * 2 / 7; ++x) {
                white += lightnessAt(x, y) == 255;
                between += lightnessAt(x, y) > 180 && lightnessAt(x, y) < 255 && icon.pixelColor(x, y).alpha() == 255;
            }
        }
        QVERIFY(white >= side / 2);
        QCOMPARE(between, 0);
    }
};

QTEST_MAIN(TrayIconTest)
#include "TrayIconTest.moc"
