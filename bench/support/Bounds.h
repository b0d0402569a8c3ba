// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tessaly::bench {

/// What one benchmark must stay below, measured against another of the same run.
struct Bound {
    std::string subject; ///< name of the benchmark that is bounded
    std::string baseline; ///< name of the one it is compared with
    double maxRatio = 1; ///< subject ÷ baseline
    std::string counter = {}; ///< empty compares the time, else this counter
};

/// The whole of a benchmark program's `main`: runs the benchmarks in interleaved repetitions, then prints each bound
/// with the ratio of the medians. The exit status is 1 when a bound is broken or one of its benchmarks did not run.
int runWithBounds(int argc, char **argv, const std::vector<Bound> &bounds);

} // namespace tessaly::bench
