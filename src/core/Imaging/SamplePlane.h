// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/PixelMemory.h"

namespace tessaly {

/// Picture samples of 16 bits, 8 of them after the point, with 1 or 4 channels side by side. Undefined at first.
class SamplePlane {
public:
    using Sample = std::uint16_t;

    SamplePlane(int width, int height, int channels) :
        m_memory(PixelMemory::allocate(
            { width, height }, channels == 4 ? QImage::Format_RGBA64 : QImage::Format_Grayscale16)),
        m_samples(reinterpret_cast<Sample *>(m_memory.bits())),
        m_rowStep(m_memory.bytesPerLine() / 2),
        m_channels(channels)
    {
    }

    /// The memory was refused.
    bool isNull() const { return m_memory.isNull(); }

    int width() const { return m_memory.width(); }
    int height() const { return m_memory.height(); }
    int channels() const { return m_channels; }

    /// Samples from one row to the next.
    qsizetype rowStep() const { return m_rowStep; }

    Sample *row(int y) { return m_samples + y * m_rowStep; }
    const Sample *row(int y) const { return m_samples + y * m_rowStep; }

private:
    QImage m_memory;
    Sample *m_samples;
    qsizetype m_rowStep;
    int m_channels;
};

} // namespace tessaly
