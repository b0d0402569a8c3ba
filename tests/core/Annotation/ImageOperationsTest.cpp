// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationGeometry.h"
#include "core/Annotation/AnnotationStore.h"
#include "core/Preferences/Settings.h"
#include "tests/support/SampleMarks.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>

using namespace tessaly;

namespace {

const QList<ImageEdit> turnsAndFlips { ImageEdit::rotate(true), ImageEdit::rotate(false), ImageEdit::flip(true),
    ImageEdit::flip(false) };

QByteArray nameOf(const ImageEdit &edit)
{
    return QByteArray("edit ") + QByteArray::number(static_cast<int>(edit.kind));
}

/// Every pixel has a colour of its own.
RasterImage numberedPicture()
{
    QImage image(40, 30, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 6, y * 8, 77));
    }
    return RasterImage::fromPixels(image, 2);
}

QRgb colorAt(const RasterImage &picture, QPointF point)
{
    const QPointF pixel = point * 2; // numberedPicture's pixels per point
    return picture.pixels.pixel(int(std::floor(pixel.x())), int(std::floor(pixel.y())));
}

/// The middle of a pixel, in points.
QPointF pixelMiddle(int x, int y) { return QPointF(x + 0.5, y + 0.5) / 2; }

} // namespace

/// Edits of the picture of an open capture: the marks go along, each is one step, and one that fails leaves no trace.
class ImageOperationsTest : public QObject {
    Q_OBJECT

    Settings m_settings { QString() };
    std::unique_ptr<AnnotationStore> m_store;

    void make(const ImageEdit &edit) { m_store->commit(edit, *applied(m_store->image(), edit)); }

private Q_SLOTS:
    void init() { m_store = std::make_unique<AnnotationStore>(numberedPicture(), m_settings); }

    void pointsStayOnTheirPixels_data()
    {
        QTest::addColumn<ImageEdit>("edit");
        for (const ImageEdit &edit : turnsAndFlips)
            QTest::newRow(nameOf(edit).constData()) << edit;
        QTest::newRow("crop at odd pixels") << ImageEdit::crop({ 1.6, 0.9, 12, 11.3 });
    }

    void pointsStayOnTheirPixels()
    {
        QFETCH(ImageEdit, edit);
        Annotation pen(AnnotationKind::Pen, pixelMiddle(10, 20), pixelMiddle(20, 11));
        pen.points = { pen.p1, pixelMiddle(12, 13), pen.p2 };
        Annotation tail(
            AnnotationKind::Stamp, pixelMiddle(15, 12) - QPointF(1, 1), pixelMiddle(15, 12) + QPointF(1, 1));
        tail.tailAngle = M_PI / 2; // straight down
        tail.tailLength = 3;
        m_store->setAnnotations({ pen, tail });
        const RasterImage before = m_store->image();
        make(edit);
        const auto sameColor
            = [&](QPointF old, QPointF now) { return colorAt(before, old) == colorAt(m_store->image(), now); };
        const Annotation &moved = m_store->annotations()[0];
        QVERIFY(sameColor(pen.p1, moved.p1) && sameColor(pen.p2, moved.p2));
        for (int index = 0; index < 3; ++index)
            QVERIFY(sameColor(pen.points[index], moved.points[index]));
        QVERIFY(sameColor(*tail.tailTip(), *m_store->annotations()[1].tailTip()));
    }

    void curvesBendRoundTheSameContent_data()
    {
        QTest::addColumn<ImageEdit>("edit");
        for (const ImageEdit &edit : turnsAndFlips)
            QTest::newRow(nameOf(edit).constData()) << edit;
        QTest::newRow("smaller") << ImageEdit::resize({ 20, 15 });
        QTest::newRow("stretched") << ImageEdit::resize({ 80, 15 });
    }

    void curvesBendRoundTheSameContent()
    {
        QFETCH(ImageEdit, edit);
        Annotation arrow(AnnotationKind::Arrow, { 2, 12 }, { 17, 7 });
        arrow.curved = true;
        arrow.curveHandle = { 0.4, -0.3 };
        Annotation apex(
            AnnotationKind::Line, AnnotationGeometry::handlePoint(arrow.p1, arrow.p2, arrow.curveHandle), {});
        m_store->setAnnotations({ arrow, apex });
        make(edit);
        const Annotation &moved = m_store->annotations()[0];
        const QPointF handle = AnnotationGeometry::handlePoint(moved.p1, moved.p2, moved.curveHandle);
        QCOMPARE(handle.x(), m_store->annotations()[1].p1.x());
        QCOMPARE(handle.y(), m_store->annotations()[1].p1.y());
    }

    void uprightMarksKeepTheirMiddle_data()
    {
        QTest::addColumn<ImageEdit>("edit");
        for (const ImageEdit &edit : turnsAndFlips)
            QTest::newRow(nameOf(edit).constData()) << edit;
    }

    void uprightMarksKeepTheirMiddle()
    {
        QFETCH(ImageEdit, edit);
        Annotation text(AnnotationKind::Text, { 1, 2 }, { 1, 2 });
        text.text = QStringLiteral("a longer line");
        text.fontSize = 4;
        const Annotation picture(AnnotationKind::ImageOverlay, { 3, 4 }, { 11, 8 });
        const Annotation middleOfText(AnnotationKind::Line, text.boundingRect().center(), picture.rect().center());
        m_store->setAnnotations({ text, picture, middleOfText });
        make(edit);
        const auto &moved = m_store->annotations();
        QCOMPARE(moved[0].boundingRect().center(), moved[2].p1);
        QCOMPARE(moved[0].boundingRect().size(), text.boundingRect().size());
        QCOMPARE(moved[1].rect().center(), moved[2].p2);
        QCOMPARE(moved[1].rect().size(), picture.rect().size()); // not distorted
    }

    void resizingScalesPointsAndTextButNoStrokes()
    {
        Annotation text(AnnotationKind::Text, { 4, 6 }, { 4, 6 });
        text.fontSize = 10;
        Annotation box(AnnotationKind::Rectangle, { 2, 2 }, { 10, 6 });
        box.lineWidth = 3;
        m_store->setAnnotations({ text, box });
        m_store->resize(20, 60);
        QCOMPARE(m_store->pixelDimensions(), QSize(20, 60));
        QCOMPARE(m_store->image().pointSize, QSizeF(10, 30));
        const auto &moved = m_store->annotations();
        QCOMPARE(moved[0].p1, QPointF(2, 12));
        QCOMPARE(moved[0].fontSize, 10.0); // as much narrower as taller
        QCOMPARE(moved[1].rect(), QRectF(1, 4, 4, 8));
        QCOMPARE(moved[1].lineWidth, 3.0);
        m_store->resize(10, 30);
        QCOMPARE(moved[0].fontSize, 5.0);
    }

    void fourQuarterTurnsAreNone()
    {
        m_store->setAnnotations(test::oneOfEachKind());
        const RasterImage picture = m_store->image();
        const QList<Annotation> marks = m_store->annotations();
        for (int turn = 0; turn < 4; ++turn)
            m_store->rotate(true);
        QCOMPARE(m_store->image(), picture);
        for (qsizetype index = 0; index < marks.size(); ++index) {
            const QRectF before = marks[index].boundingRect(), after = m_store->annotations()[index].boundingRect();
            QVERIFY(std::abs(before.left() - after.left()) < 1e-9 && std::abs(before.bottom() - after.bottom()) < 1e-9);
        }
    }

    void eachIsOneStepAndOneSignal_data()
    {
        QTest::addColumn<std::function<void(AnnotationStore &)>>("change");
        QTest::addColumn<int>("expected");
        using Change = std::function<void(AnnotationStore &)>;
        const auto row
            = [](const char *name, int expected, const Change &change) { QTest::newRow(name) << change << expected; };
        row("rotate", 1, [](AnnotationStore &store) { store.rotate(true); });
        row("flip left to right", 1, [](AnnotationStore &store) { store.flipHorizontal(); });
        row("flip upside down", 1, [](AnnotationStore &store) { store.flipVertical(); });
        row("resize", 1, [](AnnotationStore &store) { store.resize(9, 9); });
        row("sharpen", 1, [](AnnotationStore &store) { store.sharpen(0.5); });
        row("resize to its own size", 0, [](AnnotationStore &store) { store.resize(40, 30); });
        row("resize to nothing", 0, [](AnnotationStore &store) { store.resize(0, 30); });
        row("sharpen by nothing", 0, [](AnnotationStore &store) { store.sharpen(0); });
        row("a picture that was not made", 0,
            [](AnnotationStore &store) { store.commit(ImageEdit::sharpen(1), RasterImage()); });
        row("leave crop mode without being in it", 0, [](AnnotationStore &store) { store.cancelCrop(); });
    }

    void eachIsOneStepAndOneSignal()
    {
        using Change = std::function<void(AnnotationStore &)>;
        QFETCH(Change, change);
        QFETCH(int, expected);
        const Snapshot before = m_store->currentSnapshot();
        QSignalSpy changes(m_store.get(), &AnnotationStore::changed);
        change(*m_store);
        QCOMPARE(changes.size(), expected);
        QCOMPARE(m_store->canUndo(), expected == 1);
        QCOMPARE(m_store->hasUnsavedChanges(), expected == 1);
        QCOMPARE(m_store->currentSnapshot() == before, expected == 0);
        m_store->undo();
        QVERIFY(m_store->currentSnapshot() == before);
    }

    void croppingShiftsMarksAndEndsTheMode()
    {
        m_store->append({ AnnotationKind::Rectangle, { 1, 1 }, { 8, 8 } });
        m_store->activate(Tool::Crop);
        m_store->setCropRect({ 5, 4, 10, 9 });
        QSignalSpy changes(m_store.get(), &AnnotationStore::changed);
        QVERIFY(m_store->applyCrop());
        QCOMPARE(changes.size(), 1);
        QVERIFY(!m_store->isCropping() && m_store->tool() == Tool::Select);
        QCOMPARE(m_store->pixelDimensions(), QSize(20, 18));
        QCOMPARE(m_store->annotations().first().rect(), QRectF(-4, -3, 7, 7)); // partly off the canvas
    }

    void aCropThatHoldsNothingIsRefused()
    {
        m_store->activate(Tool::Crop);
        m_store->setCropRect({ 500, 4, 10, 9 });
        QSignalSpy changes(m_store.get(), &AnnotationStore::changed);
        const Outcome outcome = m_store->applyCrop();
        QVERIFY(!outcome);
        QCOMPARE(outcome.failure().message, QStringLiteral("Couldn't crop the selected region."));
        QVERIFY(changes.isEmpty() && m_store->isCropping() && !m_store->canUndo());
        m_store->cancelCrop();
        QVERIFY(!m_store->isCropping() && m_store->tool() == Tool::Select);
        QCOMPARE(m_store->pixelDimensions(), QSize(40, 30));
    }

    void theCropRectangleTakesARatioWhereItIs_data()
    {
        QTest::addColumn<QRectF>("start"); // in a picture of 400 by 300 points at two pixels each
        QTest::addColumn<CropAspect>("aspect");
        QTest::addColumn<QRectF>("result");
        const QRectF all(0, 0, 400, 300), part(100, 50, 160, 90);
        QTest::newRow("of the whole picture") << all << CropAspect::R16x9 << QRectF(0, 37.5, 400, 225);
        QTest::newRow("higher than the picture") << all << CropAspect::R9x16 << QRectF(115.5, 0, 169, 300);
        QTest::newRow("about its centre, as large") << part << CropAspect::Square << QRectF(120, 35, 120, 120);
        QTest::newRow("what it has already") << part << CropAspect::R16x9 << part;
        QTest::newRow("in a corner") << QRectF(0, 0, 160, 40) << CropAspect::Square << QRectF(40, 0, 80, 80);
        QTest::newRow("none") << part << CropAspect::Free << part;
    }

    void theCropRectangleTakesARatioWhereItIs()
    {
        QFETCH(QRectF, start);
        QFETCH(CropAspect, aspect);
        const Settings settings { QString() };
        AnnotationStore store(RasterImage { QImage(800, 600, QImage::Format_RGB32), { 400, 300 } }, settings);
        store.activate(Tool::Crop);
        store.setCropRect(start);
        store.setCropAspect(aspect);
        QTEST(store.cropRect(), "result");
        const QSizeF size = store.cropRect().size();
        for (const CropAspect other : { CropAspect::R16x9, CropAspect::R9x16, CropAspect::Square, aspect })
            store.setCropAspect(other); // trying others wears nothing off, as far as there is room
        QVERIFY(start == QRectF(0, 0, 400, 300) || aspect == CropAspect::Free
            || qAbs(store.cropRect().width() - size.width()) <= 1);
    }

    void sidesOfTheCropRectangle_data()
    {
        using Set = void (*)(AnnotationStore &);
        QTest::addColumn<Set>("set");
        QTest::addColumn<QRectF>("result"); // from 100, 50, 200 by 100
        const auto row = [](const char *name, Set set, const QRectF &result) { QTest::newRow(name) << set << result; };
        row("width", [](AnnotationStore &store) { store.setCropWidth(80); }, { 100, 50, 40, 100 });
        row("height", [](AnnotationStore &store) { store.setCropHeight(81); }, { 100, 50, 200, 40.5 });
        row("to the edge and beyond", [](AnnotationStore &store) { store.setCropWidth(5000); }, { 0, 50, 400, 100 });
        row("nothing", [](AnnotationStore &store) { store.setCropHeight(0); }, { 100, 50, 200, 0.5 });
        row("locked, width",
            [](AnnotationStore &store) {
                store.setCropLock(true);
                store.setCropWidth(100);
            },
            { 100, 50, 50, 25 });
        row("locked, height",
            [](AnnotationStore &store) {
                store.setCropLock(true);
                store.setCropHeight(5000);
            },
            { 0, 50, 400, 200 });
        row("constrained",
            [](AnnotationStore &store) {
                store.setCropAspect(CropAspect::Square);
                store.setCropRect({ 100, 50, 100, 100 });
                store.setCropHeight(40);
            },
            { 100, 50, 20, 20 });
    }

    void sidesOfTheCropRectangle()
    {
        using Set = void (*)(AnnotationStore &);
        QFETCH(Set, set);
        const Settings settings { QString() };
        AnnotationStore store(RasterImage { QImage(800, 600, QImage::Format_RGB32), { 400, 300 } }, settings);
        store.activate(Tool::Crop);
        store.setCropRect({ 100, 50, 200, 100 });
        set(store);
        QTEST(store.cropRect(), "result");
        QVERIFY(!store.canUndo());
    }

    void theCropRectangleFollowsThePicture()
    {
        m_store->activate(Tool::Crop);
        m_store->rotate(true);
        QCOMPARE(m_store->cropRect(), QRectF(0, 0, 15, 20));
        m_store->undo();
        QCOMPARE(m_store->cropRect(), QRectF(0, 0, 20, 15));
    }
};

QTEST_GUILESS_MAIN(ImageOperationsTest)
#include "ImageOperationsTest.moc"
