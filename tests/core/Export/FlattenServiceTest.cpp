// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/FlattenService.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Preferences/Settings.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/FakeDesktop.h"

#include <QTest>

using namespace tessaly;

namespace {

std::optional<RasterImage> flattened(const Snapshot &snapshot, int threads = 2)
{
    AnnotationStore store(snapshot.image, Settings { QString() });
    store.restore(snapshot);
    return FlattenService::flatten(store, threads);
}

} // namespace

/// The scale at which a capture is burnt, and what its frame makes of its size.
class FlattenServiceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void scaleFollowsTheCapture_data()
    {
        QTest::addColumn<QSizeF>("points");
        QTest::addColumn<QSize>("expected");
        QTest::newRow("one pixel a point") << QSizeF(80, 60) << QSize(80, 60);
        QTest::newRow("two pixels a point") << QSizeF(40, 30) << QSize(80, 60);
        QTest::newRow("a fraction") << QSizeF(64, 48) << QSize(80, 60);
        QTest::newRow("fewer pixels than points is drawn at 1") << QSizeF(160, 120) << QSize(160, 120);
    }

    void scaleFollowsTheCapture()
    {
        QFETCH(QSizeF, points);
        const RasterImage capture { test::noisyCapture({ 80, 60 }).pixels, points };
        const auto picture = flattened({ .image = capture });
        QVERIFY(picture.has_value());
        QTEST(picture->pixels.size(), "expected");
        QCOMPARE(picture->pointSize, points);
        if (picture->pixels.size() == capture.pixels.size())
            QCOMPARE(picture->pixels, capture.pixels);
    }

    void framesCoverMarksToo()
    {
        Annotation line(AnnotationKind::Line, { 10, 15 }, { 30, 15 });
        Snapshot snapshot { .annotations = { line }, .image = { test::noisyCapture({ 80, 60 }).pixels, { 40, 30 } } };
        snapshot.frame = FrameStyle {};
        const auto picture = flattened(snapshot);
        QVERIFY(picture.has_value());
        const FrameLayout layout(snapshot.image.pointSize, snapshot.frame, 2);
        QCOMPARE(picture->pointSize, layout.canvasSize);
        QCOMPARE(picture->pixels.pixel(((layout.imageOrigin + QPointF(20, 15)) * 2).toPoint()), 0xffff3366u);
        QCOMPARE(flattened(snapshot, 1), picture);
    }

    void saysWhenThereIsNoPicture()
    {
        AnnotationStore empty(RasterImage {}, Settings { QString() });
        test::FakeAlerts alerts;
        QVERIFY(!FlattenService::flattenOrAlert(empty, alerts));
        QCOMPARE(alerts.shown, QStringList { QStringLiteral("Couldn't prepare the image") });
    }
};

QTEST_GUILESS_MAIN(FlattenServiceTest)
#include "FlattenServiceTest.moc"
