// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ColorQuantizer.h"

#include <QCoreApplication>

#include <libimagequant.h>
#include <omp.h>

#include <memory>
#include <span>
#include <vector>

namespace tessaly {

namespace {

struct Destroyed {
    void operator()(liq_attr *attributes) const { liq_attr_destroy(attributes); }
    void operator()(liq_image *image) const { liq_image_destroy(image); }
    void operator()(liq_result *result) const { liq_result_destroy(result); }
};
template <class T>
using Owned = std::unique_ptr<T, Destroyed>;

/// The quantiser's threads add up in the order in which they finish, which shows in the last digit and so in the
/// colours.
class OneThread {
public:
    OneThread() { omp_set_num_threads(1); }
    ~OneThread() { omp_set_num_threads(m_before); }
    Q_DISABLE_COPY_MOVE(OneThread)

private:
    int m_before = omp_get_max_threads();
};

// Mean square error from which on dithering gains more than its noise costs. Interfaces stay far below it; pictures
// with broad gradients or photographs come above.
constexpr double errorThatDitheringHides = 0.5;

void readRow(liq_color target[], int row, int width, void *userInfo)
{
    const auto &image = *static_cast<const QImage *>(userInfo);
    const auto *pixels = reinterpret_cast<const QRgb *>(image.constScanLine(row));
    for (int x = 0; x < width; ++x) {
        const auto part = [&](int shift) { return static_cast<unsigned char>(pixels[x] >> shift); };
        const unsigned char alpha = image.hasAlphaChannel() ? part(24) : 255;
        target[x] = { part(16), part(8), part(0), alpha };
    }
}

/// The index of every pixel; empty when there is no memory.
std::vector<uint8_t> remapped(const QImage &image, std::vector<QRgb> &colors)
{
    const OneThread oneThread;
    const Owned<liq_attr> attributes(liq_attr_create());
    if (!attributes)
        return {};
    auto *userInfo = const_cast<QImage *>(&image); // only read
    const Owned<liq_image> source(
        liq_image_create_custom(attributes.get(), readRow, userInfo, image.width(), image.height(), 0));
    liq_result *found = nullptr;
    if (!source || liq_image_quantize(source.get(), attributes.get(), &found) != LIQ_OK)
        return {};
    const Owned<liq_result> result(found);
    const bool dithered = liq_get_quantization_error(found) > errorThatDitheringHides;
    std::vector<uint8_t> indices(static_cast<size_t>(image.width()) * static_cast<size_t>(image.height()));
    if (liq_set_dithering_level(found, dithered ? 1 : 0) != LIQ_OK
        || liq_write_remapped_image(found, source.get(), indices.data(), indices.size()) != LIQ_OK)
        return {};
    const liq_palette *palette = liq_get_palette(found);
    for (const liq_color &entry : std::span(palette->entries).first(palette->count))
        colors.push_back(qRgb(entry.r, entry.g, entry.b));
    return indices;
}

} // namespace

Result<QImage> reducedColors(const QImage &image)
{
    std::vector<QRgb> colors;
    const std::vector<uint8_t> indices = remapped(image, colors);
    QImage result(image.size(), image.format());
    if (indices.empty() || result.isNull())
        return Failure { QCoreApplication::translate(
            "ColorQuantizer", "There is not enough memory to reduce the colors of this picture.") };
    const uint8_t *index = indices.data();
    for (int y = 0; y < result.height(); ++y) {
        const auto *source = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        auto *target = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x, ++index)
            target[x] = image.hasAlphaChannel() && source[x] == 0 ? 0 : colors[*index];
    }
    return result;
}

} // namespace tessaly
