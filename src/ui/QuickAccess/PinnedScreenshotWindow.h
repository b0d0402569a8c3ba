// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"
#include "ui/QuickAccess/FloatPlace.h"

#include <QWidget>

#include <functional>
#include <optional>

namespace tessaly {

class PinnedImageView;

/// A picture above other windows: moved by dragging it, made fainter with the wheel, zoomed with Ctrl and the wheel or
/// two fingers. Deletes itself when it is closed.
class PinnedScreenshotWindow final : public QWidget {
    Q_OBJECT

public:
    static constexpr double leastOpacity = 0.2;

    /// What the program does for it, each from the event loop.
    struct Requests {
        std::function<void(RasterImage image)> copy;
        std::function<void(RasterImage image)> save;
        std::function<void(RasterImage image)> openInEditor;
    };
    /// Keeps the layers.
    PinnedScreenshotWindow(RasterImage image, WindowLayers &layers, Requests requests);

    /// Shows it about the middle of `near`, or of the screen; beside the corners that others have `taken`.
    void appear(QScreen &screen, const std::optional<QRect> &near, const QList<QPoint> &taken);

    void copyImage() { m_requests.copy(m_image); }
    void saveImage() { m_requests.save(m_image); }
    void openInEditor() { m_requests.openInEditor(m_image); }
    double opacity() const { return m_opacity; }
    void setOpacity(double opacity); ///< within its limits
    double zoom() const { return m_zoom; }
    void actualSize();
    /// "Let Clicks Pass Through".
    void lock();
    void unlock();
    bool isLocked() const { return m_isLocked; }
    void closePin() { close(); }
    /// False where the desktop lets other windows cover it.
    bool staysAbove() const { return m_layers.canStayAbove(); }
    /// In points of the whole desktop.
    const QRect &place() const { return m_place.rect(); }
    void moveBy(QPoint distance);

Q_SIGNALS:
    void lockedChanged();
    /// It is gone for the user, and deletes itself.
    void closed();

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setLocked(bool locked);
    void zoomTo(double zoom, QPointF fixed);
    QSize sizeAtZoom(double pixelsPerPoint) const;
    void fitToScreenScale();
    void nudge(QKeyEvent &event);
    void droppedAt(QPoint pointer, QPoint corner);

    RasterImage m_image;
    WindowLayers &m_layers;
    Requests m_requests;
    PinnedImageView *m_view;
    FloatPlace m_place;
    double m_zoom = 1;
    double m_opacity = 1;
    bool m_isLocked = false;
    /// Where a drag began: the pointer, and the window.
    std::optional<std::pair<QPointF, QPoint>> m_dragStart;
    bool m_isDragging = false;
};

} // namespace tessaly
