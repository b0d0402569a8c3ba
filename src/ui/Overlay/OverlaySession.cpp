// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/OverlaySession.h"

#include "core/Desktop/TextOffer.h"
#include "core/Preferences/Settings.h"
#include "ui/Overlay/CaptureModeBar.h"

#include <QKeyEvent>
#include <QTimer>

namespace tessaly {

namespace {

struct ArrowKey {
    int key;
    QPoint direction;
};
const ArrowKey arrowKeys[] = { { Qt::Key_Left, { -1, 0 } }, { Qt::Key_Right, { 1, 0 } }, { Qt::Key_Up, { 0, -1 } },
    { Qt::Key_Down, { 0, 1 } } };

} // namespace

OverlaySession::OverlaySession(
    const OverlayController::Surroundings &surroundings, QList<SelectionView *> views, Done done) :
    m_surroundings(surroundings),
    m_views(std::move(views)),
    m_done(std::move(done)),
    m_barView(m_views.first())
{
}

OverlaySession::~OverlaySession() = default;

void OverlaySession::open(const SelectionOverlay::Opening &opening)
{
    setMode(m_surroundings.picker.isAvailable() ? opening.mode : OverlayMode::Region);
    setSnapshots(opening.pictures);
}

void OverlaySession::setSnapshots(const DisplaySnapshots &snapshots)
{
    if (!m_surroundings.settings.value(SettingKeys::showMagnifierWhileSelecting))
        return;
    for (SelectionView *view : m_views) {
        const auto snapshot = snapshots.constFind(view->display().id());
        if (snapshot == snapshots.cend())
            continue;
        view->setSnapshot(*snapshot);
        view->refresh();
    }
}

void OverlaySession::setMode(OverlayMode mode)
{
    if (mode == OverlayMode::Window && !m_surroundings.picker.isAvailable())
        return;
    m_mode = mode;
    m_adjusting = false;
    m_picked = {};
    for (SelectionView *view : m_views)
        view->setMode(mode);
    if (m_bar)
        m_bar->setMode(mode);
    pick();
    updateBar();
}

void OverlaySession::finish(const OverlayResult &result)
{
    if (const Done done = std::exchange(m_done, nullptr))
        done(result);
}

SelectionView *OverlaySession::selecting() const
{
    const auto found = std::ranges::find_if(
        m_views, [](SelectionView *view) { return view->model().isValid() || view->model().isDragging(); });
    return found == m_views.end() ? nullptr : *found;
}

SelectionView &OverlaySession::active()
{
    SelectionView *view = selecting();
    return view ? *view : *m_barView;
}

void OverlaySession::shown(SelectionView &)
{
    if (!std::exchange(m_makingBar, true))
        QTimer::singleShot(0, this, &OverlaySession::makeBar);
}

void OverlaySession::makeBar()
{
    if (!m_done)
        return;
    m_bar = std::make_unique<CaptureModeBar>(m_surroundings.picker.isAvailable());
    m_bar->setMode(m_mode);
    m_bar->show();
    connect(m_bar.get(), &CaptureModeBar::modeSelected, this, &OverlaySession::setMode);
    connect(m_bar.get(), &CaptureModeBar::fullScreen, this, &OverlaySession::finishFullScreen);
    connect(m_bar.get(), &CaptureModeBar::cancel, this, &OverlaySession::cancelled);
    connect(m_bar.get(), &CaptureModeBar::capture, this, [this] { confirmed(active()); });
    connect(m_bar.get(), &CaptureModeBar::changed, this, [this] { placeBar(*m_barView); });
    pick();
    updateBar();
    placeBar(*m_barView);
    m_bar->announce(help());
}

void OverlaySession::updateBar()
{
    if (m_bar)
        m_bar->setCanCapture(selecting() != nullptr);
}

void OverlaySession::placeBar(SelectionView &view)
{
    if (m_barView != &view)
        m_barView->setModeBar(nullptr);
    m_barView = &view;
    view.setModeBar(m_bar.get());
}

void OverlaySession::pick()
{
    if (m_mode != OverlayMode::Window)
        return;
    const auto pointer = m_barView->pointer();
    const auto window
        = pointer ? m_surroundings.picker.windowAt(m_barView->display().layoutPoint(QPointF(*pointer))) : std::nullopt;
    if (window == m_picked)
        return;
    m_picked = window;
    for (SelectionView *view : m_views)
        view->setPickedWindow(window);
}

void OverlaySession::pointerMoved(SelectionView &view)
{
    for (SelectionView *other : m_views)
        if (other != &view)
            other->losePointer();
    if (m_barView != &view && !selecting())
        placeBar(view);
    pick();
}

void OverlaySession::pressed(SelectionView &view)
{
    if (m_bar)
        m_bar->dropFocus();
    if (m_mode == OverlayMode::Window) {
        pointerMoved(view);
        return confirmed(view);
    }
    for (SelectionView *other : m_views) {
        if (other == &view)
            continue;
        other->model().clear();
        other->refresh();
    }
}

void OverlaySession::selected(SelectionView &view)
{
    const bool adjusts
        = view.model().isAdjusting() || m_surroundings.settings.value(SettingKeys::adjustRegionBeforeCapture);
    if (!adjusts)
        return finish(RegionSelection { view.display(), view.model().pixelRect(), {} });
    adjust(view);
}

void OverlaySession::adjust(SelectionView &view)
{
    const bool began = !std::exchange(m_adjusting, true);
    view.model().setAdjusting(true);
    updateBar();
    placeBar(view);
    view.refresh();
    if (began && m_bar) {
        m_bar->announce(tr("Selection ready. Drag the handles or use the arrow keys to adjust it, then press Return to "
                           "capture."));
    }
}

void OverlaySession::confirmed(SelectionView &view)
{
    if (m_mode == OverlayMode::Window) {
        if (m_picked)
            finish(RegionSelection { view.display(), view.display().pixelsOf(m_picked->layoutRect), m_picked });
    } else if (view.model().isValid()) {
        finish(RegionSelection { view.display(), view.model().pixelRect(), {} });
    }
}

void OverlaySession::cancelled() { finish({}); }

void OverlaySession::finishFullScreen() { finish(FullScreenSelection { active().display() }); }

void OverlaySession::keyPressed(SelectionView &, QKeyEvent &event)
{
    const int key = event.key();
    if (key == Qt::Key_Escape)
        return cancelled();
    SelectionView &view = active();
    view.constrain(event.modifiers(), key == Qt::Key_Space ? std::optional(true) : std::nullopt);
    if (view.model().isDragging() && key == Qt::Key_Space)
        return;
    if (!handleBarKey(key) && !handleKey(event))
        event.ignore();
}

/// Tab and Shift+Tab walk through the bar's buttons; the one that is reached is pressed by the usual keys.
bool OverlaySession::handleBarKey(int key)
{
    if (!m_bar)
        return false;
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
        m_bar->moveFocus(key == Qt::Key_Tab ? 1 : -1);
        return true;
    }
    return (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) && m_bar->pressFocused();
}

bool OverlaySession::handleKey(QKeyEvent &event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const auto arrow = std::ranges::find(arrowKeys, event.key(), &ArrowKey::key);
    if (arrow != std::end(arrowKeys)) {
        nudge(arrow->direction, event.modifiers().testFlag(Qt::ShiftModifier));
        return true;
    }
    const bool again = event.isAutoRepeat();
    switch (event.key()) {
    case Qt::Key_1:
        setMode(OverlayMode::Region);
        return true;
    case Qt::Key_2:
        setMode(OverlayMode::Window);
        return true;
    case Qt::Key_3:
        finishFullScreen();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!again)
            confirmed(active());
        return true;
    case Qt::Key_C:
        if (!again)
            copyColor();
        return true;
    default:
        return false;
    }
}

void OverlaySession::nudge(QPoint direction, bool resizes)
{
    SelectionView &view = active();
    if (m_mode != OverlayMode::Region || !view.model().nudge(direction, resizes))
        return;
    adjust(view);
}

void OverlaySession::copyColor()
{
    for (SelectionView *view : m_views) {
        const auto hex = view->copyColor();
        if (!hex)
            continue;
        m_surroundings.clipboard.offer(std::make_unique<TextOffer>(*hex));
        if (m_bar)
            m_bar->announce(tr("Copied color %1").arg(*hex));
        return;
    }
}

QString OverlaySession::help() const
{
    QStringList sentences {
        tr("Select the area to capture. Drag, or use arrow keys to move and Shift-arrows to resize. "
           "Press Return to capture, Escape to cancel."),
        tr("Press 1, 2 or 3 to switch between region, window and full screen.")
    };
    if (std::ranges::any_of(m_views, &SelectionView::hasLoupe))
        sentences += tr("Press C to copy the color under the pointer.");
    return sentences.join(u' ');
}

} // namespace tessaly
