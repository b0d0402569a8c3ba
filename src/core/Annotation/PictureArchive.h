// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/ImageEdit.h"

#include <deque>
#include <memory>
#include <vector>

namespace tessaly {

/// The pictures behind the steps of one undo history, in as little memory as allows getting each back quickly.
///
/// Turning and mirroring lose nothing: pictures that differ in nothing else are one source in several orientations.
/// Of other edits the source before is kept and the edit done again, as long as that is not too much work; the sources
/// between are packed, on a thread of their own, so that the edit itself takes no longer. The latest two stay as they
/// are. When the packed ones exceed the budget, more is done again and less is kept.
///
/// Every picture comes back byte for byte. Main thread only.
class PictureArchive {
public:
    struct Source;

    /// A picture that was entered here. It can be got back as long as a copy of this refers to it.
    struct Picture {
        std::shared_ptr<Source> source;
        Orientation orientation;

        bool operator==(const Picture &) const = default;
    };

    /// `budgetBytes` is for the packed pictures.
    explicit PictureArchive(qint64 budgetBytes);
    ~PictureArchive();
    Q_DISABLE_COPY_MOVE(PictureArchive)

    /// The picture that is shown now. One that is not the latest known here is taken as new, made of nothing.
    Picture enter(const RasterImage &image);

    /// The picture shown last became `result` by `edit`: exactly what applied() makes of it.
    void edited(const ImageEdit &edit, const RasterImage &result);

    /// Gets a picture back. Empty only without the memory.
    std::optional<RasterImage> image(const Picture &picture);

    /// The picture, got back just before, is shown from now on.
    void show(const Picture &picture, const RasterImage &image);

    /// What the packed pictures take now.
    qint64 packedBytes() const;

    /// Waits until nothing is being packed.
    void finishPacking();

private:
    std::optional<RasterImage> upToOrientation(Source &source, Orientation wanted);
    void setLatest(const Picture &picture, const RasterImage &image);
    void keepAsItIs(const std::shared_ptr<Source> &source);
    void retire(const std::shared_ptr<Source> &source);
    void takePacked();
    void dropPacked();
    void economize();

    qint64 m_budgetBytes;
    qint64 m_maxReplay; ///< the most work that getting a picture back may take, in pixels
    Picture m_latest;
    std::deque<std::shared_ptr<Source>> m_recent; ///< kept as they are, the latest last
    std::shared_ptr<Source> m_beingPacked;
    std::vector<std::weak_ptr<Source>> m_sources; ///< oldest first
};

} // namespace tessaly
