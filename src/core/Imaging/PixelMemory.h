// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <cstdlib>
#include <functional>
#include <memory>

namespace tessaly::PixelMemory {

struct Free {
    void operator()(uchar *bytes) const { std::free(bytes); }
};
using Bytes = std::unique_ptr<uchar[], Free>;

/// Memory of undefined content for large work. It is asked for in huge pages where the system has them: fresh small
/// pages cost more than filling them. Much of it goes back to the system at the end. Null when it is refused.
Bytes allocateBytes(std::size_t count);

/// A picture of undefined content in such memory. Null when the size is empty or the memory is refused.
QImage allocate(QSize pixelSize, QImage::Format format);

/// Faults in the pages of memory that is about to be written, in large pieces: the first writing would lose more time.
/// The content stays. Nothing is lost where the system cannot do it.
void populate(uchar *memory, std::size_t count, int threads);

/// The same, from the end, while the calling thread does `fill`, which writes to the memory from its beginning.
void populateBeside(const std::function<void()> &fill, uchar *memory, std::size_t count, int threads);

/// Has all threads share one heap, from here on: what is free at the end of a thread's own heap would not go back to
/// the system. For programs whose threads seldom ask for memory.
void shareHeap();

/// Gives the system what has come and gone on any thread and would stay with the program: for the end of a piece of
/// work in the background. Takes a millisecond or two.
void giveBack();

} // namespace tessaly::PixelMemory
