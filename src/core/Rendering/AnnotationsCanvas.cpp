// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/AnnotationsCanvas.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"
#include "core/Rendering/PreparedCanvas.h"

#include <QPainter>

#include <cstring>

namespace tessaly {

ImageEffects::NoiseSeed AnnotationsCanvas::noiseSeedOfThisRun()
{
    static const ImageEffects::NoiseSeed seed = ImageEffects::NoiseSeed::random();
    return seed;
}

void AnnotationsCanvas::draw(QPainter &painter) const
{
    const PixelGrid grid { painter.deviceTransform() };
    if (!grid.toPixels.isInvertible())
        return;
    PreparedCanvas(*this, grid, QSize(), Parallel::defaultThreadCount()).paint(painter);
}

namespace {

/// The capture as it lies below the marks: copied where pixel falls on pixel, else stretched once.
class BaseLayer {
public:
    BaseLayer(const RasterImage &base, const CaptureSample &sample, QSize pixelSize) : m_pixels(base.pixels)
    {
        if (m_pixels.size() == pixelSize)
            return;
        // Stretching mixes neighbouring pixels, so it must not see what is hidden.
        m_pixels = sample.region(sample.pixelBounds())
                       .scaled(pixelSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(base.pixels.format());
    }

    bool isEmpty() const { return m_pixels.isNull(); }

    void copyRows(QImage &target, int firstRow, int endRow) const
    {
        for (int y = firstRow; y < endRow; ++y)
            std::memcpy(target.scanLine(y), m_pixels.constScanLine(y), size_t(m_pixels.width()) * 4);
    }

private:
    QImage m_pixels;
};

/// The whole picture as an object of its own over the same memory, for one thread.
QImage sharedView(QImage &image, uchar *bits)
{
    return QImage(bits, image.width(), image.height(), image.bytesPerLine(), image.format());
}

} // namespace

QImage AnnotationsCanvas::drawnOver(const RasterImage &base, QSize pixelSize, double scale, int threads) const
{
    const PixelGrid grid = PixelGrid::scaledBy(scale);
    const RasterImage pixels { base.pixels.hasAlphaChannel()
            ? base.pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied)
            : base.pixels.convertToFormat(QImage::Format_RGB32),
        base.pointSize };
    AnnotationsCanvas sampling = *this;
    sampling.source = source ? source : pixels;
    const PreparedCanvas prepared(sampling, grid, pixelSize, threads);
    const BaseLayer below(pixels, prepared.sample(), pixelSize);
    QImage result = PixelMemory::allocate(pixelSize, pixels.pixels.format());
    if (below.isEmpty() || result.isNull())
        return {};
    constexpr int rowsInBand = 32; // a band of a wide screen stays in the processor's cache
    uchar *bits = result.bits();
    Parallel::inBands(
        result.height(), (result.height() + rowsInBand - 1) / rowsInBand, threads, [&](int first, int end) {
            QImage view = sharedView(result, bits);
            below.copyRows(view, first, end);
            prepared.paint(view, QRect(0, first, view.width(), end - first));
        });
    return result;
}

} // namespace tessaly
