// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/OverlayWindow.h"

#include "core/Imaging/PixelMemory.h"

#include <QPainter>
#include <QPaintEvent>
#include <QScreen>

#include <cmath>

namespace tessaly {

namespace {

/// Points that cover device pixels, also after the rounding of places and sizes for themselves that follows.
QRect pointsAround(const QRect &pixels, double scale)
{
    if (scale == 1)
        return pixels;
    const QPoint topLeft(int(std::floor(pixels.x() / scale)), int(std::floor(pixels.y() / scale)));
    const QPoint end(int(std::ceil((pixels.right() + 1) / scale)), int(std::ceil((pixels.bottom() + 1) / scale)));
    return { topLeft, end };
}

QRect pixelsAround(const QRect &points, double scale)
{
    if (scale == 1)
        return points;
    const QPoint topLeft(int(std::floor(points.x() * scale)), int(std::floor(points.y() * scale)));
    const QPoint end(int(std::ceil((points.right() + 1) * scale)), int(std::ceil((points.bottom() + 1) * scale)));
    return { topLeft, end };
}

template <class Convert>
QRegion converted(const QRegion &region, double scale, Convert convert)
{
    QRegion result;
    for (const QRect &rect : region)
        result += convert(rect, scale);
    return result;
}

} // namespace

OverlayWindow::OverlayWindow(QScreen &screen, bool seeThrough, bool takesParts) :
    QWindow(&screen),
    m_store(this),
    m_seeThrough(seeThrough),
    m_takesParts(takesParts)
{
    setSurfaceType(QSurface::RasterSurface);
    QSurfaceFormat format = requestedFormat();
    format.setAlphaBufferSize(seeThrough ? 8 : 0);
    setFormat(format);
    // Wayland compositors apply a state with the next picture. Qt asks for none where the size stays as it was, and
    // does not send again what it has sent: something must be painted.
    connect(this, &QWindow::windowStateChanged, this, [this] { updatePixels(QRect(0, 0, 1, 1)); });
}

OverlayWindow::~OverlayWindow() { waitForSurface(); }

void OverlayWindow::prepareSurface(OverlayUse use)
{
    if (m_store.size() == size() || (use == OverlayUse::AtOnce && rowsOfPart() > 0))
        return;
    waitForSurface();
    m_painted = false;
    m_store.resize(size());
    m_store.beginPaint(QRect(QPoint(), size()));
    // The system gives memory when it is first written to.
    // One thread: the screen is read meanwhile, by this program and the server in turn.
    if (auto *image = dynamic_cast<QImage *>(m_store.paintDevice()); image && !image->isNull())
        m_preparing = std::thread(PixelMemory::populate, image->bits(), static_cast<size_t>(image->sizeInBytes()), 1);
    m_store.endPaint();
}

void OverlayWindow::waitForSurface()
{
    if (m_preparing.joinable())
        m_preparing.join();
}

void OverlayWindow::releaseSurface()
{
    discardPainting();
    waitForSurface();
    m_store.resize(QSize(1, 1));
    m_pixels = {};
}

void OverlayWindow::discardPainting()
{
    m_painted = m_shown = false;
    m_dirty = m_exposed = {};
}

void OverlayWindow::paintAhead()
{
    m_dirty = {};
    waitForSurface();
    // Memory of a whole monitor that has not been made before costs more than the painting, on both sides.
    m_rowsOfPart = m_store.size() == size() ? 0 : rowsOfPart();
    if (m_rowsOfPart > 0)
        m_store.resize(QSize(width(), 2 * m_rowsOfPart)); // one part is painted while the other one is being shown
    else
        m_store.resize(size());
    if (m_rowsOfPart == 0)
        paintPoints(pointsOf(pixelsAround(QRect(QPoint(), size()), pixelsPerPoint())));
    m_painted = true;
}

double OverlayWindow::pixelsPerPoint() const
{
    const double own = devicePixelRatio();
    const int points = screen() ? screen()->size().width() : 0;
    if (m_pixelSize.isEmpty() || points == 0)
        return own;
    constexpr double rounding = 0.01; // of a monitor's points to whole ones
    const double exact = double(m_pixelSize.width()) / points;
    return std::abs(exact - screen()->devicePixelRatio()) < rounding ? own : exact;
}

bool OverlayWindow::isResampled() const { return pixelsPerPoint() != devicePixelRatio(); }

/// Of the window in points, whole device pixels each; 0 where it is painted as a whole.
int OverlayWindow::rowsOfPart() const
{
    constexpr int most = 64, least = 16; // of a wide monitor less than a megabyte, which stays in the processor's cache
    if (!m_takesParts || isResampled())
        return 0;
    const double scale = pixelsPerPoint();
    for (int rows = int(most / scale); rows * scale >= least; --rows)
        if (const double pixels = rows * scale; pixels == std::floor(pixels))
            return rows;
    return 0;
}

/// Around the pixels.
QRegion OverlayWindow::pointsOf(const QRegion &pixels) const
{
    return converted(pixels, pixelsPerPoint(), pointsAround) & QRect(QPoint(), size() + QSize(1, 1));
}

void OverlayWindow::sendParts(const QRegion &points)
{
    const int rows = m_rowsOfPart;
    const double scale = pixelsPerPoint();
    int place = 0; // in the store
    for (int top = points.boundingRect().top() / rows * rows; top <= points.boundingRect().bottom(); top += rows) {
        const QRegion part = points & QRect(0, top, width() + 1, rows);
        if (part.isEmpty())
            continue;
        const QRegion stored = part.translated(0, place - top);
        m_store.beginPaint(stored); // waits until what lies there has been shown
        if (auto *image = dynamic_cast<QImage *>(m_store.paintDevice())) {
            const int first = qRound(place * scale);
            QImage surface(image->scanLine(first), image->width(),
                std::min(qRound(rows * scale), image->height() - first), image->bytesPerLine(), image->format());
            const int pixelTop = qRound(top * scale);
            const QRegion pixels = converted(part, scale, pixelsAround);
            paint(surface, pixelTop, pixels & surface.rect().translated(0, pixelTop));
        }
        m_store.endPaint();
        m_store.flush(part, nullptr, QPoint(0, place - top));
        place = rows - place;
    }
}

void OverlayWindow::paintPoints(const QRegion &points)
{
    m_store.beginPaint(points);
    // Every platform with windows of this kind paints into a picture. Around it another one without a scale: a painter
    // would map points to pixels, with blur where the scale is no whole number.
    if (auto *image = dynamic_cast<QImage *>(m_store.paintDevice())) {
        QImage surface(image->bits(), image->width(), image->height(), image->bytesPerLine(), image->format());
        paintPixels(surface, points);
    }
    m_store.endPaint();
}

void OverlayWindow::paintPixels(QImage &surface, const QRegion &points)
{
    const QRegion pixels = converted(points, pixelsPerPoint(), pixelsAround);
    if (!isResampled())
        return paint(surface, 0, pixels & surface.rect());
    if (m_pixels.size() != m_pixelSize) {
        m_pixels = QImage(m_pixelSize, QImage::Format_ARGB32_Premultiplied);
        m_pixels.fill(Qt::transparent);
    }
    paint(m_pixels, 0, pixels & m_pixels.rect());
    QPainter painter(&surface);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setClipRegion(converted(points, devicePixelRatio(), pixelsAround));
    painter.drawImage(surface.rect(), m_pixels);
}

void OverlayWindow::show(const QRegion &points)
{
    if (m_rowsOfPart > 0)
        sendParts(points);
    else
        m_store.flush(points);
    if (!m_shown) {
        m_shown = true;
        firstShown();
    }
}

void OverlayWindow::updatePixels(const QRegion &pixels)
{
    if (pixels.isEmpty() || !m_painted)
        return;
    m_dirty += pixels;
    requestUpdate();
}

QPoint OverlayWindow::pixelAt(QPointF position) const
{
    constexpr double rounding = 0.01; // a pixel's points are no exact number at every scale
    const QPointF pixel = position * pixelsPerPoint();
    return { int(std::floor(pixel.x() + rounding)), int(std::floor(pixel.y() + rounding)) };
}

bool OverlayWindow::event(QEvent *event)
{
    if (event->type() != QEvent::UpdateRequest)
        return QWindow::event(event);
    if (!m_painted || !isExposed() || m_dirty.isEmpty())
        return true;
    const QRegion points = pointsOf(std::exchange(m_dirty, {}));
    if (m_rowsOfPart == 0)
        paintPoints(points);
    show(points);
    return true;
}

void OverlayWindow::paintEvent(QPaintEvent *event)
{
    if (!isExposed())
        return;
    const bool whole = !m_painted;
    if (whole)
        paintAhead();
    // A window that comes is asked for twice at once, and a whole screen is much to send.
    if (m_exposed.isEmpty())
        QMetaObject::invokeMethod(this, &OverlayWindow::showExposed, Qt::QueuedConnection);
    m_exposed += whole ? QRegion(QRect(QPoint(), size())) : event->region();
}

void OverlayWindow::showExposed()
{
    if (m_painted && isExposed() && !m_exposed.isEmpty())
        show(std::exchange(m_exposed, {}));
}

void OverlayWindow::resizeEvent(QResizeEvent *) { m_painted = false; }

} // namespace tessaly
