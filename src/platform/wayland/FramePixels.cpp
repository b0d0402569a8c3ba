// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/FramePixels.h"

#include <QTransform>

namespace tessaly::FramePixels {

namespace {

struct Row {
    uint32_t shared; ///< of wl_shm, whose names go from the highest bit to the lowest
    QImage::Format image;
};

/// Alpha of the screen means nothing, so formats with it are read as those without.
constexpr Row rows[] = {
    { WL_SHM_FORMAT_XRGB8888, QImage::Format_RGB32 },
    { WL_SHM_FORMAT_ARGB8888, QImage::Format_RGB32 },
    { WL_SHM_FORMAT_XBGR8888, QImage::Format_RGBX8888 },
    { WL_SHM_FORMAT_ABGR8888, QImage::Format_RGBX8888 },
    { WL_SHM_FORMAT_XRGB2101010, QImage::Format_RGB30 },
    { WL_SHM_FORMAT_ARGB2101010, QImage::Format_RGB30 },
    { WL_SHM_FORMAT_XBGR2101010, QImage::Format_BGR30 },
    { WL_SHM_FORMAT_ABGR2101010, QImage::Format_BGR30 },
    { WL_SHM_FORMAT_RGB888, QImage::Format_BGR888 },
    { WL_SHM_FORMAT_BGR888, QImage::Format_RGB888 },
    { WL_SHM_FORMAT_RGB565, QImage::Format_RGB16 },
};

std::optional<QImage::Format> imageFormat(uint32_t shared)
{
    const auto *row = std::ranges::find(rows, shared, &Row::shared);
    return row == std::end(rows) ? std::nullopt : std::optional(row->image);
}

/// Qt and the compositor leave the top byte of these formats undefined.
void makeOpaque(uchar *pixels, qsizetype bytesPerLine, const QRect &rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        auto *line = reinterpret_cast<quint32 *>(pixels + y * bytesPerLine) + rect.left();
        for (int x = 0; x < rect.width(); ++x)
            line[x] |= 0xff000000;
    }
}

QImage upright(const QImage &picture, Orientation orientation)
{
    QTransform turn;
    if (orientation.transform >= WL_OUTPUT_TRANSFORM_FLIPPED)
        turn.scale(-1, 1);
    turn.rotate(90.0 * (orientation.transform % 4));
    if (orientation.bottomUp)
        turn.scale(1, -1);
    return picture.transformed(turn);
}

} // namespace

bool isReadable(uint32_t format) { return imageFormat(format).has_value(); }

QImage part(const std::shared_ptr<SharedBuffer> &buffer, Orientation orientation, const QRect &pixelRect)
{
    const auto &[shared, size, bytesPerLine] = buffer->layout();
    const auto format = imageFormat(shared);
    if (!format)
        return {};
    uchar *memory = buffer->memory();
    if (orientation.isUpright() && *format == QImage::Format_RGB32) {
        const QRect inside = pixelRect & QRect(QPoint(), size);
        makeOpaque(memory, bytesPerLine, inside);
        uchar *first = memory + inside.top() * qsizetype(bytesPerLine) + inside.left() * qsizetype(4);
        // A small part is worth a copy: it would keep the memory of the whole monitor.
        const bool large = qint64(inside.width()) * inside.height() * 2 > qint64(size.width()) * size.height();
        if (!large)
            return QImage(first, inside.width(), inside.height(), bytesPerLine, *format).copy();
        auto *kept = new std::shared_ptr<SharedBuffer>(buffer);
        return QImage(
            first, inside.width(), inside.height(), bytesPerLine, *format,
            [](void *pointer) { delete static_cast<std::shared_ptr<SharedBuffer> *>(pointer); }, kept);
    }
    const QImage whole(memory, size.width(), size.height(), bytesPerLine, *format);
    const QImage turned = orientation.isUpright() ? whole : upright(whole, orientation);
    QImage picture = turned.copy(pixelRect & turned.rect()).convertToFormat(QImage::Format_RGB32);
    makeOpaque(picture.bits(), picture.bytesPerLine(), picture.rect());
    return picture;
}

} // namespace tessaly::FramePixels
