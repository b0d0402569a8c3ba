// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/JpegEncoder.h"

#include "core/Export/JpegFactor.h"
#include "core/Export/OpaqueCopy.h"
#include "core/Imaging/ResolutionRecord.h"

#include <QCoreApplication>

#include <cmath>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

namespace tessaly::JpegEncoder {

namespace {

/// The library reports by a call that must not return; it comes back here by longjmp.
struct ErrorManager : jpeg_error_mgr {
    jmp_buf back;
    char message[JMSG_LENGTH_MAX];
};

[[noreturn]] void comeBack(j_common_ptr state)
{
    auto *manager = static_cast<ErrorManager *>(state->err);
    manager->format_message(state, manager->message);
    std::longjmp(manager->back, 1);
}

void ignoreMessage(j_common_ptr) { }

struct Request {
    const QImage &pixels; ///< Format_RGB32
    int quality; ///< 0 to 100
    std::optional<int> dpi;
};

void compress(jpeg_compress_struct &jpeg, const Request &request)
{
    jpeg.image_width = static_cast<JDIMENSION>(request.pixels.width());
    jpeg.image_height = static_cast<JDIMENSION>(request.pixels.height());
    jpeg.input_components = 4;
    jpeg.in_color_space = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRX : JCS_EXT_XRGB;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, request.quality, TRUE);
    jpeg.optimize_coding = TRUE;
    jpeg.comp_info[0].h_samp_factor = jpeg.comp_info[0].v_samp_factor = 1;
    if (request.dpi) {
        jpeg.density_unit = 1;
        jpeg.X_density = jpeg.Y_density = static_cast<UINT16>(*request.dpi);
    }
    jpeg_start_compress(&jpeg, TRUE);
    while (jpeg.next_scanline < jpeg.image_height) {
        // The library's rows are not const, but it only reads them.
        const uchar *constant = request.pixels.constScanLine(static_cast<int>(jpeg.next_scanline));
        JSAMPROW row = const_cast<JSAMPROW>(constant);
        jpeg_write_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_compress(&jpeg);
}

/// Nothing in here has a destructor, because an error jumps out of it. The caller frees `buffer` in any case.
bool compressInto(unsigned char *&buffer, unsigned long &size, const Request &request, ErrorManager &manager)
{
    jpeg_compress_struct jpeg = {};
    jpeg.err = jpeg_std_error(&manager);
    manager.error_exit = comeBack;
    manager.output_message = ignoreMessage;
    if (setjmp(manager.back)) {
        jpeg_destroy_compress(&jpeg);
        return false;
    }
    jpeg_create_compress(&jpeg);
    jpeg_mem_dest(&jpeg, &buffer, &size);
    compress(jpeg, request);
    jpeg_destroy_compress(&jpeg);
    return true;
}

} // namespace

Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options)
{
    const QImage pixels = opaque(image).pixels;
    const int quality = static_cast<int>(std::lround(100 * jpegFactor(options.quality)));
    ErrorManager manager = {};
    unsigned char *buffer = nullptr;
    unsigned long size = 0;
    const bool done = compressInto(buffer, size, { pixels, quality, ResolutionRecord::dpiToRecord(image) }, manager);
    const QByteArray file(reinterpret_cast<const char *>(buffer), done ? static_cast<qsizetype>(size) : 0);
    std::free(buffer);
    if (!done)
        return Failure { QCoreApplication::translate("JpegEncoder", "The picture could not be written as JPEG: %1.")
                             .arg(QString::fromLatin1(manager.message)) };
    return file;
}

} // namespace tessaly::JpegEncoder
