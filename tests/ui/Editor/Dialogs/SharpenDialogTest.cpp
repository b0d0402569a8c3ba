// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Dialogs/SharpenDialog.h"

#include "core/Preferences/Settings.h"
#include "tests/support/SamplePictures.h"

#include <QLabel>
#include <QSlider>
#include <QTest>

using namespace tessaly;
using namespace tessaly::test;

class SharpenDialogTest : public QObject {
    Q_OBJECT

    static QImage shown(const SharpenDialog &dialog, const QString &name)
    {
        for (const auto *label : dialog.findChildren<QLabel *>()) {
            if (label->accessibleName() == name)
                return label->pixmap().toImage();
        }
        return {};
    }

private Q_SLOTS:
    void remembersTheAmount()
    {
        Settings settings { QString() };
        const RasterImage image = RasterImage::fromPixels(samplePicture({ 300, 200 }, Transparency::None));
        {
            SharpenDialog dialog(image, settings);
            QCOMPARE(dialog.amount(), 0.5);
            dialog.findChild<QSlider *>()->setValue(137);
            QCOMPARE(dialog.amount(), 1.37);
            QCOMPARE(settings.value(SettingKeys::sharpenAmount), 50.0); // not before it is applied
            QVERIFY(dialog.remember());
        }
        QCOMPARE(settings.value(SettingKeys::sharpenAmount), 137.0);
        QCOMPARE(SharpenDialog(image, settings).amount(), 1.37);
    }

    void returnApplies()
    {
        Settings settings { QString() };
        SharpenDialog dialog(RasterImage::fromPixels(samplePicture({ 300, 200 }, Transparency::None)), settings);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(dialog.focusWidget());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
    }

    void showsTheDetailBeforeAndAfter()
    {
        Settings settings { QString() };
        SharpenDialog dialog(RasterImage::fromPixels(samplePicture({ 300, 200 }, Transparency::None)), settings);
        const QImage before = shown(dialog, QStringLiteral("Before"));
        QVERIFY(!before.isNull());
        QVERIFY(shown(dialog, QStringLiteral("After")) != before);
        dialog.findChild<QSlider *>()->setValue(0);
        QTRY_COMPARE(shown(dialog, QStringLiteral("After")), before);
    }

    void theDetailIsWhereTheEdgesAre_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QRect>("drawn");
        QTest::newRow("a corner") << QSize(400, 400) << QRect(320, 320, 80, 80);
        QTest::newRow("the middle") << QSize(400, 400) << QRect(160, 160, 80, 80);
        QTest::newRow("smaller than the detail") << QSize(30, 20) << QRect(0, 0, 30, 20);
    }

    void theDetailIsWhereTheEdgesAre()
    {
        QFETCH(QSize, picture);
        QFETCH(QRect, drawn);
        QImage pixels(picture, QImage::Format_RGB32);
        pixels.fill(Qt::white);
        for (int y = drawn.top(); y <= drawn.bottom(); ++y) {
            for (int x = drawn.left(); x <= drawn.right(); x += 2)
                pixels.setPixel(x, y, qRgb(0, 0, 0));
        }
        const QRect detail = detailOf(pixels, { 100, 100 });
        QVERIFY(pixels.rect().contains(detail));
        QVERIFY(detail.contains(drawn));
    }
};

QTEST_MAIN(SharpenDialogTest)
#include "SharpenDialogTest.moc"
