// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationStore.h"
#include "core/Preferences/Settings.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleMarks.h"

#include <QRandomGenerator>
#include <QSignalSpy>

using namespace tessaly;

/// Editing, selecting, undoing: one store a test, of a picture of 40×30 pixels at two pixels per point.
class AnnotationStoreTest : public QObject {
    Q_OBJECT

    Settings m_settings { QString() };
    std::unique_ptr<AnnotationStore> m_store;

    static RasterImage picture(QSize pixels, double scale)
    {
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(Qt::white);
        return RasterImage::fromPixels(image, scale);
    }

    static Annotation box(const QRectF &rect)
    {
        return { AnnotationKind::Rectangle, rect.topLeft(), rect.bottomRight() };
    }

    void draw(const Annotation &mark)
    {
        m_store->beginChange();
        m_store->append(mark);
    }

    int undoSteps() const
    {
        int steps = 0;
        for (; m_store->canUndo(); ++steps)
            m_store->undo();
        return steps;
    }

    /// One operation out of all that leave an undo step.
    void changeSomething(QRandomGenerator &random)
    {
        const auto &marks = m_store->annotations();
        if (!marks.isEmpty())
            m_store->setSelectedID(marks[random.bounded(marks.size())].id);
        switch (random.bounded(7)) {
        case 0:
            return m_store->setFrame(
                random.bounded(2) ? std::optional(FrameStyle { .padding = random.generateDouble() }) : std::nullopt,
                Undo::Record);
        case 1:
            return m_store->setWatermark(Watermark { .size = random.generateDouble() }, Undo::Record);
        case 2:
            return m_store->deleteSelected();
        case 3:
            return m_store->applyStyleToSelection(Undo::Record);
        case 4:
            return m_store->updateSelection(
                Undo::Record, [&](Annotation &mark) { mark.p2 += QPointF(random.bounded(9), 1); });
        case 5:
            m_store->beginChange();
            m_store->setNextStampNumber(m_store->nextStampNumber() + 1);
            return m_store->setImage(picture({ static_cast<int>(random.bounded(1, 9)), 4 }, 1));
        default:
            draw(test::randomMark(random));
        }
    }

private Q_SLOTS:
    void init() { m_store = std::make_unique<AnnotationStore>(picture({ 40, 30 }, 2), m_settings); }

    void undoTakesBackWhateverWasDone()
    {
        for (quint32 seed = 1; seed <= 15; ++seed) {
            init();
            QRandomGenerator random(seed);
            const Snapshot start = m_store->currentSnapshot();
            for (int change = 0; change < 90; ++change)
                changeSomething(random);
            const Snapshot end = m_store->currentSnapshot();
            const int steps = undoSteps();
            QVERIFY(steps > 30);
            QVERIFY(m_store->currentSnapshot() == start);
            for (int step = 0; step < steps; ++step)
                m_store->redo();
            QVERIFY(!m_store->canRedo());
            QVERIFY(m_store->currentSnapshot() == end);
        }
    }

    void keepsAHundredSteps()
    {
        for (int change = 0; change < 101; ++change)
            draw(box({ 0, 0, 1, 1 }));
        QCOMPARE(undoSteps(), 100);
        QCOMPARE(m_store->annotations().size(), 1);
    }

    void aNewChangeEndsRedo()
    {
        draw(box({ 0, 0, 1, 1 }));
        m_store->undo();
        QVERIFY(m_store->canRedo());
        draw(box({ 0, 0, 2, 2 }));
        QVERIFY(!m_store->canRedo());
        QSignalSpy changes(m_store.get(), &AnnotationStore::changed);
        m_store->redo();
        QCOMPARE(changes.size(), 0);
    }

    void deletedMarksComeBackUnselected()
    {
        m_store->deleteSelected();
        QVERIFY(!m_store->canUndo());
        const Annotation mark = box({ 0, 0, 9, 9 });
        draw(mark);
        m_store->setSelectedID(mark.id);
        m_store->deleteSelected();
        QVERIFY(m_store->annotations().isEmpty());
        m_store->undo();
        QCOMPARE(m_store->annotations(), QList { mark });
        QVERIFY(!m_store->selected());
    }

    void anAbortedMarkLeavesNothing_data()
    {
        test::columns<int, bool>("before", "saved");
        test::row("the first", 0, true);
        test::row("after others, saved", 3, true);
        test::row("after others, unsaved", 3, false);
        test::row("with all steps taken", 100, false);
    }

    void anAbortedMarkLeavesNothing()
    {
        QFETCH(int, before);
        QFETCH(bool, saved);
        for (int change = 0; change < before; ++change)
            draw(box({ 0, 0, 5, 5 }));
        m_store->setHasUnsavedChanges(!saved);
        const Snapshot state = m_store->currentSnapshot();
        const Annotation mark = box({ 1, 1, 0, 0 });
        draw(mark);
        m_store->setSelectedID(mark.id);
        m_store->cancelLastChange(mark.id);
        QVERIFY(m_store->currentSnapshot() == state);
        QVERIFY(!m_store->selectedID());
        QCOMPARE(m_store->hasUnsavedChanges(), !saved);
        QCOMPARE(undoSteps(), before);
    }

    void theTopMostMarkIsHit()
    {
        const Annotation below = box({ 0, 0, 20, 20 }), above = box({ 10, 10, 20, 20 });
        m_store->setAnnotations({ below, above });
        QCOMPARE(m_store->annotationAt({ 15, 15 })->id, above.id);
        QCOMPARE(m_store->annotationAt({ 1, 1 })->id, below.id);
        QVERIFY(!m_store->annotationAt({ 90, 1 }));
        QCOMPARE(m_store->indexOf(above.id), 1);
        QVERIFY(!m_store->indexOf(QUuid::createUuid()));
    }

    void measuresThePicture_data()
    {
        test::columns<QSize, QSizeF, double, int>("pixels", "points", "scale", "dpi");
        test::row("two pixels a point", QSize(2400, 10), QSizeF(1200, 5), 2.0, 144);
        test::row("never below 1", QSize(100, 10), QSizeF(400, 40), 1.0, 18);
        test::row("no width", QSize(), QSizeF(0, 0), 1.0, 72);
    }

    void measuresThePicture()
    {
        QFETCH(QSize, pixels);
        QFETCH(QSizeF, points);
        const QImage image = pixels.isEmpty() ? QImage() : QImage(pixels, QImage::Format_RGB32);
        m_store->setImage({ image, points });
        QTEST(m_store->pixelScale(), "scale");
        QTEST(m_store->dpi(), "dpi");
        QCOMPARE(m_store->pixelDimensions(), image.size());
    }

    void cropModeEndsWithAnotherTool()
    {
        m_store->activate(Tool::Crop);
        QVERIFY(m_store->isCropping());
        QCOMPARE(m_store->cropRect(), QRectF(0, 0, 20, 15));
        m_store->setCropRect({ 1, 1, 4, 4 });
        m_store->activate(Tool::Arrow);
        QVERIFY(!m_store->isCropping());
        QCOMPARE(m_store->tool(), Tool::Arrow);
        QCOMPARE(m_store->pixelDimensions(), QSize(40, 30));
        QVERIFY(!m_store->canUndo());
    }

    void onlyTheSelectToolKeepsTheSelection()
    {
        const Annotation mark = box({ 0, 0, 9, 9 });
        m_store->setAnnotations({ mark });
        m_store->setSelectedID(mark.id);
        m_store->activate(Tool::Select);
        QCOMPARE(m_store->selected()->id, mark.id);
        m_store->activate(Tool::Text);
        QVERIFY(!m_store->selected());
    }

    void exportSavesOnlyWhatNoDocumentHolds()
    {
        m_store->beginChange();
        m_store->setDocumentURL(QUrl::fromLocalFile(QStringLiteral("/x.tessaly")));
        m_store->markExported();
        QVERIFY(m_store->hasUnsavedChanges());
        m_store->setDocumentURL(std::nullopt);
        m_store->markExported();
        QVERIFY(!m_store->hasUnsavedChanges());
    }

    void presentsWhatCanBeSeen()
    {
        QVERIFY(!m_store->hasPresentation());
        m_store->setWatermark(Watermark { .text = QStringLiteral("  ") }, Undo::Skip);
        QVERIFY(!m_store->hasPresentation());
        QVERIFY(!m_store->canUndo());
        m_store->setFrame(FrameStyle { .padding = 1 }, Undo::Record);
        QVERIFY(m_store->hasPresentation());
        QCOMPARE(m_store->frameLayout(), FrameLayout({ 20, 15 }, FrameStyle { .padding = 1 }, 2));
    }

    void newMarksStartFromTheSettings()
    {
        Settings settings { QString() };
        QCOMPARE(ToolStyle::fromSettings(settings), ToolStyle());
        QVERIFY(settings.set(SettingKeys::defaultColor, QStringLiteral("#123456")));
        QVERIFY(settings.set(SettingKeys::defaultArrowHead, QStringLiteral("concave")));
        QVERIFY(settings.set(SettingKeys::defaultStampKind, QStringLiteral("unicorn")));
        QVERIFY(settings.set(SettingKeys::defaultSpotlightEllipse, false));
        const AnnotationStore store({}, settings);
        ToolStyle expected;
        expected.colorHex = QStringLiteral("#123456");
        expected.arrowHead = ArrowHeadStyle::Concave;
        expected.spotEllipse = false;
        QCOMPARE(store.toolStyle(), expected);
    }

    void styleMovesBothWays()
    {
        // Adopting a mark and giving its style to a plain one of the kind makes the two look alike, for every kind.
        for (const Annotation &mark : test::oneOfEachKind()) {
            Annotation plain(mark.kind, { 1, 1 }, { 2, 2 });
            m_store->setAnnotations({ plain });
            m_store->setSelectedID(plain.id);
            m_store->adoptStyle(mark);
            m_store->applyStyleToSelection(Undo::Record);
            m_store->setToolStyle({});
            m_store->adoptStyle(*m_store->selected());
            ToolStyle again;
            again.adopt(mark);
            QCOMPARE(m_store->toolStyle(), again);
            QCOMPARE(m_store->selected()->p1, plain.p1);
        }
    }

    void appliesOnlyWhatBelongsToTheKind()
    {
        Annotation text(AnnotationKind::Text, { 0, 0 }, { 1, 1 });
        text.text = QStringLiteral("stays");
        m_store->setAnnotations({ text });
        m_store->setSelectedID(text.id);
        ToolStyle style;
        style.lineWidth = 99;
        style.textSize = 44;
        style.stickerEmoji = QStringLiteral("🦄");
        style.rectFilled = style.arrowCurved = true;
        m_store->setToolStyle(style);
        m_store->applyStyleToSelection(Undo::Record);
        text.fontSize = 44;
        QCOMPARE(*m_store->selected(), text);
    }

    void aStampThatBecomesANumberTakesTheNext()
    {
        const Annotation stamp(AnnotationKind::Stamp, { 0, 0 }, { 9, 9 });
        m_store->setAnnotations({ stamp });
        m_store->setNextStampNumber(7);
        m_store->setSelectedID(stamp.id);
        ToolStyle style;
        style.stampKind = StampKind::Number;
        m_store->setToolStyle(style);
        m_store->applyStyleToSelection(Undo::Record);
        QCOMPARE(m_store->selected()->text, QStringLiteral("7"));
        m_store->applyStyleToSelection(Undo::Skip);
        QCOMPARE(m_store->nextStampNumber(), 8);
        m_store->undo();
        QCOMPARE(m_store->nextStampNumber(), 7);
    }

    void saysOncePerChange()
    {
        QSignalSpy changes(m_store.get(), &AnnotationStore::changed);
        const Annotation mark = box({ 0, 0, 9, 9 });
        m_store->append(mark);
        m_store->setSelectedID(mark.id);
        m_store->updateSelection(Undo::Record, [](Annotation &changed) { changed.filled = true; });
        m_store->deleteSelected();
        m_store->undo();
        QCOMPARE(changes.size(), 5);
        m_store->setCropLock(false);
        m_store->setNextStampNumber(1);
        QCOMPARE(changes.size(), 5); // nothing was changed
    }
};

QTEST_GUILESS_MAIN(AnnotationStoreTest)
#include "AnnotationStoreTest.moc"
