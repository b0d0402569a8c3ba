// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdio>
#include <vector>

namespace tessaly::bench {

/// What a user would notice, as numbers that a figure of this run must not exceed.
class Limits {
public:
    /// Prints the figure beside its limit and remembers whether it kept it.
    void check(const char *what, double value, double limit, const char *unit)
    {
        const bool kept = value <= limit;
        std::printf("%-60s %9.2f of %7.2f %s%s\n", what, value, limit, unit, kept ? "" : "   BROKEN");
        std::fflush(stdout);
        m_allKept = m_allKept && kept;
    }

    int exitStatus() const { return m_allKept ? 0 : 1; }

private:
    bool m_allKept = true;
};

/// The value that the given share of the others does not exceed: 0.5 is the median. `values` is not empty.
inline double quantile(std::vector<double> values, double share)
{
    std::ranges::sort(values);
    return values[std::min(values.size() - 1, size_t(share * double(values.size())))];
}

} // namespace tessaly::bench
