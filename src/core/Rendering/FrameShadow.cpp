// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/FrameShadow.h"

#include "core/Imaging/ImageEffects.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

/// Where the picture is opaque within its corners.
QImage alphaWithin(const QImage &content, const QPainterPath &shape, int spread)
{
    QImage coverage(content.size() + QSize(2 * spread, 2 * spread), QImage::Format_Grayscale8);
    coverage.fill(0);
    for (int y = 0; y < content.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(content.constScanLine(y));
        uchar *alpha = coverage.scanLine(y + spread) + spread;
        for (int x = 0; x < content.width(); ++x)
            alpha[x] = uchar(qAlpha(row[x]));
    }
    QPainterPath outside = shape;
    outside.setFillRule(Qt::OddEvenFill);
    outside.addRect(QRectF(content.rect()));
    QPainter painter(&coverage);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(spread, spread);
    painter.fillPath(outside, Qt::black);
    return coverage;
}

/// The same for an opaque picture of `size`.
QImage roundedRectangle(QSize size, const QPainterPath &shape, QSize removed, int spread)
{
    QImage coverage(size + QSize(2 * spread, 2 * spread), QImage::Format_Grayscale8);
    coverage.fill(0);
    QPainter painter(&coverage);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(spread, spread);
    // The right and lower corners move in by what the middle was shortened.
    QPainterPath shortened = shape;
    for (int index = 0; index < shape.elementCount(); ++index) {
        const QPointF point = shape.elementAt(index);
        shortened.setElementPositionAt(index,
            point.x() > shape.boundingRect().center().x() ? point.x() - removed.width() : point.x(),
            point.y() > shape.boundingRect().center().y() ? point.y() - removed.height() : point.y());
    }
    painter.fillPath(shortened, Qt::white);
    return coverage;
}

} // namespace

FrameShadow::FrameShadow(const QImage &content, const QPainterPath &shape, double cornerRadius, double radius)
{
    if (!content.hasAlphaChannel()) {
        *this = FrameShadow(content.size(), shape, cornerRadius, radius);
        return;
    }
    if (radius <= 0 || content.isNull())
        return;
    m_spread = static_cast<int>(std::ceil(3 * radius)) + 2;
    m_coverage = ImageEffects::shapedShadow(alphaWithin(content, shape, m_spread), radius);
    m_middle = { m_coverage.width() / 2, m_coverage.height() / 2 };
    m_size = content.size() + QSize(2 * m_spread, 2 * m_spread);
}

FrameShadow::FrameShadow(QSize size, const QPainterPath &shape, double cornerRadius, double radius)
{
    if (radius <= 0 || size.isEmpty())
        return;
    m_spread = static_cast<int>(std::ceil(3 * radius)) + 2;
    // Past a corner and its blur all columns, and all rows, are alike; a corner bends over up to twice its radius.
    const double bend = std::min(2 * cornerRadius, double(std::max(size.width(), size.height())));
    const int corner = 2 * (m_spread + static_cast<int>(std::ceil(bend)) + 2) + 1;
    const QSize kept = size.boundedTo({ corner, corner });
    m_coverage = ImageEffects::shapedShadow(roundedRectangle(kept, shape, size - kept, m_spread), radius);
    m_middle = { m_spread + kept.width() / 2, m_spread + kept.height() / 2 };
    m_size = size + QSize(2 * m_spread, 2 * m_spread);
}

int FrameShadow::sourceColumn(int x) const
{
    const int repeated = m_size.width() - m_coverage.width();
    return x <= m_middle.x() ? x : std::max(x - repeated, m_middle.x());
}

int FrameShadow::sourceRow(int y) const
{
    const int repeated = m_size.height() - m_coverage.height();
    return y <= m_middle.y() ? y : std::max(y - repeated, m_middle.y());
}

void FrameShadow::blend(QImage &target, const QRect &area, QPoint origin, double opacity) const
{
    if (m_coverage.isNull())
        return;
    const QPoint corner = origin - QPoint(m_spread, m_spread) * m_magnification;
    const QRect shaded = QRect(corner, m_size * m_magnification).intersected(area);
    const unsigned strength = static_cast<unsigned>(std::lround(opacity * 256));
    const bool translucent = target.hasAlphaChannel();
    for (int y = shaded.top(); y <= shaded.bottom(); ++y) {
        const uchar *coverage = m_coverage.constScanLine(sourceRow((y - corner.y()) / m_magnification));
        auto *row = reinterpret_cast<QRgb *>(target.scanLine(y));
        for (int x = shaded.left(); x <= shaded.right(); ++x) {
            const unsigned dark = (coverage[sourceColumn((x - corner.x()) / m_magnification)] * strength + 128) >> 8;
            const auto dimmed = [&](int value) { return int((unsigned(value) * (255 - dark) + 127) / 255); };
            const int alpha = translucent ? dimmed(qAlpha(row[x])) + int(dark) : 255;
            row[x] = qRgba(dimmed(qRed(row[x])), dimmed(qGreen(row[x])), dimmed(qBlue(row[x])), alpha);
        }
    }
}

} // namespace tessaly
