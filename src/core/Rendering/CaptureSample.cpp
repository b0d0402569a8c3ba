// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/CaptureSample.h"

#include "core/Imaging/PixelMemory.h"
#include "core/Rendering/PixelGrid.h"

#include <QDataStream>

#include <algorithm>
#include <cstring>

namespace tessaly {

CaptureSample::CaptureSample(const RasterImage &image, QSizeF canvasSize, std::vector<HiddenArea> hidden)
{
    if (image.pixels.isNull() || canvasSize.isEmpty())
        return;
    const bool usable
        = image.pixels.format() == QImage::Format_RGB32 || image.pixels.format() == QImage::Format_ARGB32_Premultiplied;
    m_pixels = usable ? image.pixels : image.pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    m_toPixels = QTransform::fromScale(m_pixels.width() / canvasSize.width(), m_pixels.height() / canvasSize.height());
    for (const HiddenArea &one : hidden)
        m_hidden.emplace_back(touchedPixels(one.area), one.color.rgb());
}

QRect CaptureSample::touchedPixels(const QRectF &points) const
{
    return outwardRect(m_toPixels.mapRect(points)).intersected(m_pixels.rect());
}

QRectF CaptureSample::pointsOf(const QRect &pixels) const { return m_toPixels.inverted().mapRect(QRectF(pixels)); }

std::vector<std::pair<QRect, QRgb>> CaptureSample::hiddenIn(const QRect &pixels) const
{
    std::vector<std::pair<QRect, QRgb>> inside;
    for (const auto &[area, color] : m_hidden) {
        if (area.intersects(pixels))
            inside.emplace_back(area.intersected(pixels).translated(-pixels.topLeft()), color);
    }
    return inside;
}

QImage CaptureSample::region(const QRect &pixels) const
{
    const QRect inside = pixels.intersected(m_pixels.rect());
    QImage copy = PixelMemory::allocate(inside.size(), m_pixels.format());
    if (copy.isNull())
        return {};
    for (int y = 0; y < inside.height(); ++y) {
        std::memcpy(copy.scanLine(y), m_pixels.constScanLine(inside.top() + y) + qsizetype(inside.left()) * 4,
            size_t(inside.width()) * 4);
    }
    for (const auto &[area, color] : hiddenIn(inside)) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            auto *row = reinterpret_cast<QRgb *>(copy.scanLine(y));
            std::fill(row + area.left(), row + area.right() + 1, color);
        }
    }
    return copy;
}

QByteArray CaptureSample::key(const QRect &pixels) const
{
    QByteArray key;
    QDataStream stream(&key, QIODevice::WriteOnly);
    stream << m_pixels.cacheKey() << pixels;
    for (const auto &[area, color] : hiddenIn(pixels))
        stream << area << color;
    return key;
}

} // namespace tessaly
