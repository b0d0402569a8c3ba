// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/LiveGeometry.h"
#include "core/Rendering/ViewLayer.h"

#include <optional>
#include <vector>

namespace tessaly {

class LiveBase;
class LiveMarks;

/// The capture with the marks below the one that is being dragged, so that a frame costs the same however many they
/// are. Made tile by tile where the mark goes, and only while the same mark changes time after time.
class LiveBelow {
public:
    /// Says which mark of the list was the lowest that changed; none when no mark did. A moved view or another picture
    /// makes an end of it.
    void update(const QImage &capture, const LiveGeometry &geometry, const std::optional<size_t> &firstChanged);

    bool isInUse() const { return m_count > 0; }

    /// Makes what is still missing of `region`, in pixels of the view and within the visible content.
    void require(const QRegion &region, const LiveBase &base, const LiveMarks &marks, int threads);

    /// Copies a part of a required region into `target` at `position`; returns how many marks it contains.
    size_t copy(const QRect &area, QImage &target, QPoint position) const;

private:
    void drop();

    LiveGeometry m_geometry;
    qint64 m_captureKey = 0;
    std::optional<size_t> m_firstChanged; ///< of the last update that changed a mark
    size_t m_count = 0; ///< marks in the layer; 0 while it is not in use
    ViewLayer m_layer;
    int m_columns = 0;
    std::vector<char> m_made; ///< 1 for each tile of the layer that is there
};

} // namespace tessaly
