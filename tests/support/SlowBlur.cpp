// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/SlowBlur.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace tessaly::test {

namespace {

/// One line of numbers, `step` apart, blurred in place.
void blurLine(double *line, int length, int step, double radius, bool edgeGoesOn)
{
    const int reach = int(std::ceil(4 * radius)) + 1;
    std::vector<double> blurred(length);
    for (int place = 0; place < length; ++place) {
        double sum = 0, weights = 0;
        for (int offset = -reach; offset <= reach; ++offset) {
            const double weight = std::exp(-offset * offset / (2 * radius * radius));
            const int inside = std::clamp(place + offset, 0, length - 1);
            weights += weight;
            if (edgeGoesOn || inside == place + offset)
                sum += weight * line[inside * step];
        }
        blurred[place] = sum / weights;
    }
    for (int place = 0; place < length; ++place)
        line[place * step] = blurred[place];
}

} // namespace

QImage slowBlur(const QImage &image, double radius, bool edgeGoesOn)
{
    const int channels = image.depth() / 8, width = image.width() * channels;
    std::vector<double> values(std::size_t(width) * image.height());
    for (int y = 0; y < image.height(); ++y)
        std::copy_n(image.constScanLine(y), width, values.begin() + std::ptrdiff_t(y) * width);
    for (int x = 0; x < width; ++x)
        blurLine(values.data() + x, image.height(), width, radius, edgeGoesOn);
    for (int y = 0; y < image.height(); ++y) {
        for (int channel = 0; channel < channels; ++channel)
            blurLine(values.data() + std::ptrdiff_t(y) * width + channel, image.width(), channels, radius, edgeGoesOn);
    }
    QImage blurred(image.size(), image.format());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < width; ++x)
            blurred.scanLine(y)[x] = uchar(std::lround(values[std::size_t(y) * width + x]));
    }
    return blurred;
}

int largestDifference(const QImage &one, const QImage &other)
{
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width() * one.depth() / 8; ++x)
            largest = std::max(largest, std::abs(one.constScanLine(y)[x] - other.constScanLine(y)[x]));
    }
    return largest;
}

} // namespace tessaly::test
