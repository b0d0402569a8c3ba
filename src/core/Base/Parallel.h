// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace tessaly::Parallel {

/// How many threads a picture is worked on with: the processor's cores, at most 8.
int defaultThreadCount();

/// Calls `work(index)` once for every index in 0 … count − 1, on the calling thread and up to
/// `threads` − 1 others, and returns when all are done. The order is not defined; the calls must not
/// depend on each other. One thread, or one index, runs everything on the calling thread.
void forEach(int count, int threads, const std::function<void(int index)> &work);

/// The same while the calling thread first does `here`, which only it may do, and then helps. With one thread `here`
/// comes first.
void forEachBeside(
    const std::function<void()> &here, int count, int threads, const std::function<void(int index)> &work);

/// Splits `rows` rows into `bands` nearly equal runs and calls `work(firstRow, endRow)` for each, as forEach does.
void inBands(int rows, int bands, int threads, const std::function<void(int firstRow, int endRow)> &work);

} // namespace tessaly::Parallel
