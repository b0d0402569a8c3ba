// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/LiveCanvas.h"
#include "core/Rendering/FrameComposition.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleMarks.h"

#include <QPainter>
#include <QRandomGenerator>

#include <array>
#include <limits>

using namespace tessaly;

namespace {

constexpr ImageEffects::NoiseSeed seed { 42 };

LiveScene sceneOf(const RasterImage &image, const QList<Annotation> &marks)
{
    LiveScene scene;
    scene.image = image;
    scene.annotations = marks;
    scene.noiseSeed = seed;
    return scene;
}

LiveView viewOf(QSize pixels, double scale, QPoint origin = {})
{
    return { pixels, scale, origin, QColor(90, 91, 92), Qt::white, QColor(226, 226, 230) };
}

RasterImage translucent(RasterImage image)
{
    image.pixels = image.pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image.pixels);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillRect(QRect(0, 0, image.pixels.width() / 2, image.pixels.height()), QColor(0, 0, 0, 150));
    return image;
}

/// The export of the same, as the editor would show it.
QImage exported(const LiveScene &scene, double scale)
{
    FrameComposition composition;
    composition.image = scene.image;
    composition.frame = scene.frame;
    composition.watermark = scene.watermark;
    composition.layout = FrameLayout(scene.image.pointSize, scene.frame, scene.image.pixelScale());
    composition.forEditor = true;
    composition.content = test::canvasOf(scene.image, scene.annotations);
    composition.content.editingID = scene.editingID;
    return composition.rendered(scale, 2);
}

QImage fromScratch(const LiveScene &scene, const LiveView &view)
{
    LiveCanvas canvas;
    canvas.update(scene, view);
    return canvas.picture().copy();
}

/// Empty when they are equal, else where they differ first.
QString difference(const QImage &one, const QImage &other)
{
    if (one == other)
        return {};
    if (one.size() != other.size())
        return QStringLiteral("sizes");
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                return QStringLiteral("(%1, %2): %3, not %4")
                    .arg(x)
                    .arg(y)
                    .arg(one.pixel(x, y), 8, 16)
                    .arg(other.pixel(x, y), 8, 16);
        }
    }
    return QStringLiteral("formats");
}

/// Changes to a list of marks as an editor makes them, and some that only undo makes.
class RandomEdits {
public:
    explicit RandomEdits(quint32 randomSeed) : m_random(randomSeed) { }

    void change(LiveScene &scene)
    {
        QList<Annotation> &marks = scene.annotations;
        const auto any = [&] { return qsizetype(m_random.bounded(int(marks.size()))); };
        switch (marks.isEmpty() ? 0 : m_random.bounded(9)) {
        case 0: {
            const QList<Annotation> sample = test::oneOfEachKind();
            marks.insert(marks.isEmpty() ? 0 : any(), sample[m_random.bounded(int(sample.size()))]);
            marks.last().id = QUuid::createUuid();
            break;
        }
        case 1:
            marks.removeAt(any());
            break;
        case 2:
            marks.move(any(), any());
            break;
        case 3:
            marks += marks[any()]; // a document may hold the same identity twice
            break;
        case 4:
            restyle(marks[any()]);
            break;
        case 5:
            scene.editingID = m_random.bounded(2) ? std::optional(marks[any()].id) : std::nullopt;
            break;
        default:
            move(marks[any()]);
        }
    }

private:
    void move(Annotation &mark)
    {
        const QPointF by(m_random.bounded(200) - 100 + m_random.generateDouble(), m_random.bounded(200) - 100);
        mark.p1 += by;
        mark.p2 += by;
        for (QPointF &point : mark.points)
            point += by;
    }

    void restyle(Annotation &mark)
    {
        static const QStringList colors { "#FF3366", "#2E7DF6", "#34C759" };
        mark.colorHex = colors[m_random.bounded(3)];
        mark.lineWidth = 1 + m_random.bounded(12);
        mark.obscure = enumNames<ObscureStyle>[size_t(m_random.bounded(4))].value;
        mark.spotDim = m_random.bounded(4) ? mark.spotDim : 0.3;
        mark.magnification = 1 + m_random.generateDouble() * 3;
        mark.filled = m_random.bounded(2);
    }

    QRandomGenerator m_random;
};

} // namespace

/// What the editor shows must be what is exported, however it came to be shown.
class LiveCanvasTest : public QObject {
    Q_OBJECT

    static void addScenes(double scale)
    {
        const QSize pixels = (test::sampleCanvas * scale).toSize();
        const RasterImage image = test::noisyCapture(pixels, scale);
        LiveScene plain = sceneOf(image, test::oneOfEachKind());
        const auto row = [&](const char *name, const LiveScene &scene) {
            QTest::addRow("%s at %g", name, scale) << scene << scale;
        };
        row("plain", plain);
        LiveScene marked = plain;
        marked.watermark = Watermark { .text = QStringLiteral("Tessaly 🎉") };
        row("watermark", marked);
        marked.watermark->position = WatermarkPosition::Tile;
        marked.frame = FrameStyle();
        row("gradient frame and tiles", marked);
        marked.frame->background = FrameBackgroundKind::Transparent;
        row("transparent frame", marked);
        marked.frame->background = FrameBackgroundKind::Solid;
        marked.frame->aspect = CropAspect::Square;
        marked.frame->cornerRadius = 80;
        marked.editingID = marked.annotations[2].id;
        row("solid square frame while editing", marked);
        marked.image = translucent(image);
        row("translucent capture on a frame", marked);
    }

private Q_SLOTS:
    void showsWhatIsExported_data()
    {
        test::columns<LiveScene, double>("scene", "scale");
        for (const double scale : { 1.0, 2.0, 1.25 })
            addScenes(scale);
    }

    void showsWhatIsExported()
    {
        QFETCH(LiveScene, scene);
        QFETCH(double, scale);
        const QImage whole = exported(scene, scale);
        QCOMPARE(difference(fromScratch(scene, viewOf(whole.size(), scale)), whole), QString());
        // A window on a part of it, with the surround on two sides.
        const QRect part(-20, 300, 700, whole.height() - 250);
        LiveCanvas canvas;
        canvas.update(scene, viewOf(part.size(), scale, -part.topLeft()));
        QImage expected(part.size(), QImage::Format_RGB32);
        expected.fill(QColor(90, 91, 92));
        QPainter(&expected).drawImage(-part.topLeft(), whole);
        QCOMPARE(difference(canvas.picture(), expected), QString());
    }

    void editsComeToTheSame_data()
    {
        test::columns<LiveScene, double>("scene", "scale");
        LiveScene plain = sceneOf(test::noisyCapture({ 960, 640 }), test::oneOfEachKind());
        test::row("plain", plain, 1.0);
        test::row("zoomed out", plain, 0.37);
        test::row("zoomed in", plain, 1.7);
        LiveScene framed = plain;
        framed.frame = FrameStyle();
        framed.watermark = Watermark { .text = QStringLiteral("T"), .position = WatermarkPosition::Tile };
        test::row("framed", framed, 1.0);
        framed.image = translucent(plain.image);
        test::row("translucent on a frame", framed, 0.8);
    }

    /// Also: only what is reported as changed has changed.
    void editsComeToTheSame()
    {
        QFETCH(LiveScene, scene);
        QFETCH(double, scale);
        LiveCanvas canvas;
        LiveView view = viewOf({ 900, 600 }, scale, { 10, -40 });
        canvas.update(scene, view);
        RandomEdits edits(7);
        QRandomGenerator random(3);
        for (int step = 0; step < 25; ++step) {
            const QImage before = canvas.picture().copy();
            edits.change(scene);
            if (step % 8 == 7)
                view.pixelOrigin += QPoint(random.bounded(300) - 150, random.bounded(300) - 150);
            const QRegion changed = canvas.update(scene, view);
            QCOMPARE(difference(canvas.picture(), fromScratch(scene, view)).prepend(QString::number(step)),
                QString::number(step));
            QImage untouched = canvas.picture().copy();
            QPainter painter(&untouched);
            painter.setClipRegion(changed);
            painter.drawImage(0, 0, before);
            painter.end();
            QCOMPARE(difference(untouched, before), QString());
        }
    }

    void dragsComeToTheSame_data()
    {
        test::columns<AnnotationKind, bool>("kind", "framed");
        for (const auto &kind : enumNames<AnnotationKind>)
            QTest::addRow("%s", kind.raw.data()) << kind.value << (kind.value == AnnotationKind::Text);
    }

    /// The marks below the one in hand are kept from frame to frame, also over a pause and when the view moves.
    void dragsComeToTheSame()
    {
        QFETCH(AnnotationKind, kind);
        QFETCH(bool, framed);
        LiveScene scene = sceneOf(test::noisyCapture({ 480, 320 }), test::oneOfEachKind() + test::manyMarks(40));
        if (framed)
            scene.frame = FrameStyle();
        qsizetype dragged = 20;
        while (scene.annotations[dragged].kind != kind)
            ++dragged;
        LiveCanvas canvas;
        LiveView view = viewOf({ 500, 340 }, 1);
        canvas.update(scene, view);
        for (int frame = 0; frame < 8; ++frame) {
            Annotation &mark = scene.annotations[dragged];
            const QPointF by = (frame == 0 ? QPointF(240, 160) - mark.p1 : QPointF()) + QPointF(7, -3.5);
            mark.p1 += by;
            mark.p2 += by;
            for (QPointF &point : mark.points)
                point += by;
            if (frame == 4)
                scene.annotations.first().lineWidth += 3; // below the one in hand
            if (frame == 6)
                view.pixelOrigin -= QPoint(13, 5);
            canvas.update(scene, view);
            QCOMPARE(difference(canvas.picture(), fromScratch(scene, view)), QString());
        }
    }

    void onlyChangesArePainted()
    {
        LiveScene scene = sceneOf(test::noisyCapture({ 400, 300 }), {});
        const LiveView view = viewOf({ 400, 300 }, 1);
        LiveCanvas canvas;
        QCOMPARE(canvas.update(scene, view), QRegion(0, 0, 400, 300));
        QVERIFY(canvas.update(scene, view).isEmpty());
        scene.annotations += Annotation(AnnotationKind::Rectangle, { 10, 10 }, { 390, 290 });
        const QRegion outline = canvas.update(scene, view);
        QVERIFY(outline.contains(QPoint(10, 150)) && !outline.contains(QPoint(200, 150)));
        QVERIFY(canvas.update(scene, view).isEmpty());
        scene.annotations += Annotation(AnnotationKind::Line, { 100, 100 }, { 120, 110 });
        QVERIFY(QRect(90, 90, 40, 30).contains(canvas.update(scene, view).boundingRect()));
        scene.annotations.removeFirst();
        QCOMPARE(canvas.update(scene, view), outline);
    }

    void survives_data()
    {
        test::columns<QSize, LiveView>("image", "view");
        const QPoint far(std::numeric_limits<int>::max(), std::numeric_limits<int>::min());
        test::row("no image", QSize(), viewOf({ 30, 20 }, 1));
        test::row("no window", QSize(30, 20), viewOf({ 0, 20 }, 1));
        test::row("scrolled away", QSize(30, 20), viewOf({ 30, 20 }, 1, far));
        test::row("no scale", QSize(30, 20), viewOf({ 30, 20 }, 0));
        test::row("infinite scale", QSize(30, 20), viewOf({ 30, 20 }, std::numeric_limits<double>::infinity()));
        test::row("tiny", QSize(30, 20), viewOf({ 30, 20 }, 1e-9));
        test::row("huge", QSize(30, 20), viewOf({ 30, 20 }, 1e5));
    }

    void survives()
    {
        QFETCH(QSize, image);
        QFETCH(LiveView, view);
        LiveScene scene = sceneOf(
            image.isEmpty() ? RasterImage() : test::noisyCapture(image), test::oneOfEachKind() + test::manyMarks(5));
        scene.annotations += Annotation(AnnotationKind::Arrow, { 1e300, 0 }, { 0, -1e9 });
        scene.annotations += Annotation(AnnotationKind::Ellipse, { 5, 5 }, { 5, 5 });
        scene.frame = FrameStyle();
        LiveCanvas canvas;
        canvas.update(scene, view);
        view.pixelOrigin += QPoint(-3, 3) * (view.pixelOrigin.isNull());
        canvas.update(scene, view);
        QCOMPARE(canvas.picture().isNull(), view.pixelSize.isEmpty());
        if (image.isEmpty())
            QCOMPARE(QColor(canvas.picture().pixel(0, 0)), view.surround);
    }

    void zoomedPixels()
    {
        const LiveScene scene = sceneOf(test::noisyCapture({ 40, 30 }), {});
        const QImage &pixels = scene.image.pixels;
        QCOMPARE(difference(fromScratch(scene, viewOf({ 160, 120 }, 4)),
                     pixels.scaled(160, 120, Qt::IgnoreAspectRatio, Qt::FastTransformation)),
            QString());
        const QImage half = fromScratch(scene, viewOf({ 20, 15 }, 0.5));
        const QImage larger = fromScratch(scene, viewOf({ 60, 45 }, 1.5));
        const auto near = [](QRgb one, int red, int green, int blue) {
            return std::abs(qRed(one) - red) <= 2 && std::abs(qGreen(one) - green) <= 2
                && std::abs(qBlue(one) - blue) <= 2;
        };
        const auto mean = [&](const QRect &area) {
            int red = 0, green = 0, blue = 0;
            for (int index = 0; index < area.width() * area.height(); ++index) {
                const QRgb pixel = pixels.pixel(area.left() + index % area.width(), area.top() + index / area.width());
                red += qRed(pixel), green += qGreen(pixel), blue += qBlue(pixel);
            }
            const int count = area.width() * area.height();
            return std::array { red / count, green / count, blue / count };
        };
        const auto [red, green, blue] = mean({ 14, 8, 2, 2 });
        QVERIFY(near(half.pixel(7, 4), red, green, blue));
        // The middle of three pixels lies on the middle of the second of two.
        const auto [middleRed, middleGreen, middleBlue] = mean({ 4, 6, 2, 2 });
        QVERIFY(near(larger.pixel(7, 10), middleRed, middleGreen, middleBlue));
    }
};

QTEST_MAIN(LiveCanvasTest)
#include "LiveCanvasTest.moc"
