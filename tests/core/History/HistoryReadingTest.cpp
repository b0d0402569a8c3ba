// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationStore.h"
#include "HistoryDesk.h"
#include "tests/support/SamplePictures.h"

#include <QTest>

using namespace tessaly;

namespace {

/// Keeps what it is asked until the test answers.
struct Reader {
    struct Request {
        QSize size;
        std::function<void(std::optional<QString>)> answer;
    };
    QList<Request> open;
    QList<int> widths; ///< of all pictures that were asked for

    CaptureHistory::ReadText function()
    {
        return [this](const RasterImage &image, auto answer) {
            widths += image.pixelSize().width();
            open += Request { image.pixelSize(), std::move(answer) };
        };
    }
};

/// Told apart by its width.
RasterImage picture(int width)
{
    return RasterImage::fromPixels(test::samplePicture({ width, 30 }, test::Transparency::None));
}

} // namespace

/// Which pictures are read, when, and what becomes of the answers.
class HistoryReadingTest : public QObject {
    Q_OBJECT

    struct Desk : test::HistoryDesk {
        Reader reader;

        void restart()
        {
            history.reset();
            reader.open.clear();
            reader.widths.clear();
            history = make();
        }
        QUuid record(int width) { return HistoryDesk::record(picture(width), "a"); }
        void answer(const std::optional<QString> &text)
        {
            reader.open.takeFirst().answer(text);
            history->flush();
        }
        QStringList markers() const { return QDir(path()).entryList({ "*.recognizing" }); }
        std::optional<QString> textOf(const QUuid &id) const
        {
            const auto &entries = history->entries();
            const auto entry = std::ranges::find(entries, id, &HistoryEntry::id);
            return entry == entries.end() ? std::nullopt : entry->recognizedText;
        }
    };

private Q_SLOTS:
    void aRecordedPictureIsRead()
    {
        Desk desk;
        desk.history->setTextRecognizer(desk.reader.function());
        const QUuid id = desk.record(40);
        QCOMPARE(desk.reader.open.size(), 1);
        QCOMPARE(desk.reader.open.first().size, QSize(40, 30));
        QCOMPARE(desk.markers(), QStringList(id.toString(QUuid::WithoutBraces) + ".recognizing"));
        desk.answer("Quarterly report");
        QCOMPARE(desk.textOf(id), "Quarterly report");
        QVERIFY(desk.markers().isEmpty());
        QCOMPARE(desk.history->search("quarterly").size(), 1);
        QVERIFY(desk.history->search("yearly").isEmpty());
        desk.restart();
        desk.history->load();
        desk.history->flush();
        QCOMPARE(desk.textOf(id), "Quarterly report");
    }

    void oneIsReadAtATimeAndTheNewestFirst()
    {
        Desk desk;
        for (const int width : { 10, 20, 30 })
            desk.record(width);
        desk.history->setTextRecognizer(desk.reader.function());
        desk.history->flush();
        QCOMPARE(desk.reader.widths, QList { 30 });
        desk.record(40); // while the other is being read
        QCOMPARE(desk.reader.widths, QList { 30 });
        for (int i = 0; i < 4; ++i)
            desk.answer("");
        QCOMPARE(desk.reader.widths, (QList { 30, 40, 20, 10 }));
        QVERIFY(desk.reader.open.isEmpty());
        desk.restart(); // an empty text is one
        desk.history->setTextRecognizer(desk.reader.function());
        desk.history->load();
        desk.history->flush();
        QVERIFY(desk.reader.open.isEmpty());
    }

    void whatWasInterruptedIsReadAgain()
    {
        Desk desk;
        desk.history->setTextRecognizer(desk.reader.function());
        const QUuid id = desk.record(40);
        desk.answer("old text");
        QVERIFY(HistoryStore { desk.folder.filePath("History") }.markRecognizing(id)); // as by a picture that changed
        desk.restart();
        desk.history->setTextRecognizer(desk.reader.function());
        desk.history->load();
        desk.history->flush();
        QCOMPARE(desk.reader.widths, QList { 40 });
        QCOMPARE(desk.textOf(id), "old text");
        desk.answer("new text");
        QCOMPARE(desk.textOf(id), "new text");
        QVERIFY(desk.markers().isEmpty());
    }

    void aFailureIsNotTriedTwiceInOneRun()
    {
        Desk desk;
        desk.history->setTextRecognizer(desk.reader.function());
        const QUuid id = desk.record(40);
        desk.answer(std::nullopt);
        desk.record(20);
        desk.answer("two");
        QCOMPARE(desk.reader.widths, (QList { 40, 20 }));
        QCOMPARE(desk.textOf(id), std::nullopt);
        QVERIFY(desk.markers().isEmpty());
    }

    void theAnswerForARemovedCaptureIsDropped()
    {
        Desk desk;
        desk.history->setTextRecognizer(desk.reader.function());
        desk.history->remove(desk.record(40));
        desk.answer("gone");
        QVERIFY(desk.history->entries().isEmpty());
        QVERIFY(desk.markers().isEmpty());
    }

    void withoutARecognizerThereAreNoMarkers()
    {
        Desk desk;
        const QUuid id = desk.record(40);
        QVERIFY(desk.markers().isEmpty());
        QCOMPARE(desk.textOf(id), std::nullopt);
    }

    void aChangedPictureIsReadAgainAndChangedMarksAreNot()
    {
        Desk desk;
        desk.history->setTextRecognizer(desk.reader.function());
        AnnotationStore store(picture(40), desk.settings);
        desk.history->track(store, "a", {}, CaptureHistory::Begin::Now);
        desk.history->flush();
        const QUuid id = *desk.history->entryOf(store);
        desk.answer("Quarterly report");
        Annotation note(AnnotationKind::Text, {}, { 9, 9 });
        note.text = "urgent";
        store.append(note);
        desk.history->flush();
        QVERIFY(desk.reader.open.isEmpty());
        QCOMPARE(desk.history->search("urgent quarterly").size(), 1);

        store.rotate(true);
        desk.history->flush();
        QCOMPARE(desk.reader.widths, (QList { 40, 30 }));
        QCOMPARE(desk.markers().size(), 1);
        store.flipVertical(); // while it is being read
        desk.history->flush();
        desk.answer("stale");
        QVERIFY(desk.history->search("stale").isEmpty());
        desk.answer("new words");
        QVERIFY(desk.reader.open.isEmpty());
        QVERIFY(desk.markers().isEmpty());
        QCOMPARE(desk.history->search("new words urgent").size(), 1);
        QVERIFY(desk.history->search("quarterly").isEmpty());

        store.setAnnotations({});
        desk.history->flush();
        QCOMPARE(desk.textOf(id), "new words");
        QCOMPARE(desk.reader.widths.size(), 3);
    }
};

QTEST_MAIN(HistoryReadingTest)
#include "HistoryReadingTest.moc"
