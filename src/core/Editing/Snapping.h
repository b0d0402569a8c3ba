// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineF>
#include <QList>
#include <QRectF>

#include <array>
#include <optional>
#include <vector>

namespace tessaly {

/// The edges and centres that a mark in hand snaps to, on each axis by itself. Made once a gesture; image points.
class SnapTargets {
public:
    /// Adds the edges and the centre of a box.
    void add(const QRectF &box);

    /// The shortest way by which one of these positions of a box reaches a target that is no farther than `reach`;
    /// 0 when there is none.
    double offsetX(const QList<double> &positions, double reach) const { return m_axes[0].offset(positions, reach); }
    double offsetY(const QList<double> &positions, double reach) const { return m_axes[1].offset(positions, reach); }

    /// Lines through the targets on which these positions of a box lie now, as long as the box and what it is aligned
    /// with.
    QList<QLineF> guides(const QRectF &box, const QList<double> &xs, const QList<double> &ys) const;

private:
    struct Target {
        double position; ///< on its axis
        double from, to; ///< its extent on the other axis
    };
    class Axis {
    public:
        void add(const Target &target);
        double offset(const QList<double> &positions, double reach) const;
        /// The target at a position that lies nearest to from–to, as long as the two together.
        std::optional<Target> at(double position, double from, double to) const;

    private:
        void sort() const;

        mutable std::vector<Target> m_targets;
        mutable bool m_isSorted = true;
    };

    std::array<Axis, 2> m_axes;
};

} // namespace tessaly
