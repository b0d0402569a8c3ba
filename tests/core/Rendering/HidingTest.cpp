// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/FrameComposition.h"
#include "core/Rendering/HiddenParts.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleMarks.h"

using namespace tessaly;

namespace {

constexpr QSize canvasPoints { 120, 80 };

Annotation obscured(ObscureStyle style, const QRectF &rect)
{
    Annotation mark(AnnotationKind::Pixelate, rect.topLeft(), rect.bottomRight());
    mark.obscure = style;
    return mark;
}

Annotation boxed(AnnotationKind kind, const QRectF &rect) { return { kind, rect.topLeft(), rect.bottomRight() }; }

/// What could carry hidden pixels elsewhere: loupes and softened areas over the edges of `hidden`, before and after it
/// in the list, with a text and a picture below it whose contents are part of the secret.
QList<Annotation> marksAround(const QRectF &hidden, ObscureStyle style, int secret)
{
    Annotation text = boxed(AnnotationKind::Text, hidden);
    text.text = QString::number(secret);
    text.fontSize = std::min(hidden.height(), hidden.width()) * 0.5;
    Annotation picture = boxed(AnnotationKind::ImageOverlay, hidden.adjusted(2, 2, -2, -2));
    picture.imageData = test::samplePng(QSize(8 + secret, 9));
    Annotation loupe = boxed(AnnotationKind::Magnifier, hidden.adjusted(-14, -10, 14, 10));
    Annotation wide = loupe;
    wide.magnification = 0.7;
    wide.magnifierRound = false;
    const QRectF around = hidden.adjusted(-9.5, -7, 9.5, 7);
    return { text, picture, obscured(ObscureStyle::Blur, around), loupe, obscured(style, hidden),
        obscured(ObscureStyle::Pixelate, around.translated(5, 3)), wide };
}

/// The capture with other pixels wherever `hidden` touches.
RasterImage changed(RasterImage capture, const QRectF &hidden, quint32 seed)
{
    const double scale = capture.pixels.width() / capture.pointSize.width();
    const QRectF pixels(hidden.topLeft() * scale, hidden.size() * scale);
    const RasterImage other = test::noisyCapture(capture.pixels.size(), 1, seed);
    for (int y = 0; y < capture.pixels.height(); ++y) {
        for (int x = 0; x < capture.pixels.width(); ++x) {
            if (pixels.intersects(QRectF(x, y, 1, 1)))
                capture.pixels.setPixel(x, y, other.pixels.pixel(x, y));
        }
    }
    return capture;
}

} // namespace

/// Whatever a solid or striped area covers leaves no trace in the finished picture.
class HidingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void coveredPixelsLeaveNoTrace_data()
    {
        test::columns<QRectF, ObscureStyle, double, double>("hidden", "style", "captureScale", "outputScale");
        const std::pair<const char *, QRectF> places[] { { "inside", { 40, 30, 30, 20 } },
            { "between pixels", { 40.3, 29.7, 30.5, 19.4 } }, { "over the left edge", { -10, 20.2, 40.4, 30 } },
            { "in the corner", { 90.6, 60.5, 29.4, 19.5 } } };
        for (const auto &[name, rect] : places) {
            for (const auto style : { ObscureStyle::Solid, ObscureStyle::Stripes }) {
                for (const auto &[from, to] :
                    { std::pair(1.0, 1.0), std::pair(2.0, 2.0), std::pair(2.0, 0.73), std::pair(1.0, 1.5) })
                    QTest::addRow("%s, %s, %g to %g", name, rawValue(style).data(), from, to)
                        << rect << style << from << to;
            }
        }
    }

    void coveredPixelsLeaveNoTrace()
    {
        QFETCH(QRectF, hidden);
        QFETCH(ObscureStyle, style);
        QFETCH(double, captureScale);
        QFETCH(double, outputScale);
        const RasterImage capture = test::noisyCapture(canvasPoints * captureScale, captureScale);
        QImage first, firstFramed;
        for (int secret = 0; secret < 3; ++secret) {
            const RasterImage variant = changed(capture, hidden, 100 + quint32(secret));
            FrameComposition composition;
            composition.image = variant;
            composition.content = test::canvasOf(variant, marksAround(hidden, style, secret));
            composition.layout = FrameLayout(variant.pointSize, std::nullopt, outputScale);
            const QImage plain = composition.rendered(outputScale, 2);
            composition.frame = FrameStyle();
            composition.layout = FrameLayout(variant.pointSize, composition.frame, outputScale);
            const QImage framed = composition.rendered(outputScale, 2);
            QVERIFY(!plain.isNull() && !framed.isNull());
            QVERIFY(secret == 0 || (plain == first && framed == firstFramed));
            first = plain;
            firstFramed = framed;
        }
    }

    /// The counterpart: the test would notice, and an area of another style promises nothing.
    void pixelsBesideItShow()
    {
        const QRectF hidden(40, 30, 30, 20);
        const RasterImage capture = test::noisyCapture(canvasPoints);
        const auto picture = [&](const QRectF &changedArea, ObscureStyle style) {
            const RasterImage variant = changed(capture, changedArea, 7);
            return test::drawn(variant, marksAround(hidden, style, 1));
        };
        QVERIFY(picture({}, ObscureStyle::Solid) != picture(hidden.adjusted(0, 0, 1, 0), ObscureStyle::Solid));
        QVERIFY(picture({}, ObscureStyle::Blur) != picture(hidden, ObscureStyle::Blur));
    }

    void whatReadsTheCaptureSeesTheCovers_data()
    {
        test::columns<Annotation, bool>("mark", "covers");
        const QRectF box(40, 30, 30, 20);
        const auto filled = [&](AnnotationKind kind) {
            Annotation mark = boxed(kind, box);
            mark.filled = true;
            return mark;
        };
        for (const auto &row : enumNames<ObscureStyle>)
            QTest::addRow("%s", row.raw.data()) << obscured(row.value, box) << true;
        test::row("filled rectangle", filled(AnnotationKind::Rectangle), true);
        test::row("filled ellipse", filled(AnnotationKind::Ellipse), true);
        test::row("outlined", boxed(AnnotationKind::Rectangle, box), false);
        test::row("highlighted", boxed(AnnotationKind::Highlight, box), false);
        test::row("an arrow", boxed(AnnotationKind::Arrow, box), false);
    }

    void whatReadsTheCaptureSeesTheCovers()
    {
        QFETCH(Annotation, mark);
        QFETCH(bool, covers);
        Annotation other = boxed(AnnotationKind::Line, { 0, 0, 120, 80 });
        const RasterImage capture = test::noisyCapture(canvasPoints * 2, 2);
        const auto seen = HiddenParts::painted(capture, { other, mark });
        QVERIFY(seen);
        QCOMPARE(seen->pointSize, capture.pointSize);
        QCOMPARE(seen->pixels.pixel(110, 80) != capture.pixels.pixel(110, 80), covers);
        QCOMPARE(seen->pixels.copy(0, 0, 78, 160), capture.pixels.copy(0, 0, 78, 160));
        QCOMPARE(HiddenParts::areas({ other, mark }), covers ? QList { mark.rect() } : QList<QRectF>());
    }

    void coversWholePixels()
    {
        const RasterImage capture = test::plainCapture({ 8, 8 });
        const QImage picture = test::drawn(capture, { obscured(ObscureStyle::Solid, { 1.9, 2.0, 3.2, 3.0 }) });
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 8; ++x)
                QCOMPARE(picture.pixel(x, y) == 0xff1c1c1e, x >= 1 && x <= 5 && y >= 2 && y <= 4);
        }
    }

    void stripesLieTwelveApart()
    {
        const QImage picture
            = test::drawn(test::plainCapture({ 100, 100 }), { obscured(ObscureStyle::Stripes, { 10, 10, 80, 80 }) });
        QCOMPARE(picture.pixel(9, 50), 0xffffffffu);
        int dark = 0, light = 0;
        for (int y = 10; y < 90; ++y) {
            for (int x = 10; x < 90; ++x) {
                dark += picture.pixel(x, y) == 0xff2e2e2e;
                light += picture.pixel(x, y) == 0xff575757;
            }
        }
        QVERIFY2(std::abs(dark - light) < 300, qPrintable(QStringLiteral("%1 %2").arg(dark).arg(light)));
        QVERIFY(dark + light > 4500);
    }

    void blackStandsInForAPicture_data()
    {
        test::columns<QRectF, bool>("rect", "withSource");
        test::row("no capture to sample", QRectF(2, 2, 4, 4), false);
        test::row("less than a point wide", QRectF(2, 2, 0.9, 4), true);
    }

    void blackStandsInForAPicture()
    {
        QFETCH(QRectF, rect);
        QFETCH(bool, withSource);
        const RasterImage capture = test::plainCapture({ 8, 8 });
        AnnotationsCanvas canvas = test::canvasOf(capture, { obscured(ObscureStyle::Blur, rect) });
        if (!withSource)
            canvas.source.reset();
        QImage picture = capture.pixels.copy();
        QPainter painter(&picture);
        canvas.draw(painter);
        painter.end();
        QCOMPARE(picture.pixel(2, 3), 0xff000000u);
        QCOMPARE(picture.pixel(7, 7), 0xffffffffu);
    }
};

QTEST_MAIN(HidingTest)
#include "HidingTest.moc"
