// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/SelectionOverlay.h"

#include <QBackingStore>
#include <QImage>
#include <QRegion>
#include <QWindow>

#include <thread>

namespace tessaly {

/// A window over a whole monitor that is painted in the monitor's device pixels, whatever its scale, and only where it
/// has changed. Its pixels can be made before it is shown and given back while it is hidden; where the window system
/// takes parts, one that has none yet is painted with as many as are sent at once.
class OverlayWindow : public QWindow {
public:
    /// A see-through window lets others be seen where it is painted transparent. For `takesParts` see WindowLayers.
    OverlayWindow(QScreen &screen, bool seeThrough, bool takesParts);
    ~OverlayWindow() override;

    bool isSeeThrough() const { return m_seeThrough; }

    /// What the monitor has. Without it the window takes Qt's number of pixels a point to be the monitor's, which a
    /// Wayland monitor at 1.5 has not: there Qt draws at 2, for the compositor to make it smaller.
    void setMonitorPixels(const QSize &size) { m_pixelSize = size; }

    /// Makes the memory that is painted into, on another thread; the first painting waits for what is left of it.
    /// At once it makes none where the window system takes parts.
    void prepareSurface(OverlayUse use);
    /// Only while it is hidden.
    void releaseSurface();

    /// Paints everything now, to be shown as soon as the window system shows the window; in parts, it is painted then.
    void paintAhead();
    /// What was painted is worth nothing any more; the window is hidden.
    void discardPainting();

protected:
    /// Paints the region, device pixels of the monitor; no other pixel needs to change. The surface begins at the
    /// monitor's row `top`.
    virtual void paint(QImage &surface, int top, const QRegion &pixels) = 0;
    /// What was painted first after discardPainting() is on its way to the screen.
    virtual void firstShown() { }

    /// Has the device pixels painted anew soon.
    void updatePixels(const QRegion &pixels);
    /// The device pixel of a place in the window. It may lie outside while a button is held.
    QPoint pixelAt(QPointF position) const;

    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    double pixelsPerPoint() const;
    bool isResampled() const;
    int rowsOfPart() const;
    QRegion pointsOf(const QRegion &pixels) const;
    void paintPoints(const QRegion &points);
    void paintPixels(QImage &surface, const QRegion &points);
    void sendParts(const QRegion &points);
    void show(const QRegion &points);
    void showExposed();
    void waitForSurface();

    QBackingStore m_store;
    QSize m_pixelSize;
    QImage m_pixels; ///< of the monitor, where Qt draws at another scale
    std::thread m_preparing;
    QRegion m_dirty; ///< device pixels
    QRegion m_exposed; ///< points that the window system has asked for
    int m_rowsOfPart = 0; ///< in points; 0 while it is painted as a whole
    bool m_seeThrough, m_takesParts;
    bool m_painted = false;
    bool m_shown = false;
};

} // namespace tessaly
