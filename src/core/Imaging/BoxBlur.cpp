// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/BoxBlur.h"

#include "core/Imaging/WideVectors.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace tessaly {

using GaussianBlur::Outside;
using Sample = SamplePlane::Sample;

namespace {

/// So many samples side by side are worked on together.
constexpr int laneCount = 16;

/// One box over places `first` to before `end` of interleaved lanes. `in` must hold `radius` + 1 more on either side.
TESSALY_WIDE_VECTORS
void blurLanes(
    const float *__restrict in, float *__restrict out, int first, int end, int radius, float edge, float scale)
{
    float sums[laneCount] = {};
    for (int place = first - radius; place < first + radius; ++place) {
        for (int lane = 0; lane < laneCount; ++lane)
            sums[lane] += in[place * laneCount + lane];
    }
    for (int place = first; place < end; ++place) {
        const float *entering = in + (place + radius) * laneCount, *leaving = in + (place - radius) * laneCount;
        const float *after = entering + laneCount, *before = leaving - laneCount;
        float *blurred = out + place * laneCount;
        for (int lane = 0; lane < laneCount; ++lane) {
            const float sum = sums[lane] + entering[lane];
            blurred[lane] = (sum + (after[lane] + before[lane]) * edge) * scale;
            sums[lane] = sum - leaving[lane];
        }
    }
}

TESSALY_WIDE_VECTORS
void toNumbers(const Sample *__restrict samples, int count, float *__restrict numbers)
{
    for (int index = 0; index < count; ++index)
        numbers[index] = samples[index];
}

TESSALY_WIDE_VECTORS
void toSamples(const float *__restrict numbers, int count, Sample *__restrict samples)
{
    for (int index = 0; index < count; ++index)
        samples[index] = static_cast<Sample>(static_cast<int>(numbers[index] + 0.5f));
}

} // namespace

/// Lines of samples that run either way through two planes. Steps count samples.
struct BoxBlur::Lines {
    const Sample *in;
    Sample *out;
    qsizetype inAlong, inAcross;
    qsizetype outAlong, outAcross;
    int length, count, channels;
};

/// A few lines side by side, interleaved: some places are read with their surroundings, blurred and written.
class BoxBlur::Strip {
public:
    Strip(const BoxBlur &blur, const Lines &lines, int maxPlaces) :
        m_blur(blur),
        m_lines(lines),
        m_margin(3 * blur.reach()),
        m_samples(std::size_t(maxPlaces + 2 * m_margin) * laneCount),
        m_from(m_samples.size()),
        m_to(m_samples.size())
    {
    }

    void blur(int line, int count, int firstPlace, int places)
    {
        const int end = places + 2 * m_margin;
        for (int place = 0; place < end; ++place)
            read(line, count, firstPlace - m_margin + place, m_samples.data() + place * laneCount);
        toNumbers(m_samples.data(), end * laneCount, m_from.data());
        for (int reach = m_blur.reach(); reach <= m_margin; reach += m_blur.reach(), m_from.swap(m_to))
            blurLanes(m_from.data(), m_to.data(), reach, end - reach, m_blur.m_radius, m_blur.m_edge, m_blur.m_scale);
        toSamples(m_from.data() + m_margin * laneCount, places * laneCount, m_samples.data());
        for (int place = 0; place < places; ++place)
            write(line, count, firstPlace + place, m_samples.data() + place * laneCount);
    }

private:
    void read(int line, int count, int place, Sample *samples) const
    {
        const int inside = std::clamp(place, 0, m_lines.length - 1);
        if (place != inside && m_blur.m_outside == Outside::Nothing) {
            std::fill_n(samples, laneCount, Sample(0));
            return;
        }
        const Sample *first = m_lines.in + inside * m_lines.inAlong + line * m_lines.inAcross;
        move(first, m_lines.inAcross, samples, m_lines.channels, count);
    }

    void write(int line, int count, int place, const Sample *samples) const
    {
        Sample *first = m_lines.out + place * m_lines.outAlong + line * m_lines.outAcross;
        move(samples, m_lines.channels, first, m_lines.outAcross, count);
    }

    /// Copies `count` pixels that lie so many samples apart there and here.
    void move(const Sample *from, qsizetype fromStep, Sample *to, qsizetype toStep, int count) const
    {
        const int channels = m_lines.channels;
        if (fromStep == toStep && count * channels == laneCount) {
            std::memcpy(to, from, laneCount * sizeof(Sample));
            return;
        }
        for (; count > 0; --count, from += fromStep, to += toStep) {
            if (channels == 4)
                std::memcpy(to, from, 4 * sizeof(Sample));
            else
                *to = *from;
        }
    }

    const BoxBlur &m_blur;
    const Lines &m_lines;
    int m_margin;
    std::vector<Sample> m_samples;
    std::vector<float> m_from, m_to;
};

BoxBlur::BoxBlur(double variance, Outside outside) : m_outside(outside)
{
    const double each = variance / 3;
    m_radius = static_cast<int>((std::sqrt(1 + 12 * each) - 1) / 2);
    const double inner = m_radius * (m_radius + 1.0) / 3, next = (m_radius + 1.0) * (m_radius + 1.0);
    const double width = 2 * m_radius + 1, edge = width * (each - inner) / (2 * (next - each));
    m_edge = static_cast<float>(edge);
    m_scale = static_cast<float>(1 / (width + 2 * edge));
}

void BoxBlur::blurLines(const Lines &lines) const
{
    // So many places of a strip at a time: its two copies then stay within the processor's second cache.
    constexpr int maxPlaces = 512;
    const int places = std::min(maxPlaces, lines.length), width = laneCount / lines.channels;
    Strip strip(*this, lines, places);
    for (int line = 0; line < lines.count; line += width) {
        for (int place = 0; place < lines.length; place += places)
            strip.blur(line, std::min(width, lines.count - line), place, std::min(places, lines.length - place));
    }
}

void BoxBlur::blurColumns(const SamplePlane &in, SamplePlane &out, int first, int end) const
{
    const int channels = in.channels();
    const qsizetype offset = qsizetype(first) * channels;
    blurLines({ in.row(0) + offset, out.row(0) + offset, in.rowStep(), channels, out.rowStep(), channels, in.height(),
        end - first, channels });
}

void BoxBlur::blurRows(const SamplePlane &in, int first, SamplePlane &out) const
{
    const int channels = in.channels();
    blurLines({ in.row(first), out.row(0), channels, in.rowStep(), channels, out.rowStep(), in.width(), out.height(),
        channels });
}

} // namespace tessaly
