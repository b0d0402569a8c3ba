// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/ViewLayer.h"

#include "core/Imaging/PixelMemory.h"

#include <cstring>

namespace tessaly {

void copyPixels(const QImage &source, const QRect &from, QImage &target, QPoint to)
{
    for (int y = 0; y < from.height(); ++y) {
        std::memcpy(target.scanLine(to.y() + y) + qsizetype(to.x()) * 4,
            source.constScanLine(from.top() + y) + qsizetype(from.left()) * 4, size_t(from.width()) * 4);
    }
}

void ViewLayer::reset(const QRect &area, QImage::Format format)
{
    m_area = area;
    if (m_image.size() == area.size() && m_image.format() == format && m_image.isDetached())
        return;
    m_image = {}; // the old memory goes before the new one comes
    m_image = PixelMemory::allocate(area.size(), format);
}

QRegion ViewLayer::scroll(QPoint by, const QRect &area)
{
    const QRect kept = m_area.translated(by).intersected(area);
    const QRect before = m_area.translated(by);
    m_area = area;
    if (area.size() == m_image.size() && m_image.isDetached()) {
        const QPoint from = kept.topLeft() - before.topLeft(), to = kept.topLeft() - area.topLeft();
        // Rows must be read before they are written over.
        for (int row = 0; row < kept.height(); ++row) {
            const int y = to.y() > from.y() ? kept.height() - 1 - row : row;
            std::memmove(m_image.scanLine(to.y() + y) + qsizetype(to.x()) * 4,
                m_image.constScanLine(from.y() + y) + qsizetype(from.x()) * 4, size_t(kept.width()) * 4);
        }
    } else {
        QImage moved = PixelMemory::allocate(area.size(), m_image.format());
        if (!moved.isNull() && !kept.isEmpty())
            copyPixels(m_image, kept.translated(-before.topLeft()), moved, kept.topLeft() - area.topLeft());
        m_image = moved;
    }
    return QRegion(area) - kept;
}

} // namespace tessaly
