// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/GaussianBlur.h"
#include "core/Imaging/SamplePlane.h"

namespace tessaly {

/// Three boxes one after the other, which come close to a Gaussian of the same variance at a cost that does not
/// depend on it. Columns and rows are blurred apart; threads may share one.
class BoxBlur {
public:
    /// `variance` in samples, above 0.
    BoxBlur(double variance, GaussianBlur::Outside outside);

    /// Blurs the columns `first` to before `end` along themselves into the same place.
    void blurColumns(const SamplePlane &in, SamplePlane &out, int first, int end) const;

    /// Blurs rows of `in` along themselves: row 0 of `out` is row `first`, and so many as it holds.
    void blurRows(const SamplePlane &in, int first, SamplePlane &out) const;

private:
    struct Lines;
    class Strip;

    int reach() const { return m_radius + 1; }
    void blurLines(const Lines &lines) const;

    // A box weighs 1 up to `m_radius` samples from its middle and `m_edge`, below 1, for the next.
    int m_radius;
    float m_edge;
    float m_scale; // 1 ÷ the sum of the weights
    GaussianBlur::Outside m_outside;
};

} // namespace tessaly
