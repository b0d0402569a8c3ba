// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ImageEncoder.h"

#include "core/Export/BmpEncoder.h"
#include "core/Export/GifEncoder.h"
#include "core/Export/JpegEncoder.h"
#include "core/Export/PdfEncoder.h"
#include "core/Export/PngEncoder.h"
#include "core/Export/TiffEncoder.h"
#include "core/Export/WebPEncoder.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <new>

namespace tessaly {

namespace {

struct Encoder {
    ExportFormat format;
    Result<QByteArray> (*encode)(const RasterImage &image, const EncodeOptions &options);
    int maxSide = std::numeric_limits<int>::max();
};

constexpr std::array<Encoder, 7> encoders { {
    { ExportFormat::Png, PngEncoder::encode },
    { ExportFormat::Jpeg, JpegEncoder::encode, JpegEncoder::maxSide },
    { ExportFormat::Webp, WebPEncoder::encode, WebPEncoder::maxSide },
    { ExportFormat::Pdf, PdfEncoder::encode },
    { ExportFormat::Tiff, TiffEncoder::encode },
    { ExportFormat::Gif, GifEncoder::encode, GifEncoder::maxSide },
    { ExportFormat::Bmp, BmpEncoder::encode },
} };

} // namespace

Result<QByteArray> encodeImage(const RasterImage &image, ExportFormat format, const EncodeOptions &options)
{
    if (image.isEmpty())
        return Failure { QCoreApplication::translate("ImageEncoder", "There is no picture to write.") };
    const Encoder &encoder = *std::ranges::find(encoders, format, &Encoder::format);
    const QSize size = image.pixelSize();
    if (std::max(size.width(), size.height()) > encoder.maxSide) {
        return Failure { QCoreApplication::translate(
            "ImageEncoder", "A %1 picture can be at most %2 pixels wide and high, and this one has %3 × %4.")
                             .arg(label(format), QString::number(encoder.maxSide), QString::number(size.width()),
                                 QString::number(size.height())) };
    }
    try {
        return encoder.encode(image, options);
    } catch (const std::bad_alloc &) {
        return Failure { QCoreApplication::translate(
            "ImageEncoder", "There is not enough memory to write this picture.") };
    }
}

} // namespace tessaly
