// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/MarkClipboard.h"
#include "core/Editing/MarkCommands.h"
#include "core/Export/FlattenService.h"
#include "core/Preferences/Settings.h"
#include "tests/support/DrawnMarks.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/SampleMarks.h"

#include <QRandomGenerator>
#include <QTest>

using namespace tessaly;

/// What undo gives back looks the same to the last byte.
class UndoneEditsTest : public QObject {
    Q_OBJECT

    Settings m_settings { QString() };
    SavedStyles m_styles { m_settings };
    CopiedStyle m_copiedStyle;
    test::FakeClipboard m_clipboard;

    void paste(AnnotationStore &store)
    {
        MarkClipboard clipboard(m_clipboard);
        clipboard.copy(store);
        if (store.selected())
            QVERIFY(clipboard.paste(store, QPointF(30, 20)));
    }

    static void surround(AnnotationStore &store, QRandomGenerator &random)
    {
        FrameStyle frame;
        frame.padding = random.bounded(60) / 100.0;
        store.setFrame(random.bounded(3) ? std::optional(frame) : std::nullopt, Undo::Record);
        Watermark watermark;
        watermark.text = QStringLiteral("w%1").arg(random.bounded(10));
        store.setWatermark(random.bounded(3) ? std::optional(watermark) : std::nullopt, Undo::Skip);
    }

    static void write(AnnotationStore &store, QRandomGenerator &random)
    {
        store.beginChange();
        Annotation text(AnnotationKind::Text, { 8, 30 }, { 8, 30 });
        text.text = QStringLiteral("a");
        store.append(text);
        store.setSelectedID(text.id);
        store.setStepOpen(true);
        for (int letter = random.bounded(4); letter >= 0; --letter)
            store.updateSelection(Undo::Skip, [](Annotation &mark) { mark.text += u'b'; });
        store.updateSelection(Undo::Record, [](Annotation &mark) { mark.bold = true; });
        store.setStepOpen(false);
    }

    void changeSomething(AnnotationStore &store, QRandomGenerator &random)
    {
        MarkCommands commands(store, m_styles, m_copiedStyle);
        const auto &marks = store.annotations();
        if (!marks.isEmpty())
            store.setSelectedID(marks[random.bounded(marks.size())].id);
        switch (random.bounded(14)) {
        case 0:
            return store.rotate(random.bounded(2) == 0);
        case 1:
            return random.bounded(2) ? store.flipHorizontal() : store.flipVertical();
        case 2:
            return store.sharpen(random.bounded(1, 100) / 100.0);
        case 3:
            return store.resize(random.bounded(60, 160), random.bounded(60, 160));
        case 4:
            store.activate(Tool::Crop);
            store.setCropRect(QRectF({ 1, 2 }, store.image().pointSize - QSizeF(1, 3)));
            static_cast<void>(store.applyCrop());
            return;
        case 5:
            return store.deleteSelected();
        case 6:
            return store.updateSelection(Undo::Record, [](Annotation &mark) { mark.lineWidth += 1; });
        case 7:
            return paste(store);
        case 8:
            return surround(store, random);
        case 9:
            return write(store, random);
        case 10:
            return random.bounded(2) ? commands.duplicate() : commands.reorder(static_cast<Order>(random.bounded(4)));
        case 11:
            return commands.applyPaletteColor(random.bounded(1, 9));
        default:
            store.beginChange();
            const auto kinds = test::oneOfEachKind();
            Annotation mark = kinds[random.bounded(kinds.size())];
            mark.id = QUuid::createUuid();
            mark.p2 -= mark.p1;
            mark.p1 = { 5, 5 };
            store.append(mark);
        }
    }

    static QImage flattened(const AnnotationStore &store) { return FlattenService::flatten(store, 2)->pixels; }

private Q_SLOTS:
    void aHundredChangesAreTakenBack()
    {
        for (const quint32 seed : { 1U, 2U, 3U }) {
            QRandomGenerator random(seed);
            const Settings settings { QString() };
            AnnotationStore store(RasterImage::fromPixels(test::noisyCapture({ 120, 90 }).pixels, 1.5), settings);
            const Snapshot start = store.currentSnapshot();
            for (int change = 0; change < 100; ++change)
                changeSomething(store, random);
            const Snapshot end = store.currentSnapshot();
            const QImage first = [&] {
                AnnotationStore untouched(start.image, settings);
                return flattened(untouched);
            }();
            const QImage last = flattened(store);
            int steps = 0;
            for (; store.canUndo(); ++steps)
                store.undo();
            QVERIFY(steps > 50 && steps <= 100);
            QVERIFY(store.currentSnapshot() == start);
            QCOMPARE(flattened(store), first);
            for (int step = 0; step < steps; ++step)
                store.redo();
            QVERIFY(store.currentSnapshot() == end);
            QCOMPARE(flattened(store), last);
        }
    }
};

QTEST_MAIN(UndoneEditsTest)
#include "UndoneEditsTest.moc"
