// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/SelectionModel.h"
#include "core/Screen/SelectionOverlay.h"
#include "ui/Overlay/LoupeView.h"
#include "ui/Overlay/OverlayWindow.h"
#include "ui/Overlay/SelectionPainter.h"

#include <QPointer>
#include <QTimer>

namespace tessaly {

class CaptureModeBar;
class SelectionView;

/// What the selection's views tell the one who leads them. After a call that ends the selection a view does no more.
class SelectionLeader {
public:
    virtual ~SelectionLeader();
    virtual void shown(SelectionView &view) = 0; ///< first painted
    virtual void pointerMoved(SelectionView &view) = 0;
    virtual void pressed(SelectionView &view) = 0; ///< a drag begins or a window is picked
    virtual void selected(SelectionView &view) = 0; ///< a drag ended with a selection
    virtual void confirmed(SelectionView &view) = 0;
    virtual void cancelled() = 0;
    virtual void keyPressed(SelectionView &view, QKeyEvent &event) = 0;
};

/// The selection on one monitor.
class SelectionView final : public OverlayWindow {
public:
    SelectionView(QScreen &screen, bool seeThrough, bool takesParts);

    /// Begins anew, to be shown. Without a picture the live screen is seen.
    void open(SelectionLeader &leader, const Display &display, const QImage &picture, OverlayMode mode);
    /// Forgets everything of the opening; the window is hidden.
    void close();

    const Display &display() const { return m_display; }
    SelectionModel &model() { return m_model; }
    /// Where the pointer is, in device pixels; absent while it is on another monitor.
    std::optional<QPoint> pointer() const { return m_pointer; }
    /// It is on another monitor now.
    void losePointer();

    void setMode(OverlayMode mode);
    /// The picture that the magnifier shows; null for no magnifier.
    void setSnapshot(const QImage &snapshot) { m_snapshot = snapshot; }
    bool hasLoupe() const { return !m_snapshot.isNull(); }
    /// Part of the window lies on this monitor.
    void setPickedWindow(const std::optional<ScreenWindow> &window);
    /// Shown here; null for elsewhere. It lives longer than the view is open.
    void setModeBar(CaptureModeBar *bar);

    /// The colour under the pointer, which the magnifier then says was copied; absent without a magnifier.
    std::optional<QString> copyColor();

    /// What held keys make of the present drag, also without a movement.
    void constrain(Qt::KeyboardModifiers modifiers, std::optional<bool> space);

    /// Has what changed painted.
    void refresh();

protected:
    void paint(QImage &surface, int top, const QRegion &pixels) override;
    void firstShown() override;
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    /// What is painted over the ground.
    struct Scene {
        SelectionPainter::Frame frame;
        SelectionPainter::Highlight highlight;
        QRect loupe;
        QRect bar;
    };
    QRect clearRect() const;
    QRect barRect() const;
    Scene scene() const;
    QRegion footprint(const Scene &scene) const;
    void lookAt();
    void updateCursor();
    void pointTo(QPointF position);
    bool toBar(QMouseEvent &event);

    SelectionLeader *m_leader = nullptr;
    Display m_display;
    SelectionModel m_model { {}, 1 };
    OverlayMode m_mode = OverlayMode::Region;
    QImage m_picture, m_snapshot;
    LoupeView m_loupe { 1 };
    QTimer m_copied;
    std::optional<QPoint> m_pointer;
    SelectionModel::Constraint m_constraint;
    SelectionPainter::Highlight m_highlight;
    QPointer<CaptureModeBar> m_bar;
    QImage m_barPicture;
    Scene m_painted; ///< or about to be
    QRect m_paintedClear;
};

} // namespace tessaly
