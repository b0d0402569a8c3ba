// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/SelectionOverlay.h"
#include "ui/Overlay/OverlayController.h"
#include "ui/Overlay/SelectionView.h"

#include <QObject>

#include <memory>

namespace tessaly {

class CaptureModeBar;

/// One opening of the selection: leads its views to a result.
class OverlaySession final : public QObject, public SelectionLeader {
    Q_OBJECT

public:
    using Done = std::function<void(OverlayResult)>;

    /// `views` are open and outlive it; the first of them has the mode bar until the pointer is on another. `done` is
    /// called once; after it the session does no more.
    OverlaySession(const OverlayController::Surroundings &surroundings, QList<SelectionView *> views, Done done);
    ~OverlaySession() override;

    void open(const SelectionOverlay::Opening &opening);
    void setSnapshots(const DisplaySnapshots &snapshots);
    void setMode(OverlayMode mode);
    void finish(const OverlayResult &result);

    void shown(SelectionView &view) override;
    void pointerMoved(SelectionView &view) override;
    void pressed(SelectionView &view) override;
    void selected(SelectionView &view) override;
    void confirmed(SelectionView &view) override;
    void cancelled() override;
    void keyPressed(SelectionView &view, QKeyEvent &event) override;

private:
    SelectionView &active();
    SelectionView *selecting() const;
    void makeBar();
    void updateBar();
    void placeBar(SelectionView &view);
    void pick();
    void finishFullScreen();
    void adjust(SelectionView &view);
    bool handleBarKey(int key);
    bool handleKey(QKeyEvent &event);
    void nudge(QPoint direction, bool resizes);
    void copyColor();
    QString help() const;

    OverlayController::Surroundings m_surroundings;
    QList<SelectionView *> m_views;
    Done m_done;
    OverlayMode m_mode = OverlayMode::Region;
    SelectionView *m_barView; ///< the one that the pointer was on last
    std::unique_ptr<CaptureModeBar> m_bar; ///< made once something is on the screen
    bool m_makingBar = false;
    bool m_adjusting = false; ///< and the user has been told
    std::optional<ScreenWindow> m_picked;
};

} // namespace tessaly
