// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/Libpng.h"

#include <png.h>

namespace tessaly::bench {

QByteArray libpngLevel6(const QImage &picture)
{
    QByteArray bytes;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    const auto append = [](png_structp writer, png_bytep data, size_t count) {
        static_cast<QByteArray *>(png_get_io_ptr(writer))->append(reinterpret_cast<char *>(data), qsizetype(count));
    };
    png_set_write_fn(png, &bytes, append, nullptr);
    png_set_compression_level(png, 6);
    png_set_IHDR(png, info, png_uint_32(picture.width()), png_uint_32(picture.height()), 8, PNG_COLOR_TYPE_RGB,
        PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_set_bgr(png);
    png_set_filler(png, 0, PNG_FILLER_AFTER);
    for (int y = 0; y < picture.height(); ++y)
        png_write_row(png, picture.constScanLine(y));
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return bytes;
}

} // namespace tessaly::bench
