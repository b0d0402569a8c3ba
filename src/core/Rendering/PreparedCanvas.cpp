// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/PreparedCanvas.h"

#include "core/Annotation/MarkLimits.h"
#include "core/Base/Parallel.h"
#include "core/Rendering/AnnotationsCanvas.h"
#include "core/Rendering/MarkPainters.h"
#include "core/Rendering/ObscurePainter.h"

#include <QPainter>

#include <algorithm>

namespace tessaly {

namespace {

/// How often marks may be drawn again inside the loupes of one canvas, beyond any real use. A loupe for which that does
/// not suffice stays empty: showing the capture without what covers it could show what is meant to be hidden.
constexpr qint64 maxMarksInLoupes = 100'000;

/// The marks with their numbers in range, without the one that is being edited; spotlights apart.
struct DrawableMarks {
    QList<Annotation> listed;
    QList<Annotation> spotlights;
    std::vector<CaptureSample::HiddenArea> hidden;

    DrawableMarks(const AnnotationsCanvas &canvas, const PixelGrid &grid)
    {
        for (const Annotation &stored : canvas.annotations) {
            const auto mark = MarkLimits::drawable(stored);
            if (!mark)
                continue;
            if (const auto color = hidingColor(*mark)) // stays hidden while it is being edited
                hidden.push_back({ grid.grownToPixels(mark->rect()), *color });
            if (canvas.editingID != mark->id)
                (mark->kind == AnnotationKind::Spotlight ? spotlights : listed) += *mark;
        }
    }
};

} // namespace

/// The making of a PreparedCanvas.
class PreparedCanvas::Preparation {
public:
    Preparation(
        PreparedCanvas &result, const AnnotationsCanvas &canvas, DrawableMarks marks, QSize pixelSize, int threads) :
        m_result(result),
        m_marks(std::move(marks.listed)),
        m_canvas(QPointF(), canvas.imageSize),
        m_pixels(QPoint(), pixelSize),
        m_threads(threads),
        m_context { result.m_grid, paintableOf(m_canvas), result.m_sample, canvas.noiseSeed, m_text,
            *canvas.overlayCache, *canvas.obscuredCache, m_glyphBudget, m_overlayBudget }
    {
        canvas.overlayCache->beginRound();
        m_result.m_marks.resize(size_t(m_marks.size()));
        prepareSpotlights(marks.spotlights, m_canvas, m_context.paintable, m_result.m_spotlights);
        m_result.m_spotlights.fitShapes(m_context.grid, m_pixels);
        divideMarks();
        prepareAllButLoupes();
        prepareLoupesAndTexts();
    }

private:
    /// Far enough for marks that reach out of the canvas, near enough for the rasteriser.
    static QRectF paintableOf(const QRectF &canvas)
    {
        const double margin = std::max({ canvas.width(), canvas.height(), 100.0 });
        return canvas.adjusted(-margin, -margin, margin, margin);
    }

    void prepare(qsizetype index)
    {
        const Annotation &mark = m_marks[index];
        PreparedMark &prepared = m_result.m_marks[size_t(index)];
        painterOf(mark.kind).prepare(mark, m_context, prepared);
    }

    void fitShapes(qsizetype index) { m_result.m_marks[size_t(index)].fitShapes(m_context.grid, m_pixels); }

    void divideMarks()
    {
        for (qsizetype index = 0; index < m_marks.size(); ++index) {
            const Annotation &mark = m_marks[index];
            const MarkPainterRow &row = painterOf(mark.kind);
            if (!row.prepare)
                continue;
            if (row.thread == PaintersThread::Starting)
                m_forThisThread.push_back(index);
            else if (row.thread == PaintersThread::InOrder)
                m_inOrder.push_back(index);
            else if (affordable(mark))
                m_forAnyThread.push_back(index);
            else
                m_result.m_marks[size_t(index)].add(CoverStep { m_context.grid.grownToPixels(mark.rect()), Qt::black });
        }
    }

    /// Obscured areas may overlap without end; beyond the limit the black that stands in for a picture is enough.
    bool affordable(const Annotation &mark)
    {
        if (mark.kind != AnnotationKind::Pixelate || hidingColor(mark) || m_result.m_sample.isEmpty())
            return true;
        return m_computed.take(m_result.m_sample.touchedPixels(mark.rect()).size());
    }

    /// The other threads start with what any may do, while this one does what only it may.
    void prepareAllButLoupes()
    {
        const auto onThisThread = [this] {
            for (const qsizetype index : m_forThisThread)
                prepare(index);
        };
        // The first task is all the marks that must keep their order.
        Parallel::forEachBeside(onThisThread, int(m_forAnyThread.size()) + 1, m_threads, [this](int task) {
            if (task == 0) {
                for (const qsizetype index : m_inOrder)
                    prepare(index);
                return;
            }
            const qsizetype index = m_forAnyThread[size_t(task) - 1];
            prepare(index);
            fitShapes(index);
        });
        for (PreparedMark &mark : m_result.m_marks)
            mark.fitPictures(m_context.grid, m_pixels, m_fitted);
    }

    struct Loupe {
        qsizetype index;
        LoupePainter painter;
        std::vector<const PreparedMark *> below;
        bool affordable;
    };

    /// What a loupe draws again: the marks before it, and above them whatever hides something, wherever it stands.
    std::vector<const PreparedMark *> marksBelow(qsizetype loupe, const QRectF &seen) const
    {
        std::vector<const PreparedMark *> below;
        for (qsizetype index = 0; index < m_marks.size(); ++index) {
            const Annotation &mark = m_marks[index];
            const PreparedMark &prepared = m_result.m_marks[size_t(index)];
            const bool drawn = index < loupe ? mark.kind != AnnotationKind::Magnifier : hidingColor(mark).has_value();
            if (drawn && prepared.bounds.intersects(seen))
                below.push_back(&prepared);
        }
        return below;
    }

    /// The outlines of the texts are still to be fitted, too.
    void prepareLoupesAndTexts()
    {
        std::vector<Loupe> loupes;
        qint64 drawnAgain = 0;
        for (qsizetype index = 0; index < m_marks.size(); ++index) {
            if (m_marks[index].kind != AnnotationKind::Magnifier)
                continue;
            Loupe loupe { index, LoupePainter(m_marks[index], m_context.grid, m_canvas), {}, false };
            if (drawnAgain < maxMarksInLoupes && m_computed.take(loupe.painter.contentSize())) {
                loupe.below = marksBelow(index, loupe.painter.seen());
                drawnAgain += qint64(loupe.below.size());
                loupe.affordable = !loupe.painter.contentSize().isEmpty() && drawnAgain <= maxMarksInLoupes;
            }
            loupes.push_back(std::move(loupe));
        }
        Parallel::forEach(int(loupes.size() + m_forThisThread.size()), m_threads, [&](int task) {
            if (size_t(task) < loupes.size())
                finish(loupes[size_t(task)]);
            else
                fitShapes(m_forThisThread[size_t(task) - loupes.size()]);
        });
    }

    void finish(const Loupe &loupe)
    {
        const QImage contents
            = loupe.affordable ? loupe.painter.magnifierContents(m_result.m_sample, loupe.below) : QImage();
        loupe.painter.prepare(contents, m_context.paintable, m_result.m_marks[size_t(loupe.index)]);
        fitShapes(loupe.index);
    }

    PreparedCanvas &m_result;
    QList<Annotation> m_marks;
    QRectF m_canvas;
    QRect m_pixels; ///< that everything is fitted to; empty for a painter
    int m_threads;
    TextShaper m_text;
    PixelBudget m_glyphBudget { maxPicturePixels };
    PixelBudget m_overlayBudget { maxPicturePixels };
    PixelBudget m_computed { maxPicturePixels };
    qint64 m_fitted = maxPicturePixels;
    MarkContext m_context;
    std::vector<qsizetype> m_forThisThread;
    std::vector<qsizetype> m_inOrder;
    std::vector<qsizetype> m_forAnyThread;
};

PreparedCanvas::PreparedCanvas(const AnnotationsCanvas &canvas, const PixelGrid &grid, QSize pixelSize, int threads) :
    m_grid(grid)
{
    DrawableMarks marks(canvas, grid);
    if (canvas.source)
        m_sample = CaptureSample(*canvas.source, canvas.imageSize, std::move(marks.hidden));
    const Preparation preparation(*this, canvas, std::move(marks), pixelSize, threads);
}

void PreparedCanvas::paint(QImage &image, const QRect &clip) const
{
    const PixelTarget target { image, clip, m_grid };
    const auto paintOne = [&](const PreparedMark &mark) {
        if (!mark.steps.empty() && m_grid.touchedPixels(mark.bounds).adjusted(-1, -1, 1, 1).intersects(clip))
            tessaly::paint(mark, target);
    };
    paintOne(m_spotlights);
    for (const PreparedMark &mark : m_marks)
        paintOne(mark);
}

void PreparedCanvas::paint(QPainter &painter) const
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    tessaly::paint(m_spotlights, painter);
    for (const PreparedMark &mark : m_marks)
        tessaly::paint(mark, painter);
    painter.restore();
}

} // namespace tessaly
