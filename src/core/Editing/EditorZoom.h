// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSizeF>

namespace tessaly {

/// The magnification of one editor's view; 1 is 100 %, a point of the capture as large as a point of the screen.
class EditorZoom : public QObject {
    Q_OBJECT

public:
    static constexpr double minStep = 0.25, minFit = 0.1, max = 4;

    double scale() const { return m_scale; }
    QSizeF viewportSize() const { return m_viewportSize; }
    void setViewportSize(QSizeF points) { m_viewportSize = points; }

    /// Between the smallest fit and the largest step; for a wheel or a pinch.
    void setScale(double scale);
    void zoomIn();
    void zoomOut();
    void actualSize() { setScale(1); }
    /// As large as the whole of `imageSize` fits with 24 points of air on every side; may go below zoomOut()'s floor.
    void fit(QSizeF imageSize);

Q_SIGNALS:
    void changed();

private:
    double m_scale = 1;
    QSizeF m_viewportSize;
};

} // namespace tessaly
