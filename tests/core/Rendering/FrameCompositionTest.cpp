// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/FrameComposition.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleMarks.h"

using namespace tessaly;

namespace {

FrameComposition compositionOf(const RasterImage &image, const std::optional<FrameStyle> &frame, double scale = 1)
{
    FrameComposition composition;
    composition.image = image;
    composition.frame = frame;
    composition.layout = FrameLayout(image.pointSize, frame, scale);
    composition.content = test::canvasOf(image, {});
    return composition;
}

FrameStyle plainFrame(FrameBackgroundKind background = FrameBackgroundKind::Solid)
{
    return { .background = background, .padding = 0.2, .cornerRadius = 0, .shadow = 0 };
}

/// The box of all pixels that `two` changes.
QRectF changedBox(const QImage &one, const QImage &two)
{
    QRect box;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != two.pixel(x, y))
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

} // namespace

/// Captures on frames, with watermarks.
class FrameCompositionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPlainCaptureStaysAsItIs_data()
    {
        test::columns<double, bool>("scale", "translucent");
        test::row("1x", 1.0, false);
        test::row("2x with alpha", 2.0, true);
        test::row("1.25x", 1.25, false);
    }

    void aPlainCaptureStaysAsItIs()
    {
        QFETCH(double, scale);
        QFETCH(bool, translucent);
        RasterImage capture = test::noisyCapture({ 61, 33 }, scale);
        if (translucent) {
            capture.pixels = capture.pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied);
            capture.pixels.setPixel(3, 3, 0x40102030);
            capture.pixels.setPixel(60, 32, 0);
        }
        FrameComposition composition = compositionOf(capture, std::nullopt, scale);
        composition.watermark = Watermark { .text = "  " };
        QCOMPARE(composition.rendered(capture.pixelScale(), 2), capture.pixels);
    }

    void layersLieWhereTheLayoutSays()
    {
        const RasterImage capture = test::noisyCapture({ 200, 100 }, 2);
        FrameStyle style = plainFrame(FrameBackgroundKind::Gradient);
        style.gradientColors = { "#FF0000", "#00FF00", "#0000FF" };
        const FrameComposition composition = compositionOf(capture, style, 2);
        const QImage picture = composition.rendered(2, 2);
        QCOMPARE(picture.size(), (composition.layout.canvasSize * 2).toSize());
        QCOMPARE(picture.copy(QRect((composition.layout.imageOrigin * 2).toPoint(), QSize(200, 100))), capture.pixels);
        const auto near = [&](QPoint at, QColor color) {
            const QColor pixel = picture.pixelColor(at);
            return std::abs(pixel.red() - color.red()) + std::abs(pixel.green() - color.green())
                + std::abs(pixel.blue() - color.blue())
                < 24;
        };
        QVERIFY(near({ 0, 0 }, Qt::red) && near({ picture.width() - 1, picture.height() - 1 }, Qt::blue));
        // Half-way across the diagonal lies the middle stop, here below the picture's left half.
        const double w = picture.width(), h = picture.height(), y = h - 4;
        QVERIFY(near(QPointF(w / 2 - (y - h / 2) * h / w, y).toPoint(), QColor(0, 255, 0)));
    }

    void cornersAreRoundAndThrowAShadow()
    {
        const RasterImage capture = test::plainCapture({ 120, 80 }, Qt::red, 2);
        FrameStyle style = plainFrame();
        style.cornerRadius = 16;
        style.shadow = 1;
        FrameComposition composition = compositionOf(capture, style, 2);
        const QImage picture = composition.rendered(2, 2);
        const QPoint origin = (composition.layout.imageOrigin * 2).toPoint();
        QVERIFY(picture.pixelColor(origin).red() < 250 && picture.pixelColor(origin).green() > 100);
        QCOMPARE(picture.pixelColor(origin + QPoint(120, 1)), QColor(Qt::red));
        // The shadow is darker below than above, and fades out towards the canvas's edge.
        const int above = qGreen(picture.pixel(origin + QPoint(120, -4))),
                  below = qGreen(picture.pixel(origin + QPoint(120, 164)));
        QVERIFY2(
            below < above && above < 250 && below > 130, qPrintable(QStringLiteral("%1 %2").arg(above).arg(below)));
        QVERIFY(qGreen(picture.pixel(120, 0)) > above);

        // A picture that is transparent in part throws the shadow of what is there: a row of it is like the whole.
        RasterImage clear { capture.pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied), capture.pointSize };
        composition.image = clear;
        composition.content = test::canvasOf(clear, {});
        const QImage same = composition.rendered(2, 2);
        for (int y = 0; y < same.height(); y += 3) {
            for (int x = 0; x < same.width(); x += 3)
                QVERIFY(std::abs(qGreen(same.pixel(x, y)) - qGreen(picture.pixel(x, y))) <= 3);
        }
        QCOMPARE(composition.rendered(2, 1), same);
    }

    void transparencyStaysInFilesAndShowsInTheEditor()
    {
        FrameComposition composition
            = compositionOf(test::plainCapture({ 80, 80 }), plainFrame(FrameBackgroundKind::Transparent));
        const QImage file = composition.rendered(1, 2);
        QCOMPARE(file.pixel(1, 1), 0u);
        composition.forEditor = true;
        const QImage editor = composition.rendered(1, 2);
        QVERIFY(!editor.hasAlphaChannel());
        QCOMPARE(editor.pixel(1, 1), editor.pixel(9, 9));
        QVERIFY(editor.pixel(1, 1) != editor.pixel(9, 1));
        composition.frame->background = FrameBackgroundKind::Solid;
        QCOMPARE(composition.rendered(1, 2).pixel(1, 1), composition.rendered(1, 2).pixel(9, 1));
    }

    void watermarksKeepTheirInset_data()
    {
        test::columns<WatermarkPosition, WatermarkKind>("position", "kind");
        for (const auto &position : enumNames<WatermarkPosition>) {
            for (const auto &kind : enumNames<WatermarkKind>)
                QTest::addRow("%s %s", position.raw.data(), kind.raw.data()) << position.value << kind.value;
        }
    }

    void watermarksKeepTheirInset()
    {
        QFETCH(WatermarkPosition, position);
        QFETCH(WatermarkKind, kind);
        FrameComposition composition = compositionOf(test::plainCapture({ 600, 400 }, Qt::black), std::nullopt);
        const QImage bare = composition.rendered(1, 2);
        composition.watermark = Watermark {
            .kind = kind, .text = "HHH", .imageData = test::samplePng({ 40, 20 }), .position = position, .opacity = 1
        };
        const QImage marked = composition.rendered(1, 2);
        QCOMPARE(composition.rendered(1, 1), marked);
        const QRectF box = changedBox(bare, marked);
        if (position == WatermarkPosition::Tile) {
            QVERIFY(box.width() > 560 && box.height() > 360);
            return;
        }
        const QRectF inset(16, 16, 568, 368); // 4 % of the shorter side
        const QPointF unit = anchor(position);
        const auto at = [unit](const QRectF &rect) {
            return QPointF(rect.left() + unit.x() * rect.width(), rect.top() + unit.y() * rect.height());
        };
        const QPointF off = at(box) - at(inset);
        QVERIFY2(std::abs(off.x()) <= 1.5 && std::abs(off.y()) <= 1.5,
            qPrintable(QString::asprintf("%g %g", off.x(), off.y())));
        if (kind == WatermarkKind::Image)
            QVERIFY(std::abs(box.width() - 80) <= 1); // a fifth of the shorter side
    }

    void smallWatermarksStayReadable()
    {
        FrameComposition composition = compositionOf(test::plainCapture({ 60, 40 }, Qt::black, 4), std::nullopt, 4);
        composition.watermark = Watermark { .text = "H", .opacity = 1, .size = 0.001 };
        const QRectF box = changedBox(composition.image.pixels, composition.rendered(4, 2));
        QVERIFY2(
            box.height() > 15 && box.height() < 20, qPrintable(QString::number(box.height()))); // capitals of 6 points
        composition.watermark->opacity = 0;
        QCOMPARE(composition.rendered(4, 2), composition.image.pixels);
    }

    void absurdStylesAreTamed()
    {
        FrameStyle style { .padding = std::nan(""), .cornerRadius = 1e300, .shadow = -7 };
        FrameComposition composition = compositionOf(test::plainCapture({ 40, 30 }), style);
        composition.watermark
            = Watermark { .text = "H", .position = WatermarkPosition::Tile, .opacity = 7, .size = 1e300 };
        QVERIFY(!composition.rendered(1, 2).isNull());
    }

    void absurdFramesGiveNoPicture_data()
    {
        test::columns<double, double>("width", "scale");
        test::row("a canvas beyond all memory", 1e9, 1.0);
        test::row("no number", std::nan(""), 1.0);
        test::row("scale of 0", 60.0, 0.0);
        test::row("a scale beyond all memory", 60.0, 1e9);
    }

    void absurdFramesGiveNoPicture()
    {
        QFETCH(double, width);
        QFETCH(double, scale);
        FrameComposition composition = compositionOf(test::plainCapture({ 40, 30 }), FrameStyle());
        composition.layout.canvasSize.setWidth(width);
        QVERIFY(composition.rendered(scale, 2).isNull());
    }
};

QTEST_MAIN(FrameCompositionTest)
#include "FrameCompositionTest.moc"
