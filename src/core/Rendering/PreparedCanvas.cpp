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
    Preparation(PreparedCanvas &result, const AnnotationsCanvas &canvas, DrawableMarks marks, int threads) :
        m_result(result),
        m_marks(std::move(marks.listed)),
        m_canvas(QPointF(), canvas.imageSize),
        m_threads(threads),
        m_context { result.m_grid, paintableOf(m_canvas), result.m_sample, canvas.noiseSeed, m_text,
            *canvas.overlayCache, *canvas.obscuredCache, m_budget }
    {
        canvas.overlayCache->beginRound();
        m_result.m_marks.resize(size_t(m_marks.size()));
        prepareSpotlights(marks.spotlights, m_canvas, m_context.paintable, m_result.m_spotlights);
        prepareOnThisThread();
        prepareOnAnyThread();
        prepareLoupes();
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
        painterOf(mark.kind).prepare(mark, m_context, m_result.m_marks[size_t(index)]);
    }

    void prepareOnThisThread()
    {
        for (qsizetype index = 0; index < m_marks.size(); ++index) {
            const MarkPainterRow &row = painterOf(m_marks[index].kind);
            if (row.thread == PaintersThread::Starting)
                prepare(index);
            else if (row.prepare && affordable(m_marks[index]))
                m_forAnyThread.push_back(index);
        }
    }

    /// Obscured areas may overlap without end; beyond the limit the black that stands in for a picture is enough.
    bool affordable(const Annotation &mark)
    {
        if (mark.kind != AnnotationKind::Pixelate || hidingColor(mark) || m_result.m_sample.isEmpty())
            return true;
        return m_computed.take(m_result.m_sample.touchedPixels(mark.rect()).size());
    }

    void prepareOnAnyThread()
    {
        Parallel::forEach(
            int(m_forAnyThread.size()), m_threads, [this](int index) { prepare(m_forAnyThread[size_t(index)]); });
        for (qsizetype index = 0; index < m_marks.size(); ++index) {
            PreparedMark &prepared = m_result.m_marks[size_t(index)];
            if (m_marks[index].kind == AnnotationKind::Pixelate && prepared.steps.empty()
                && !m_marks[index].rect().isEmpty())
                prepared.add(CoverStep { m_context.grid.grownToPixels(m_marks[index].rect()), Qt::black });
        }
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

    void prepareLoupes()
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
        Parallel::forEach(int(loupes.size()), m_threads, [&](int number) {
            const Loupe &loupe = loupes[size_t(number)];
            const QImage contents
                = loupe.affordable ? loupe.painter.magnifierContents(m_result.m_sample, loupe.below) : QImage();
            loupe.painter.prepare(contents, m_context.paintable, m_result.m_marks[size_t(loupe.index)]);
        });
    }

    PreparedCanvas &m_result;
    QList<Annotation> m_marks;
    QRectF m_canvas;
    int m_threads;
    TextShaper m_text;
    PixelBudget m_budget { maxPicturePixels };
    PixelBudget m_computed { maxPicturePixels };
    MarkContext m_context;
    std::vector<qsizetype> m_forAnyThread;
};

PreparedCanvas::PreparedCanvas(const AnnotationsCanvas &canvas, const PixelGrid &grid, int threads) : m_grid(grid)
{
    DrawableMarks marks(canvas, grid);
    if (canvas.source)
        m_sample = CaptureSample(*canvas.source, canvas.imageSize, std::move(marks.hidden));
    const Preparation preparation(*this, canvas, std::move(marks), threads);
}

PreparedCanvas::PreparedCanvas(const AnnotationsCanvas &canvas, const PixelGrid &grid, QSize pixelSize, int threads) :
    PreparedCanvas(canvas, grid, threads)
{
    const QRect pixels(QPoint(), pixelSize);
    const std::vector<PreparedMark *> marks = allMarks();
    qint64 budget = maxPicturePixels;
    for (PreparedMark *mark : marks)
        mark->fitPictures(grid, pixels, budget);
    Parallel::forEach(int(marks.size()), threads, [&](int index) { marks[size_t(index)]->fitShapes(grid, pixels); });
}

std::vector<PreparedMark *> PreparedCanvas::allMarks()
{
    std::vector<PreparedMark *> marks { &m_spotlights };
    for (PreparedMark &mark : m_marks)
        marks.push_back(&mark);
    return marks;
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
