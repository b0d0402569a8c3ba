// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/GifEncoder.h"

#include "core/Export/ColorQuantizer.h"
#include "core/Export/IndexedPicture.h"

#include <QCoreApplication>

#include <gif_lib.h>

#include <algorithm>
#include <bit>
#include <memory>

namespace tessaly::GifEncoder {

namespace {

int appendBytes(GifFileType *gif, const GifByteType *bytes, int count)
{
    static_cast<QByteArray *>(gif->UserData)->append(reinterpret_cast<const char *>(bytes), count);
    return count;
}

struct MapFreed {
    void operator()(ColorMapObject *map) const { GifFreeMapObject(map); }
};

/// The format's tables have 2, 4, … 256 colours; what is not used is black.
std::unique_ptr<ColorMapObject, MapFreed> colorMap(const std::vector<QRgb> &colors)
{
    std::vector<GifColorType> entries(std::bit_ceil(std::max<size_t>(colors.size(), 2)));
    std::ranges::transform(colors, entries.begin(), [](QRgb color) {
        const auto part = [color](int shift) { return static_cast<GifByteType>(color >> shift); };
        return GifColorType { part(16), part(8), part(0) };
    });
    return std::unique_ptr<ColorMapObject, MapFreed>(
        GifMakeMapObject(static_cast<int>(entries.size()), entries.data()));
}

/// The extension that names the transparent colour.
bool putTransparency(GifFileType *gif, const std::vector<QRgb> &colors)
{
    const auto transparent = std::ranges::find(colors, 0u);
    if (transparent == colors.end())
        return true;
    const GraphicsControlBlock block { DISPOSAL_UNSPECIFIED, false, 0, static_cast<int>(transparent - colors.begin()) };
    GifByteType bytes[4];
    const auto size = static_cast<int>(EGifGCBToExtension(&block, bytes));
    return EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, size, bytes) == GIF_OK;
}

bool putPicture(GifFileType *gif, IndexedPicture &picture)
{
    const int width = picture.pixelSize.width(), height = picture.pixelSize.height();
    const auto map = colorMap(picture.colors);
    if (!map)
        return false;
    EGifSetGifVersion(gif, true);
    if (EGifPutScreenDesc(gif, width, height, 8, 0, map.get()) != GIF_OK || !putTransparency(gif, picture.colors)
        || EGifPutImageDesc(gif, 0, 0, width, height, false, nullptr) != GIF_OK)
        return false;
    for (int y = 0; y < height; ++y) {
        if (EGifPutLine(gif, picture.indices.data() + static_cast<size_t>(y) * static_cast<size_t>(width), width)
            != GIF_OK)
            return false;
    }
    return true;
}

/// Reduced pictures are indexed like any other, so that reading a file and writing it again gives the same bytes.
Result<IndexedPicture> indexed(const QImage &image)
{
    const QImage hard = withBinaryAlpha(image);
    if (auto exact = indexedExactly(hard))
        return *std::move(exact);
    const auto reduced = reducedColors(hard);
    if (!reduced)
        return reduced.failure();
    return indexedExactly(*reduced).value();
}

} // namespace

Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &)
{
    auto picture = indexed(image.pixels);
    if (!picture)
        return picture.failure();
    QByteArray file;
    int error = 0;
    GifFileType *gif = EGifOpen(&file, appendBytes, &error);
    const bool put = gif && putPicture(gif, *picture);
    const bool closed = gif && EGifCloseFile(gif, &error) == GIF_OK;
    if (!put || !closed)
        return Failure { QCoreApplication::translate(
            "GifEncoder", "There is not enough memory to write this picture as GIF.") };
    return file;
}

} // namespace tessaly::GifEncoder
