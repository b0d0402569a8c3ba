// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/LiveCanvas.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"
#include "core/Rendering/AnnotationsCanvas.h"
#include "core/Rendering/LiveBase.h"
#include "core/Rendering/LiveBelow.h"
#include "core/Rendering/LiveFrame.h"
#include "core/Rendering/LiveMarks.h"
#include "core/Rendering/PictureScaling.h"

#include <QPainter>

namespace tessaly {

class LiveCanvas::Implementation {
public:
    QRegion update(const LiveScene &scene, const LiveView &view);

    ViewLayer picture;

private:
    bool updateMarks(const LiveScene &scene, QRegion &dirty);
    QImage wholeContent() const;
    void paint(const QRegion &region);
    void paintRect(const QRect &rect, QImage &target) const;
    void paintContent(const QRect &area, QImage &target) const;

    const int m_threads = Parallel::defaultThreadCount();
    RasterImage m_image;
    LiveGeometry m_geometry;
    QColor m_surround;
    ImageEffects::NoiseSeed m_noiseSeed;
    double m_scale = 0; ///< pixels per point that the marks are fitted to
    QRect m_fitted; ///< pixels of the content that the marks are fitted to
    LiveBase m_base;
    LiveMarks m_marks;
    LiveFrame m_frame;
    LiveBelow m_belowMarkInHand;
    std::shared_ptr<OverlayCache> m_overlays = std::make_shared<OverlayCache>();
    std::shared_ptr<ObscuredCache> m_obscured = std::make_shared<ObscuredCache>();
};

QRegion LiveCanvas::Implementation::update(const LiveScene &scene, const LiveView &view)
{
    const LiveGeometry before = std::exchange(m_geometry, LiveGeometry(scene, view));
    const bool isNew = picture.image().isNull() || view.surround != m_surround || !m_geometry.isMoved(before)
        || scene.image.pixels.cacheKey() != m_image.pixels.cacheKey() || scene.image.isEmpty();
    const QPoint move = m_geometry.canvas.topLeft() - before.canvas.topLeft();
    m_surround = view.surround;
    QRegion dirty = m_geometry.view();
    if (isNew)
        picture.reset(m_geometry.view(), QImage::Format_RGB32);
    else
        dirty = picture.scroll(move, m_geometry.view());
    if (picture.image().isNull())
        return {};
    QRegion changed;
    const bool marksChanged = updateMarks(scene, changed);
    m_base.update(m_image, m_geometry, m_threads);
    m_belowMarkInHand.update(
        m_image.pixels, m_geometry, marksChanged ? std::optional(m_marks.firstChanged()) : std::nullopt);
    changed += m_frame.update(scene, view, m_geometry, marksChanged, [this] { return wholeContent(); });
    dirty += changed & m_geometry.view();
    paint(dirty);
    return move.isNull() || isNew ? dirty : QRegion(m_geometry.view());
}

/// Adds the pixels of the view on which marks changed.
bool LiveCanvas::Implementation::updateMarks(const LiveScene &scene, QRegion &dirty)
{
    const ImageEffects::NoiseSeed seed = scene.noiseSeed.value_or(AnnotationsCanvas().noiseSeed);
    const QRect fitted = m_geometry.fittedContent(scene.image.pixelSize());
    const bool sameImage
        = scene.image.pixels.cacheKey() == m_image.pixels.cacheKey() && scene.image.pointSize == m_image.pointSize;
    const QRectF canvas(QPointF(), m_geometry.layout.imageSize);
    if (!sameImage || fitted != m_fitted || seed.value != m_noiseSeed.value || m_geometry.scale != m_scale) {
        m_image = scene.image;
        m_fitted = fitted;
        m_scale = m_geometry.scale;
        m_noiseSeed = seed;
        m_marks.start(
            { PixelGrid::scaledBy(m_scale), canvas, fitted, seed, m_overlays, m_obscured, m_threads }, m_image);
    }
    const QRegion changed
        = m_marks.update(m_image.isEmpty() ? QList<Annotation>() : scene.annotations, scene.editingID);
    dirty += changed.translated(m_geometry.content.topLeft()) & m_geometry.content;
    return !changed.isEmpty();
}

/// Null where it would be too large to be worth it.
QImage LiveCanvas::Implementation::wholeContent() const
{
    const QRect whole(QPoint(), m_geometry.content.size());
    if (m_fitted != whole)
        return {};
    QImage content = PixelMemory::allocate(whole.size(), m_image.pixels.format());
    if (content.isNull())
        return {};
    PictureScaling(m_image.pixels, whole.size()).paint(whole, content, {}, m_threads);
    m_marks.paint(content, whole, {}, 0, m_marks.count());
    return content;
}

void LiveCanvas::Implementation::paint(const QRegion &region)
{
    constexpr qint64 soonDone = 300'000; // pixels
    qint64 area = 0;
    for (const QRect &rect : region)
        area += qint64(rect.width()) * rect.height();
    const bool alone = area <= soonDone;
    std::vector<QRect> tasks;
    for (const QRect &rect : region) {
        const int rowsInTask = alone ? rect.height() : 32;
        for (int top = rect.top(); top <= rect.bottom(); top += rowsInTask)
            tasks.push_back(QRect(rect.left(), top, rect.width(), rowsInTask).intersected(rect));
    }
    if (m_belowMarkInHand.isInUse())
        m_belowMarkInHand.require(region & m_geometry.content, m_base, m_marks, alone ? 1 : m_threads);
    uchar *bits = picture.image().bits();
    const QImage &image = picture.image();
    Parallel::forEach(int(tasks.size()), alone ? 1 : m_threads, [&](int task) {
        QImage target(bits, image.width(), image.height(), image.bytesPerLine(), image.format());
        paintRect(tasks[size_t(task)], target);
    });
}

void LiveCanvas::Implementation::paintRect(const QRect &rect, QImage &target) const
{
    const QRect canvas = rect.intersected(m_geometry.canvas);
    if (canvas != rect) {
        QPainter painter(&target);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        for (const QRect &outside : QRegion(rect) - canvas)
            painter.fillRect(outside, m_surround);
    }
    if (canvas.isEmpty())
        return;
    if (m_frame.hasBackground())
        m_frame.paintBackground(canvas, target);
    const QRect content = rect.intersected(m_geometry.content);
    if (!content.isEmpty())
        paintContent(content, target);
    m_frame.paintWatermark(canvas, target);
}

void LiveCanvas::Implementation::paintContent(const QRect &area, QImage &target) const
{
    const QPoint corner = m_geometry.content.topLeft();
    const auto paintAll = [&](QImage &image, QPoint origin) {
        size_t painted = 0;
        if (m_belowMarkInHand.isInUse())
            painted = m_belowMarkInHand.copy(area, image, area.topLeft() - origin);
        else
            m_base.copy(area, image, area.topLeft() - origin);
        m_marks.paint(image, area.translated(-corner), origin - corner, painted, m_marks.count());
    };
    if (!m_frame.hasBackground()) {
        paintAll(target, {});
        return;
    }
    QImage content(area.size(), m_image.pixels.format());
    paintAll(content, area.topLeft());
    m_frame.paintContent(area, content, area.topLeft(), target);
}

LiveCanvas::LiveCanvas() : m_implementation(std::make_unique<Implementation>()) { }
LiveCanvas::~LiveCanvas() = default;

QRegion LiveCanvas::update(const LiveScene &scene, const LiveView &view)
{
    return m_implementation->update(scene, view);
}

const QImage &LiveCanvas::picture() const { return m_implementation->picture.image(); }

} // namespace tessaly
