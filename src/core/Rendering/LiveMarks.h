// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/MarkListDifference.h"
#include "core/Rendering/MarkPreparation.h"

#include <QRegion>

#include <optional>

namespace tessaly {

/// The marks of an open capture made ready, kept from one state of the list to the next: only marks that changed, and
/// those that show them again, are prepared anew. All pixels are those of the grid.
class LiveMarks {
public:
    /// Forgets everything: another capture, another scale, other pixels to fit to.
    void start(const MarkPreparation::Setup &setup, const RasterImage &source);

    /// Brings the marks up to date and returns the pixels on which something changed.
    QRegion update(const QList<Annotation> &annotations, const std::optional<QUuid> &editingID);

    /// The place in the list of the lowest mark that the last update changed; 0 also when the order changed or when
    /// spotlights did, which lie below all others.
    size_t firstChanged() const { return m_firstChanged; }

    size_t count() const { return m_entries.size(); }

    /// Paints the marks from `first` up to `end` within `clip` into an image whose top-left pixel lies at `origin`.
    void paint(QImage &image, const QRect &clip, QPoint origin, size_t first, size_t end) const;

private:
    struct Entry;
    using Entries = std::vector<std::shared_ptr<Entry>>;

    /// Where a loupe may have to show something else.
    struct Change {
        QRectF bounds; ///< points
        size_t index; ///< only loupes behind this place in the list show it
    };

    std::shared_ptr<Entry> made(const Annotation &stored, bool edited) const;
    void renew(const MarkListDifference &difference, const QList<Annotation> &annotations);
    void record(const Entry &entry, size_t index);
    void note(const Entry &entry);
    void updateHidden();
    void updateSpotlights();
    bool isOutdated(const Entry &loupe, size_t index) const;
    void prepareAllButLoupes();
    void prepareLoupes();
    void finish(const std::vector<size_t> &prepared);
    QRect touched(const QRectF &points) const;

    MarkPreparation::Setup m_setup;
    RasterImage m_source;
    std::shared_ptr<MarkPreparation> m_preparation;
    std::optional<QUuid> m_editingID;
    Entries m_entries; ///< of the marks of the last update
    std::vector<size_t> m_loupes; ///< places of those that are drawn
    std::vector<CaptureSample::HiddenArea> m_hidden;
    QList<Annotation> m_spotlightMarks; ///< in range
    PreparedMark m_spotlights;
    size_t m_firstChanged = 0;
    QRegion m_dirty; ///< in the course of an update
    std::vector<size_t> m_stale; ///< in the course of an update: places of marks to prepare, but for loupes
    bool m_hidingChanged = false; ///< in the course of an update: a mark that hides something
    bool m_spotlightsChanged = false; ///< in the course of an update
    std::vector<Change> m_changes; ///< in the course of an update
    std::vector<QRectF> m_newlyHidden; ///< in the course of an update; points
};

} // namespace tessaly
