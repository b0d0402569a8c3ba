// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Frame/FrameLayout.h"
#include "tests/support/Rows.h"

using namespace tessaly;

/// Canvases and shadows against numbers worked out by hand.
class FrameLayoutTest : public QObject {
    Q_OBJECT

    static FrameStyle frameOf(double padding, CropAspect aspect = CropAspect::Free)
    {
        return { .padding = padding, .aspect = aspect };
    }

private Q_SLOTS:
    void laysOut_data()
    {
        test::columns<QSizeF, FrameStyle, double, QSizeF, QPointF>("image", "frame", "scale", "canvas", "origin");
        const QSizeF wide(1000, 500);
        const FrameStyle fresh;
        test::row("a new frame at 2", wide, fresh, 2.0, QSizeF(1113, 613), QPointF(56.5, 56.5));
        test::row("a new frame at 1", wide, fresh, 1.0, QSizeF(1113, 613), QPointF(56, 56));
        test::row("a scale below 1 is 1", wide, fresh, 0.25, QSizeF(1113, 613), QPointF(56, 56));
        test::row("no margin", wide, frameOf(0), 2.0, wide, QPointF(0, 0));
        test::row("square", wide, frameOf(0.08, CropAspect::Square), 2.0, QSizeF(1113, 1113), QPointF(56.5, 306.5));
        test::row("4:3", QSizeF(300, 300), frameOf(0, CropAspect::R4x3), 1.0, QSizeF(400, 300), QPointF(50, 0));
        test::row("3:4", QSizeF(300, 300), frameOf(0, CropAspect::R3x4), 1.0, QSizeF(300, 400), QPointF(0, 50));
        test::row("16:9", QSizeF(900, 900), frameOf(0, CropAspect::R16x9), 1.0, QSizeF(1600, 900), QPointF(350, 0));
        test::row("9:16", QSizeF(900, 900), frameOf(0, CropAspect::R9x16), 1.0, QSizeF(900, 1600), QPointF(0, 350));
        test::row("a ratio that it has", QSizeF(400, 300), frameOf(0, CropAspect::R4x3), 1.0, QSizeF(400, 300),
            QPointF(0, 0));
        test::row("a negative margin is none", wide, frameOf(-1), 1.0, wide, QPointF(0, 0));
        test::row("an endless margin is twice the sides", QSizeF(100, 100), frameOf(qInf()), 1.0, QSizeF(500, 500),
            QPointF(200, 200));
        test::row(
            "no number is a new frame's margin", wide, frameOf(qQNaN()), 2.0, QSizeF(1113, 613), QPointF(56.5, 56.5));
        test::row("no width", QSizeF(0, 500), fresh, 2.0, QSizeF(0, 500), QPointF(0, 0));
    }

    void laysOut()
    {
        QFETCH(QSizeF, image);
        QFETCH(FrameStyle, frame);
        QFETCH(double, scale);
        const FrameLayout layout(image, frame, scale);
        QTEST(layout.canvasSize, "canvas");
        QTEST(layout.imageOrigin, "origin");
        QCOMPARE(layout.imageSize, image);
    }

    void isThePictureWithoutAFrame()
    {
        const FrameLayout layout({ 300, 200 }, std::nullopt, 2);
        QCOMPARE(layout.canvasSize, QSizeF(300, 200));
        QCOMPARE(layout.imageOrigin, QPointF(0, 0));
    }

    void losesNoPixelToRounding()
    {
        for (const double scale : { 1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.7, 3.0 }) {
            for (int pixels = 1; pixels < 3000; ++pixels) {
                const double points = pixels / scale;
                const FrameLayout layout({ points, points }, frameOf(0), scale);
                QCOMPARE(std::lround(layout.canvasSize.width() * scale), pixels);
                QCOMPARE(layout.imageOrigin, QPointF(0, 0));
            }
        }
    }

    void shadowFollowsTheMargin_data()
    {
        test::columns<double, QPointF, double, double>("strength", "origin", "radius", "opacity");
        test::row("small margin", 0.5, QPointF(4, 300), 3.0, 0.3);
        test::row("middle", 1.0, QPointF(400, 100), 45.0, 0.45);
        test::row("large margin", 0.5, QPointF(400, 400), 30.0, 0.3);
        test::row("none", 0.0, QPointF(100, 100), 0.0, 0.15);
        test::row("too strong", 9.0, QPointF(100, 100), 45.0, 0.45);
        test::row("less than none", -1.0, QPointF(100, 100), 0.0, 0.15);
    }

    void shadowFollowsTheMargin()
    {
        QFETCH(double, strength);
        QFETCH(QPointF, origin);
        QFETCH(double, radius);
        FrameLayout layout;
        layout.imageOrigin = origin;
        const auto shadow = FrameLayout::shadowMetrics({ .shadow = strength }, layout);
        QCOMPARE(shadow.radius, radius);
        QCOMPARE(shadow.yOffset, 0.4 * radius);
        QTEST(shadow.opacity, "opacity");
    }
};

QTEST_GUILESS_MAIN(FrameLayoutTest)
#include "FrameLayoutTest.moc"
