// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationStore.h"
#include "HistoryDesk.h"
#include "tests/support/SamplePictures.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace tessaly;
using Begin = CaptureHistory::Begin;

namespace {

RasterImage picture(QSize size = { 40, 30 })
{
    return RasterImage::fromPixels(test::samplePicture(size, test::Transparency::None), 2);
}

Annotation note(const QString &text)
{
    Annotation mark(AnnotationKind::Text, { 3, 3 }, { 9, 9 });
    mark.text = text;
    return mark;
}

struct Desk : test::HistoryDesk {
    DirectWork work;

    void restart()
    {
        history.reset();
        history = make();
        history->load();
        history->flush();
    }
    QUuid record(const QString &title = "Mail", QSize size = { 40, 30 })
    {
        return HistoryDesk::record(picture(size), title);
    }
    TessalyDocument::Contents contents(const QUuid &id) const
    {
        auto read = TessalyDocument::contents(history->packagePath(id));
        return read ? std::move(*read) : TessalyDocument::Contents {};
    }
    QStringList titles() const
    {
        QStringList titles;
        for (const HistoryEntry &entry : history->entries())
            titles += entry.title;
        return titles;
    }
    /// A file where the folder shall be, so that nothing can be written.
    void breakFolder()
    {
        QVERIFY(QDir(path()).removeRecursively());
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    void repairFolder() { QVERIFY(QFile::remove(path())); }
};

void ignoreWarning()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Tessaly: no se pudo guardar en el historial: .+"));
}

} // namespace

/// The history as the program uses it, over a folder of its own.
class CaptureHistoryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aRecordedCaptureLiesOnTheDiskWhenItIsReported()
    {
        Desk desk;
        bool isThere = false;
        std::optional<QUuid> id;
        id = desk.history->record(picture(), "Mail", [&](const Outcome &outcome) {
            isThere = outcome && QFileInfo::exists(desk.history->packagePath(*id) + "/History.json")
                && QFileInfo::exists(desk.history->packagePath(*id) + "/QuickLook/Thumbnail.png");
        });
        desk.history->flush();
        QVERIFY(isThere);
        desk.record("Editor", { 20, 60 });
        desk.restart();
        QCOMPARE(desk.titles(), QStringList({ "Editor", "Mail" }));
        const HistoryEntry &entry = desk.history->entries()[1];
        QCOMPARE(entry.id, *id);
        QCOMPARE(entry.created, desk.clock.time.addSecs(-1));
        QCOMPARE(entry.modified, entry.created);
        QCOMPARE(QSize(entry.pixelWidth, entry.pixelHeight), QSize(40, 30));
        QCOMPARE(desk.contents(*id).image, picture());
    }

    void switchedOffNothingIsAddedAndNothingGoes()
    {
        Desk desk;
        AnnotationStore open(picture(), desk.settings);
        desk.history->track(open, "open", {}, Begin::Now);
        desk.record();
        QVERIFY(desk.history->keeps(open));
        QVERIFY(desk.settings.set(SettingKeys::historyEnabled, false));
        QVERIFY(!desk.history->keeps(open));
        open.append(note("late"));
        QVERIFY(!desk.history->record(picture(), "late"));
        AnnotationStore later(picture(), desk.settings);
        desk.history->track(later, "later", {}, Begin::Now);
        QVERIFY(!desk.history->keeps(later));
        desk.history->endTracking(open);
        desk.history->pruneExpired(desk.clock.time.addYears(1));
        desk.restart();
        QCOMPARE(desk.titles(), QStringList({ "Mail", "open" }));
        QVERIFY(desk.history->search("late").isEmpty());
    }

    void anEditorIsFollowedUntilItCloses()
    {
        Desk desk;
        AnnotationStore store(picture(), desk.settings);
        desk.history->track(store, "Untitled", {}, Begin::WithFirstChange);
        store.activate(Tool::Pen);
        desk.history->flush();
        QVERIFY(desk.history->entries().isEmpty());
        QVERIFY(!desk.history->entryOf(store));
        const QDateTime created = desk.clock.time;
        store.append(note("one"));
        desk.history->flush();
        QCOMPARE(desk.history->entries().size(), 1);
        const QUuid id = *desk.history->entryOf(store);

        desk.clock.time = desk.clock.time.addSecs(60);
        store.append(note("two"));
        store.setWatermark(Watermark { .text = "Confidential" }, Undo::Skip);
        store.setNextStampNumber(4);
        desk.history->endTracking(store);
        store.append(note("after the end"));
        desk.restart();
        const HistoryEntry &entry = desk.history->entries().first();
        QCOMPARE(desk.history->entries().size(), 1);
        QCOMPARE(entry.id, id);
        QCOMPARE(entry.created, created);
        QCOMPARE(entry.modified, desk.clock.time);
        const auto contents = desk.contents(id);
        QCOMPARE(contents.document.annotations, store.annotations().mid(0, 2));
        QCOMPARE(contents.document.watermark, store.watermark());
        QCOMPARE(contents.document.nextStampNumber, 4);
        QCOMPARE(desk.history->search("two confidential").size(), 1);
    }

    void aReopenedCaptureStaysTheSameEntry()
    {
        Desk desk;
        const QUuid id = desk.record("Mail");
        const HistoryEntry before = desk.history->entries().first();
        auto contents = desk.contents(id);
        AnnotationStore store(contents.image, desk.settings);
        desk.history->track(store, "Mail", id, Begin::WithFirstChange);
        QCOMPARE(desk.history->entryOf(store), id);
        QVERIFY(desk.history->keeps(store));
        desk.clock.time = desk.clock.time.addSecs(60);
        desk.history->flush();
        QCOMPARE(desk.history->entries(), QList { before });
        store.append(note("more"));
        store.resize(20, 15);
        desk.history->flush();
        QCOMPARE(desk.history->entries().size(), 1);
        const HistoryEntry &after = desk.history->entries().first();
        QCOMPARE(after.created, before.created);
        QCOMPARE(after.modified, desk.clock.time);
        QCOMPARE(after.pixelWidth, 20);
        contents = desk.contents(id);
        QCOMPARE(contents.image, store.image());
        QCOMPARE(contents.document.annotations, store.annotations());
    }

    void aDocumentOfTheUsersOwnIsNotKept()
    {
        Desk desk;
        AnnotationStore store(picture(), desk.settings);
        QVERIFY(!desk.history->keeps(store));
        QVERIFY(!desk.history->keepNow(store, desk.work));
        desk.history->track(store, "a", {}, Begin::Now);
        QVERIFY(desk.history->keepNow(store, desk.work));
        QCOMPARE(desk.history->entries().size(), 1);
        store.setDocumentURL(QUrl::fromLocalFile("/tmp/a.tessaly"));
        QVERIFY(!desk.history->keeps(store));
        QVERIFY(!desk.history->keepNow(store, desk.work));
    }

    void aFailureIsToldOnceAndTheCaptureGoesOn()
    {
        Desk desk;
        desk.record();
        desk.breakFolder();
        const QSignalSpy notices(desk.history.get(), &CaptureHistory::notice);
        QList<bool> outcomes;
        const auto recorded = [&](const Outcome &outcome) { outcomes += bool(outcome); };
        for (int i = 0; i < 2; ++i) {
            ignoreWarning();
            QVERIFY(desk.history->record(picture(), "lost", recorded));
            desk.history->flush();
        }
        QCOMPARE(outcomes, QList({ false, false }));
        QCOMPARE(notices.size(), 1);
        AnnotationStore store(picture(), desk.settings);
        desk.history->track(store, "open", {}, Begin::Now);
        QVERIFY(desk.history->keeps(store)); // as far as is known
        ignoreWarning();
        QVERIFY(!desk.history->keepNow(store, desk.work));
        QVERIFY(!desk.history->keeps(store));
        desk.repairFolder();
        QVERIFY(desk.history->keepNow(store, desk.work)); // although nothing has changed since
        QVERIFY(desk.titles().contains("open"));
        QCOMPARE(desk.contents(*desk.history->entryOf(store)).image, store.image());
    }

    void removedCapturesStayAway_data()
    {
        QTest::addColumn<bool>("all");
        QTest::newRow("one") << false;
        QTest::newRow("all") << true;
    }

    void removedCapturesStayAway()
    {
        QFETCH(bool, all);
        Desk desk;
        desk.record("other");
        desk.clock.time = desk.clock.time.addSecs(1);
        AnnotationStore store(picture(), desk.settings);
        desk.history->track(store, "open", {}, Begin::Now);
        AnnotationStore blank(picture(), desk.settings);
        desk.history->track(blank, "blank", {}, Begin::WithFirstChange);
        desk.history->flush();
        store.append(note("unwritten"));
        if (all)
            desk.history->empty();
        else
            desk.history->remove(*desk.history->entryOf(store));
        QVERIFY(!desk.history->keeps(store));
        QVERIFY(desk.history->keeps(blank));
        store.append(note("late"));
        blank.append(note("begun"));
        desk.history->endTracking(store);
        desk.restart();
        const QStringList expected = all ? QStringList() : QStringList("other");
        QCOMPARE(desk.titles(), QStringList("blank") + expected);
    }

    void theOldGoUnlessTheyAreOpen()
    {
        Desk desk;
        const QUuid id = desk.record("old and open");
        desk.record("old");
        AnnotationStore store(desk.contents(id).image, desk.settings);
        desk.history->track(store, "old and open", id, Begin::WithFirstChange);
        desk.clock.time = desk.clock.time.addDays(31);
        desk.record("new"); // every write gives up what has expired
        QCOMPARE(desk.titles(), QStringList({ "new", "old and open" }));
        desk.history->endTracking(store);
        QVERIFY(desk.settings.set(SettingKeys::historyRetentionDays, 365));
        desk.history->pruneExpired(desk.clock.time);
        desk.history->flush();
        QCOMPARE(desk.titles(), QStringList({ "new", "old and open" }));
        QVERIFY(desk.settings.set(SettingKeys::historyRetentionDays, 30));
        desk.history->pruneExpired(desk.clock.time);
        desk.history->flush();
        QCOMPARE(desk.titles(), QStringList("new"));
        QVERIFY(!QFileInfo::exists(desk.history->packagePath(id)));
    }

    void manyThatHaveExpiredHoldUpNoCapture()
    {
        Desk desk;
        for (int number = 0; number < 60; ++number)
            desk.history->record(picture(), "old");
        desk.history->flush();
        desk.clock.time = desk.clock.time.addDays(31);
        desk.history->pruneExpired(desk.clock.time);
        qsizetype left = 0;
        desk.history->record(picture(), "new", [&](const Outcome &) { left = desk.history->entries().size(); });
        desk.history->flush();
        QVERIFY2(left > 1, "the capture waited for all of them");
        QTRY_COMPARE(desk.titles(), QStringList("new"));
    }

    void aSecondProgramHandsItsCapturesOver()
    {
        Desk desk;
        desk.record("mine");
        auto second = desk.make();
        const QSignalSpy notices(second.get(), &CaptureHistory::notice);
        AnnotationStore store(picture(), desk.settings);
        second->track(store, "theirs", {}, Begin::Now);
        QVERIFY(second->keepNow(store, desk.work));
        store.append(note("more"));
        QVERIFY(second->keepNow(store, desk.work));
        QCOMPARE(notices.size(), 1);
        QTRY_COMPARE(desk.titles().size(), 2);
        const QUuid id = *second->entryOf(store);
        QTRY_COMPARE(desk.contents(id).document.annotations, store.annotations());
        // The second keeps the folder once the first has gone.
        desk.history.reset();
        store.append(note("alone"));
        second->endTracking(store);
        second->flush();
        desk.history = std::move(second);
        QCOMPARE(desk.contents(id).document.annotations, store.annotations());
        QCOMPARE(desk.history->search("alone").size(), 1);
    }

    void recordingNeedsNoLoading()
    {
        Desk desk;
        desk.record("before");
        desk.history.reset();
        desk.history = desk.make();
        const QSignalSpy loaded(desk.history.get(), &CaptureHistory::loaded);
        desk.record("after"); // and keeps what was there
        QCOMPARE(loaded.size(), 1);
        QCOMPARE(desk.titles(), QStringList({ "after", "before" }));
    }

    void aLostIndexIsRebuiltAndReported()
    {
        Desk desk;
        desk.record();
        desk.history.reset();
        QVERIFY(QFile::remove(desk.path() + "/index.json"));
        QTest::ignoreMessage(QtWarningMsg, "Tessaly: the history's index was rebuilt from its captures");
        desk.restart();
        QCOMPARE(desk.titles(), QStringList("Mail"));
    }
};

QTEST_MAIN(CaptureHistoryTest)
#include "CaptureHistoryTest.moc"
