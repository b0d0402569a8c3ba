// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/Snapping.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessaly {

namespace {

/// Positions closer than this are the same, whatever arithmetic led to them.
constexpr double samePlace = 1e-6;

} // namespace

void SnapTargets::Axis::add(const Target &target)
{
    m_targets.push_back(target);
    m_isSorted = false;
}

void SnapTargets::Axis::sort() const
{
    if (m_isSorted)
        return;
    std::ranges::sort(m_targets, {}, &Target::position);
    m_isSorted = true;
}

double SnapTargets::Axis::offset(const QList<double> &positions, double reach) const
{
    sort();
    std::optional<double> best;
    const auto consider = [&](double way) {
        if (std::abs(way) <= reach && (!best || std::abs(way) < std::abs(*best)))
            best = way;
    };
    for (const double position : positions) {
        const auto after = std::ranges::lower_bound(m_targets, position, {}, &Target::position);
        if (after != m_targets.end())
            consider(after->position - position);
        if (after != m_targets.begin())
            consider(std::prev(after)->position - position);
    }
    return best.value_or(0);
}

auto SnapTargets::Axis::at(double position, double from, double to) const -> std::optional<Target>
{
    sort();
    auto target = std::ranges::lower_bound(m_targets, position - samePlace, {}, &Target::position);
    std::optional<Target> nearest;
    double least = std::numeric_limits<double>::infinity();
    for (; target != m_targets.end() && target->position <= position + samePlace; ++target) {
        const double gap = std::max({ 0.0, target->from - to, from - target->to });
        if (gap < least)
            nearest = *target;
        least = std::min(least, gap);
    }
    if (!nearest)
        return std::nullopt;
    return Target { nearest->position, std::min(from, nearest->from), std::max(to, nearest->to) };
}

void SnapTargets::add(const QRectF &box)
{
    for (const double x : { box.left(), box.center().x(), box.right() })
        m_axes[0].add({ x, box.top(), box.bottom() });
    for (const double y : { box.top(), box.center().y(), box.bottom() })
        m_axes[1].add({ y, box.left(), box.right() });
}

QList<QLineF> SnapTargets::guides(const QRectF &box, const QList<double> &xs, const QList<double> &ys) const
{
    QList<QLineF> lines;
    const auto addOnce = [&](const QLineF &line) {
        if (!lines.contains(line))
            lines += line;
    };
    for (const double x : xs) {
        if (const auto target = m_axes[0].at(x, box.top(), box.bottom()))
            addOnce({ target->position, target->from, target->position, target->to });
    }
    for (const double y : ys) {
        if (const auto target = m_axes[1].at(y, box.left(), box.right()))
            addOnce({ target->from, target->position, target->to, target->position });
    }
    return lines;
}

} // namespace tessaly
