// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/MarkPreparation.h"

#include "core/Base/Parallel.h"
#include "core/Rendering/ObscurePainter.h"

#include <algorithm>

namespace tessaly {

namespace {

/// How often marks may be drawn again inside the loupes of one canvas, beyond any real use. A loupe for which that does
/// not suffice stays empty: showing the capture without what covers it could show what is meant to be hidden.
constexpr qint64 maxMarksInLoupes = 100'000;

/// Far enough for marks that reach out of the canvas, near enough for the rasteriser.
QRectF paintableOf(const QRectF &canvas)
{
    const double margin = std::max({ canvas.width(), canvas.height(), 100.0 });
    return canvas.adjusted(-margin, -margin, margin, margin);
}

/// What a loupe draws again: the marks before it, and above them whatever hides something, wherever it stands.
std::vector<const PreparedMark *> marksBelow(const std::vector<DrawnMark *> &all, size_t loupe, const QRectF &seen)
{
    std::vector<const PreparedMark *> below;
    for (size_t index = 0; index < all.size(); ++index) {
        const Annotation &mark = all[index]->mark;
        const PreparedMark &prepared = all[index]->prepared;
        const bool drawn = index < loupe ? mark.kind != AnnotationKind::Magnifier : hidingColor(mark).has_value();
        if (drawn && prepared.bounds.intersects(seen))
            below.push_back(&prepared);
    }
    return below;
}

} // namespace

struct MarkPreparation::Loupe {
    DrawnMark &mark;
    LoupePainter painter;
    std::vector<const PreparedMark *> below = {};
    bool affordable = false;
};

/// The marks to prepare by who may do it.
struct MarkPreparation::Work {
    std::vector<DrawnMark *> forThisThread, inOrder, forAnyThread;
    std::vector<DrawnMark *> asDrawn; ///< all of these
    std::vector<size_t> loupes; ///< indices in the whole list
};

MarkPreparation::MarkPreparation(Setup setup, CaptureSample sample) :
    m_setup(std::move(setup)),
    m_context { m_setup.grid, paintableOf(m_setup.canvas), std::move(sample), m_setup.noiseSeed, m_text,
        *m_setup.overlays, *m_setup.obscured, m_glyphBudget, m_overlayBudget }
{
}

PreparedMark MarkPreparation::spotlights(const QList<Annotation> &spotlights) const
{
    PreparedMark prepared;
    prepareSpotlights(spotlights, m_setup.canvas, m_context.paintable, prepared);
    prepared.fitShapes(m_setup.grid, m_setup.pixels);
    return prepared;
}

void MarkPreparation::prepare(const std::vector<DrawnMark *> &all, const std::vector<size_t> &indices)
{
    m_text.dropIfLarge();
    m_setup.overlays->beginRound();
    m_glyphBudget = m_overlayBudget = m_computed = { maxPicturePixels };
    m_fitted = maxPicturePixels;
    constexpr size_t fewMarks = 4; // they are prepared sooner than another thread starts
    const int threads = indices.size() < fewMarks ? 1 : m_setup.threads;
    const Work work = divided(all, indices);
    prepareAllButLoupes(work, threads);
    prepareLoupesAndTexts(all, work, work.loupes.size() > 1 ? m_setup.threads : threads);
}

LoupePainter MarkPreparation::loupePainter(const Annotation &mark) const
{
    return LoupePainter(mark, m_setup.grid, m_setup.canvas, m_setup.pixels);
}

void MarkPreparation::prepareOne(DrawnMark &mark)
{
    painterOf(mark.mark.kind).prepare(mark.mark, m_context, mark.prepared);
}

void MarkPreparation::fitShapes(DrawnMark &mark) const { mark.prepared.fitShapes(m_setup.grid, m_setup.pixels); }

MarkPreparation::Work MarkPreparation::divided(const std::vector<DrawnMark *> &all, const std::vector<size_t> &indices)
{
    Work work;
    for (const size_t index : indices) {
        DrawnMark &mark = *all[index];
        mark.prepared = {};
        if (mark.mark.kind == AnnotationKind::Magnifier) {
            work.loupes.push_back(index);
            continue;
        }
        work.asDrawn.push_back(&mark);
        const MarkPainterRow &row = painterOf(mark.mark.kind);
        if (row.thread == PaintersThread::Starting)
            work.forThisThread.push_back(&mark);
        else if (row.thread == PaintersThread::InOrder)
            work.inOrder.push_back(&mark);
        else if (affordable(mark.mark))
            work.forAnyThread.push_back(&mark);
        else
            mark.prepared.add(CoverStep { m_setup.grid.grownToPixels(mark.mark.rect()), Qt::black });
    }
    return work;
}

/// Obscured areas may overlap without end; beyond the limit the black that stands in for a picture is enough.
bool MarkPreparation::affordable(const Annotation &mark)
{
    if (mark.kind != AnnotationKind::Pixelate || hidingColor(mark) || sample().isEmpty())
        return true;
    return m_computed.take(sample().touchedPixels(mark.rect()).size());
}

/// The other threads start with what any may do, while this one does what only it may.
void MarkPreparation::prepareAllButLoupes(const Work &work, int threads)
{
    const auto onThisThread = [&] {
        for (DrawnMark *mark : work.forThisThread)
            prepareOne(*mark);
    };
    // The first task is all the marks that must keep their order.
    Parallel::forEachBeside(onThisThread, int(work.forAnyThread.size()) + 1, threads, [&](int task) {
        if (task == 0) {
            for (DrawnMark *mark : work.inOrder)
                prepareOne(*mark);
            return;
        }
        DrawnMark &mark = *work.forAnyThread[size_t(task) - 1];
        prepareOne(mark);
        fitShapes(mark);
    });
    for (DrawnMark *mark : work.asDrawn)
        mark->prepared.fitPictures(m_setup.grid, m_setup.pixels, m_fitted);
}

/// The outlines of the texts are still to be fitted, too.
void MarkPreparation::prepareLoupesAndTexts(const std::vector<DrawnMark *> &all, const Work &work, int threads)
{
    std::vector<Loupe> loupes;
    qint64 drawnAgain = 0;
    for (const size_t index : work.loupes) {
        Loupe loupe { *all[index], loupePainter(all[index]->mark) };
        if (drawnAgain < maxMarksInLoupes && m_computed.take(loupe.painter.contentSize())) {
            loupe.below = marksBelow(all, index, loupe.painter.seen());
            drawnAgain += qint64(loupe.below.size());
            loupe.affordable = !loupe.painter.contentSize().isEmpty() && drawnAgain <= maxMarksInLoupes;
        }
        loupes.push_back(std::move(loupe));
    }
    Parallel::forEach(int(loupes.size() + work.forThisThread.size()), threads, [&](int task) {
        if (size_t(task) < loupes.size())
            finish(loupes[size_t(task)]);
        else
            fitShapes(*work.forThisThread[size_t(task) - loupes.size()]);
    });
}

void MarkPreparation::finish(const Loupe &loupe) const
{
    const QImage contents = loupe.affordable ? loupe.painter.magnifierContents(sample(), loupe.below) : QImage();
    loupe.painter.prepare(contents, m_context.paintable, loupe.mark.prepared);
    fitShapes(loupe.mark);
}

} // namespace tessaly
