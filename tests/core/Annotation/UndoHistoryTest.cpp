// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/UndoHistory.h"
#include "tests/support/SamplePictures.h"

#include <QRandomGenerator>
#include <QTest>

#include <cstring>

using namespace tessaly;

namespace {

bool sameBytes(const RasterImage &one, const RasterImage &other)
{
    const QImage &a = one.pixels, &b = other.pixels;
    bool same = a.size() == b.size() && a.format() == b.format() && one.pointSize == other.pointSize;
    for (int y = 0; same && y < a.height(); ++y)
        same = std::memcmp(a.constScanLine(y), b.constScanLine(y), size_t(a.width()) * 4) == 0;
    return same;
}

ImageEdit randomEdit(QRandomGenerator &random, const RasterImage &image)
{
    switch (random.bounded(9)) {
    case 0:
        return ImageEdit::rotate(random.bounded(2) == 0);
    case 1:
        return ImageEdit::flip(random.bounded(2) == 0);
    case 2:
        return ImageEdit::crop({ QPointF(1, 0.5), image.pointSize - QSizeF(1.5, 1) });
    case 3:
        return ImageEdit::resize({ random.bounded(40, 80), random.bounded(30, 70) });
    default:
        return ImageEdit::sharpen(random.bounded(1, 100) / 100.0);
    }
}

} // namespace

/// A capture as an editor would hold it, and beside it every picture that it ever had.
class UndoHistoryTest : public QObject {
    Q_OBJECT

    RasterImage m_image;

    static RasterImage start(QSize size = { 60, 50 })
    {
        return RasterImage::fromPixels(test::samplePicture(size, test::Transparency::Soft), 2);
    }

    static RasterImage copyOf(const RasterImage &image) { return { image.pixels.copy(), image.pointSize }; }

    UndoHistory::Step present() const { return { { .image = m_image }, true }; }

    void edit(UndoHistory &history, const ImageEdit &edit)
    {
        const RasterImage result = *applied(m_image, edit);
        history.record(present());
        history.edited(edit, result);
        m_image = result;
    }

    bool undo(UndoHistory &history)
    {
        const auto step = history.undo(present());
        m_image = step ? step->content.image : m_image;
        return step.has_value();
    }

    bool redo(UndoHistory &history)
    {
        const auto step = history.redo(present());
        m_image = step ? step->content.image : m_image;
        return step.has_value();
    }

private Q_SLOTS:
    void everyPictureComesBack_data()
    {
        QTest::addColumn<qint64>("budget");
        QTest::newRow("all are kept") << UndoHistory::pictureBudgetBytes;
        QTest::newRow("few are kept") << qint64(100'000);
        QTest::newRow("none is kept") << qint64(0);
    }

    void everyPictureComesBack()
    {
        QFETCH(qint64, budget);
        for (quint32 seed = 1; seed <= 3; ++seed) {
            QRandomGenerator random(seed);
            UndoHistory history(100, budget);
            m_image = start();
            QList<RasterImage> pictures { copyOf(m_image) };
            for (int count = 0; count < 100; ++count) {
                if (random.bounded(8) == 0) {
                    history.record(present()); // a change of marks, or of a picture that nobody tells of
                    m_image = random.bounded(2) ? m_image : start({ 30 + count / 2, 40 });
                } else {
                    edit(history, randomEdit(random, m_image));
                }
                pictures += copyOf(m_image);
            }
            qsizetype at = 100;
            for (int walk = 0; walk < 250; ++walk) {
                const bool back = walk < 100 || random.bounded(2) == 0;
                const bool moved = back ? undo(history) : redo(history);
                QCOMPARE(moved, back ? at > 0 : at < 100);
                at += moved ? (back ? -1 : 1) : 0;
                QVERIFY2(sameBytes(m_image, pictures[at]), qPrintable(QString::number(at)));
            }
        }
    }

    void changesOfMarksShareThePicture()
    {
        UndoHistory history;
        m_image = start();
        const auto pixels = m_image.pixels.cacheKey();
        for (int count = 0; count < 5; ++count)
            history.record(present());
        for (int count = 0; count < 5; ++count) {
            QVERIFY(undo(history));
            QCOMPARE(m_image.pixels.cacheKey(), pixels);
        }
    }

    void theLatestPicturesAreAtHand()
    {
        UndoHistory history;
        m_image = start();
        const auto first = m_image.pixels.cacheKey();
        edit(history, ImageEdit::sharpen(1));
        const auto second = m_image.pixels.cacheKey();
        for (int round = 0; round < 3; ++round) {
            QVERIFY(undo(history));
            QCOMPARE(m_image.pixels.cacheKey(), first);
            QVERIFY(redo(history));
            QCOMPARE(m_image.pixels.cacheKey(), second);
        }
    }

    void packedPicturesKeepToTheBudget()
    {
        // Large enough that not even two edits are done again unless the budget asks for it.
        constexpr qint64 budget = 3'000'000;
        UndoHistory generous, strict(100, budget);
        for (UndoHistory *history : { &generous, &strict }) {
            m_image = start({ 3000, 3000 });
            for (int count = 0; count < 5; ++count)
                edit(*history, ImageEdit::crop({ QPointF(0.5, 0), m_image.pointSize - QSizeF(0.5, 0) }));
            history->finishPacking();
        }
        QVERIFY(generous.packedBytes() > 0);
        QVERIFY(strict.packedBytes() < generous.packedBytes());
    }

    void forgottenStepsLetGoOfTheirPictures()
    {
        UndoHistory history(3);
        m_image = start({ 300, 300 });
        for (int count = 0; count < 20; ++count) {
            history.record(present());
            m_image = start({ 300, 300 }); // nothing that could be done again
        }
        history.finishPacking();
        const qint64 few = history.packedBytes();
        QVERIFY(few > 0);
        for (int count = 0; count < 20; ++count) {
            history.record(present());
            m_image = start({ 300, 300 });
        }
        history.finishPacking();
        QCOMPARE(history.packedBytes(), few);
    }
};

QTEST_GUILESS_MAIN(UndoHistoryTest)
#include "UndoHistoryTest.moc"
