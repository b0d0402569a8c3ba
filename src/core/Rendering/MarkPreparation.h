// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/LoupePainter.h"
#include "core/Rendering/MarkPainters.h"

#include <memory>
#include <vector>

namespace tessaly {

/// A mark in the list that is drawn, its numbers in range, and what is painted of it.
struct DrawnMark {
    Annotation mark;
    PreparedMark prepared;
};

/// Makes marks ready for one grid of pixels: outlines, texts, decoded and obscured pictures, and what the loupes show.
class MarkPreparation {
public:
    struct Setup {
        PixelGrid grid;
        QRectF canvas; ///< points
        QRect pixels; ///< of the grid, that everything is fitted to; empty prepares for a painter alone
        ImageEffects::NoiseSeed noiseSeed;
        std::shared_ptr<OverlayCache> overlays;
        std::shared_ptr<ObscuredCache> obscured;
        int threads = 1; ///< at most; they do not change the result
    };
    MarkPreparation(Setup setup, CaptureSample sample);

    const CaptureSample &sample() const { return m_context.sample; }
    void setSample(CaptureSample sample) { m_context.sample = std::move(sample); }

    /// The dimming by these spotlights.
    PreparedMark spotlights(const QList<Annotation> &spotlights) const;

    /// Prepares the marks at `indices`, which ascend, anew; `all` is the whole list as it is drawn, whose other marks
    /// are prepared already. Neither spotlights nor marks that are not drawn are in it. Uses fonts where FontUse says
    /// so, on the calling thread.
    void prepare(const std::vector<DrawnMark *> &all, const std::vector<size_t> &indices);

    /// What a loupe looks at, in points; a mark is drawn again in it if it reaches into this.
    QRectF seenBy(const Annotation &loupe) const { return loupePainter(loupe).seen(); }

private:
    struct Loupe;
    struct Work;

    LoupePainter loupePainter(const Annotation &mark) const;
    bool affordable(const Annotation &mark);
    void prepareOne(DrawnMark &mark);
    void fitShapes(DrawnMark &mark) const;
    Work divided(const std::vector<DrawnMark *> &all, const std::vector<size_t> &indices);
    void prepareAllButLoupes(const Work &work, int threads);
    void prepareLoupesAndTexts(const std::vector<DrawnMark *> &all, const Work &work, int threads);
    void finish(const Loupe &loupe) const;

    Setup m_setup;
    TextShaper m_text;
    PixelBudget m_glyphBudget;
    PixelBudget m_overlayBudget;
    PixelBudget m_computed;
    qint64 m_fitted = 0;
    MarkContext m_context;
};

} // namespace tessaly
