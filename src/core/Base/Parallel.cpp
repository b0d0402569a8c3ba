// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/Parallel.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace tessaly::Parallel {

int defaultThreadCount() { return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, 8); }

void forEach(int count, int threads, const std::function<void(int)> &work)
{
    // This thread takes part from the start, so one index fewer is left for others.
    forEachBeside([] {}, count, std::min(threads, count), work);
}

void forEachBeside(const std::function<void()> &here, int count, int threads, const std::function<void(int)> &work)
{
    std::atomic<int> next = 0;
    const auto drain = [&] {
        for (int index = next++; index < count; index = next++)
            work(index);
    };
    // New threads each time: measured against waiting ones of a pool, they gain more on a whole picture (a new thread
    // begins on the idlest core) than they cost on a small one.
    std::vector<std::jthread> others;
    for (int other = 0; other < std::min(threads - 1, count); ++other)
        others.emplace_back(drain);
    here();
    drain();
}

void inBands(int rows, int bands, int threads, const std::function<void(int, int)> &work)
{
    const int count = std::clamp(bands, 1, std::max(rows, 1));
    forEach(count, threads, [&](int index) {
        const auto edge = [&](int band) { return static_cast<int>(static_cast<long long>(rows) * band / count); };
        work(edge(index), edge(index + 1));
    });
}

} // namespace tessaly::Parallel
