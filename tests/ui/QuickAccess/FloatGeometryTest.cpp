// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/Settings.h"
#include "tests/support/Rows.h"
#include "ui/QuickAccess/PinGeometry.h"
#include "ui/QuickAccess/QuickAccessStack.h"
#include "ui/QuickAccess/ThumbnailPicture.h"

using namespace tessaly;
using QuickAccessStack::Corner;

Q_DECLARE_METATYPE(QuickAccessStack::Corner)

class FloatGeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thumbnailsStack_data()
    {
        test::columns<Corner, QRect, QList<QSize>, QList<QRect>>("corner", "area", "sizes", "places");
        const QRect area(0, 0, 1000, 800);
        const QSize one(200, 120), other(200, 150);
        test::row("right", Corner::BottomRight, area, QList { one, other },
            QList { QRect(784, 664, 200, 120), QRect(784, 504, 200, 150) });
        test::row("left", Corner::BottomLeft, area, QList { one, other },
            QList { QRect(16, 664, 200, 120), QRect(16, 504, 200, 150) });
        test::row("a screen left of the first, with a panel below", Corner::BottomRight, QRect(-1280, 100, 1280, 680),
            QList { one }, QList { QRect(-216, 644, 200, 120) });
        test::row("a low screen has a second column", Corner::BottomRight, QRect(0, 0, 1000, 300),
            QList { one, one, other },
            QList { QRect(784, 164, 200, 120), QRect(784, 34, 200, 120), QRect(574, 134, 200, 150) });
        test::row("which is inward at the left, too", Corner::BottomLeft, QRect(0, 0, 1000, 170), QList { one, one },
            QList { QRect(16, 34, 200, 120), QRect(226, 34, 200, 120) });
        test::row("as many as fit", Corner::BottomRight, QRect(0, 0, 400, 300), QList { one, one, other },
            QList { QRect(184, 164, 200, 120), QRect(184, 34, 200, 120) });
    }

    void thumbnailsStack()
    {
        QFETCH(Corner, corner);
        QFETCH(QRect, area);
        QFETCH(QList<QSize>, sizes);
        QTEST(QuickAccessStack::places(sizes, area, corner), "places");
    }

    void anUnknownCornerIsTheRightOne()
    {
        Settings settings { QString() };
        QCOMPARE(QuickAccessStack::chosenCorner(settings), Corner::BottomRight);
        QVERIFY(settings.set(SettingKeys::quickAccessCorner, "bottomLeft"));
        QCOMPARE(QuickAccessStack::chosenCorner(settings), Corner::BottomLeft);
        QVERIFY(settings.set(SettingKeys::quickAccessCorner, "top"));
        QCOMPARE(QuickAccessStack::chosenCorner(settings), Corner::BottomRight);
    }

    void aPictureFitsItsFrame_data()
    {
        test::columns<QSize, double, double, QSize, QSize>("pixels", "pictureScale", "screenScale", "source", "target");
        test::row("large", QSize(3840, 2160), 1.0, 1.0, QSize(3840, 2160), QSize(200, 113));
        test::row("large at 2x", QSize(3840, 2160), 2.0, 2.0, QSize(3840, 2160), QSize(400, 225));
        test::row("small is not enlarged", QSize(30, 20), 1.0, 1.0, QSize(30, 20), QSize(30, 20));
        test::row("small has its points", QSize(30, 20), 1.0, 2.0, QSize(30, 20), QSize(60, 40));
        test::row("one pixel", QSize(1, 1), 1.0, 1.0, QSize(1, 1), QSize(1, 1));
        test::row("very long", QSize(400, 20000), 1.0, 1.0, QSize(400, 1200), QSize(40, 120));
        test::row("very wide", QSize(4000, 10), 1.0, 1.0, QSize(200, 10), QSize(200, 10));
    }

    void aPictureFitsItsFrame()
    {
        QFETCH(QSize, pixels);
        QFETCH(double, pictureScale);
        QFETCH(double, screenScale);
        QFETCH(QSize, source);
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(Qt::red);
        const RasterImage picture = RasterImage::fromPixels(image, pictureScale);
        const QSize frame(200, 120);
        const ThumbnailFit fit = ThumbnailFit::of(picture, frame, screenScale);
        QCOMPARE(fit.pixelSource, QRect(QPoint(), source));
        QTEST(fit.pixelTarget, "target");
        const QImage drawn = thumbnailPicture(picture, frame, screenScale, Qt::blue);
        QCOMPARE(drawn.size(), frame * screenScale);
        QCOMPARE(drawn.pixelColor(drawn.rect().center()), QColor(Qt::red));
    }

    void aPinBeginsNearby_data()
    {
        test::columns<QSize, std::optional<QRect>, QRect>("size", "near", "place");
        test::row("in the middle", QSize(400, 300), std::optional<QRect>(), QRect(300, 250, 400, 300));
        test::row(
            "about a thumbnail", QSize(100, 80), std::optional(QRect(500, 500, 200, 120)), QRect(549, 519, 100, 80));
        test::row(
            "inside the area", QSize(400, 300), std::optional(QRect(784, 664, 200, 120)), QRect(600, 500, 400, 300));
    }

    void aPinBeginsNearby()
    {
        QFETCH(QSize, size);
        QFETCH(std::optional<QRect>, near);
        QFETCH(QRect, place);
        const QRect begun = PinGeometry::initialPlace(size, near, QRect(0, 0, 1000, 800));
        QCOMPARE(begun.size(), place.size());
        QVERIFY((begun.topLeft() - place.topLeft()).manhattanLength() <= 2); // a middle may lie between points
    }

    void pinsDoNotHideEachOther()
    {
        const QRect area(100, 0, 460, 360);
        QList<QPoint> taken;
        for (int pin = 0; pin < 4; ++pin)
            taken += PinGeometry::cascaded(QRect(130, 30, 400, 300), taken, area).topLeft();
        QCOMPARE(taken, (QList<QPoint> { { 130, 30 }, { 154, 54 }, { 106, 6 }, { 130, 30 } }));
        QCOMPARE(PinGeometry::cascaded(area, { area.topLeft() }, area), area);
    }

    void zoomHasLimits_data()
    {
        test::columns<double, QSizeF, double>("zoom", "pointSize", "allowed");
        test::row("free", 0.5, QSizeF(400, 300), 0.5);
        test::row("48 points at least", 0.01, QSizeF(480, 300), 0.1);
        test::row("no larger than the screen", 9.0, QSizeF(500, 100), 2.0);
        test::row("no more than sixteenfold", 99.0, QSizeF(10, 10), 16.0);
        test::row("a small picture has its own size", 0.1, QSizeF(10, 10), 1.0);
        test::row("so has one larger than the screen", 3.0, QSizeF(4000, 10), 1.0);
    }

    void zoomHasLimits()
    {
        QFETCH(double, zoom);
        QFETCH(QSizeF, pointSize);
        QTEST(PinGeometry::clampedZoom(zoom, pointSize, QSize(1000, 800)), "allowed");
    }
};

QTEST_GUILESS_MAIN(FloatGeometryTest)
#include "FloatGeometryTest.moc"
