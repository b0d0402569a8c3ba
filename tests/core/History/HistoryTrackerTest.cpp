// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryTracker.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Preferences/Settings.h"
#include "tests/support/SamplePictures.h"

#include <QSignalSpy>
#include <QTest>

using namespace tessaly;
using namespace std::chrono_literals;

namespace {

using Change = std::function<void(AnnotationStore &)>;

/// No state is written by itself within a test.
constexpr HistoryTracker::Pace never { .first = 1h, .settled = 1h, .longest = 1h, .retry = 1h };

RasterImage picture(unsigned seed = 1)
{
    return RasterImage::fromPixels(test::samplePicture({ 40, 30 }, test::Transparency::None, seed));
}

} // namespace

/// When an editor's capture is to be written.
class HistoryTrackerTest : public QObject {
    Q_OBJECT

    Settings m_settings { QString() };

private Q_SLOTS:
    void onlyTheDocumentCounts_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("counts");
        const auto row = [](const char *name, bool counts, Change change) { QTest::newRow(name) << change << counts; };
        row("mark", true, [](AnnotationStore &store) { store.append(Annotation(AnnotationKind::Line, {}, { 9, 9 })); });
        row("frame", true, [](AnnotationStore &store) { store.setFrame(FrameStyle {}, Undo::Skip); });
        row("watermark", true,
            [](AnnotationStore &store) { store.setWatermark(Watermark { .text = "me" }, Undo::Skip); });
        row("stamp number", true, [](AnnotationStore &store) { store.setNextStampNumber(5); });
        row("picture", true, [](AnnotationStore &store) { store.setImage(picture(2)); });
        row("picture's size", true, [](AnnotationStore &store) {
            store.setImage({ store.image().pixels, store.image().pointSize / 2 });
        });
        row("turned", true, [](AnnotationStore &store) { store.rotate(true); });
        row("selection", false, [](AnnotationStore &store) { store.setSelectedID(store.annotations().first().id); });
        row("tool", false, [](AnnotationStore &store) { store.activate(Tool::Pen); });
        row("an empty step", false, [](AnnotationStore &store) { store.beginChange(); });
        row("cropping", false, [](AnnotationStore &store) { store.beginCrop(); });
        row("done and undone", false, [](AnnotationStore &store) {
            store.beginChange();
            store.append(Annotation(AnnotationKind::Line, {}, { 9, 9 }));
            store.undo();
        });
        row("saved", false, [](AnnotationStore &store) { store.setHasUnsavedChanges(true); });
    }

    void onlyTheDocumentCounts()
    {
        QFETCH(Change, change);
        QFETCH(bool, counts);
        AnnotationStore store(picture(), m_settings);
        store.append(Annotation(AnnotationKind::Arrow, {}, { 20, 20 }));
        HistoryTracker tracker(store, { .title = "a" }, never);
        const QSignalSpy due(&tracker, &HistoryTracker::due);
        tracker.writeNow();
        QCOMPARE(due.size(), 0);
        change(store);
        tracker.writeNow();
        tracker.writeNow();
        QCOMPARE(due.size(), counts ? 1 : 0);
    }

    void changesComeTogether_data()
    {
        QTest::addColumn<bool>("isNew");
        QTest::addColumn<HistoryTracker::Pace>("pace");
        HistoryTracker::Pace first = never, settled = never, longest = never;
        first.first = settled.settled = longest.longest = 0ms;
        QTest::newRow("a new capture") << true << first;
        QTest::newRow("settled") << false << settled;
        QTest::newRow("long enough") << false << longest;
    }

    void changesComeTogether()
    {
        QFETCH(bool, isNew);
        QFETCH(HistoryTracker::Pace, pace);
        AnnotationStore store(picture(), m_settings);
        HistoryTracker tracker(store, { .title = "a", .isNew = isNew }, pace);
        QSignalSpy due(&tracker, &HistoryTracker::due);
        for (int i = 0; i < 5; ++i)
            store.append(Annotation(AnnotationKind::Line, {}, { 9, 9 }));
        QCOMPARE(due.size(), 0);
        QVERIFY(due.wait());
        QCOMPARE(due.size(), 1);
    }

    void aFailureIsTriedAgain()
    {
        AnnotationStore store(picture(), m_settings);
        HistoryTracker::Pace pace = never;
        pace.retry = 0ms;
        HistoryTracker tracker(store, { .title = "a", .isNew = true }, pace);
        QSignalSpy due(&tracker, &HistoryTracker::due);
        tracker.writeNow();
        tracker.written(Failure { "full" });
        QVERIFY(tracker.hasFailed());
        QVERIFY(due.wait());
        tracker.written(Done {});
        QVERIFY(!tracker.hasFailed());
        tracker.writeNow();
        QCOMPARE(due.size(), 2);
    }

    void theNewestStateTakesThePlaceOfOneThatWaits()
    {
        WaitingWrite waiting;
        QVERIFY(waiting.put({ .title = "a" }));
        QVERIFY(!waiting.put({ .title = "b" }));
        QCOMPARE(waiting.take()->title, "b");
        QVERIFY(!waiting.take());
        QVERIFY(waiting.put({ .title = "c" }));
    }
};

QTEST_GUILESS_MAIN(HistoryTrackerTest)
#include "HistoryTrackerTest.moc"
