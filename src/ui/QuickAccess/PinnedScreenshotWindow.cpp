// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/PinnedScreenshotWindow.h"

#include "ui/QuickAccess/PinGeometry.h"
#include "ui/QuickAccess/PinnedImageView.h"
#include "ui/QuickAccess/PinnedMenu.h"
#include "ui/Toast/FloatingPanel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include <cmath>

namespace tessaly {

namespace {

constexpr double unitsInNotch = 120; // of a wheel; an eighth of a degree each

/// How far a wheel was turned: in steps of 0.05 a notch, or exactly as fingers moved. Pixels count only where there
/// are fingers: an X server gives some for a mouse's wheel too, and they mean nothing.
double turned(const QWheelEvent &event)
{
    const bool isPrecise = event.phase() != Qt::NoScrollPhase && !event.pixelDelta().isNull();
    return isPrecise ? event.pixelDelta().y() / 200.0 : event.angleDelta().y() / unitsInNotch / 20.0;
}

struct KeyRow {
    QKeySequence::StandardKey key;
    void (PinnedScreenshotWindow::*act)();
};

constexpr KeyRow standardKeys[] = {
    { QKeySequence::Copy, &PinnedScreenshotWindow::copyImage },
    { QKeySequence::Save, &PinnedScreenshotWindow::saveImage },
    { QKeySequence::InsertParagraphSeparator, &PinnedScreenshotWindow::openInEditor }, // Return
    { QKeySequence::Cancel, &PinnedScreenshotWindow::closePin },
    { QKeySequence::Close, &PinnedScreenshotWindow::closePin },
};

/// A window may be partly on each of several screens on X11; one of a Wayland layer belongs to its output.
QRect reachOf(const QScreen &screen) { return windowsHaveOpacity() ? screen.virtualGeometry() : screen.geometry(); }

} // namespace

PinnedScreenshotWindow::PinnedScreenshotWindow(RasterImage image, WindowLayers &layers, Requests requests) :
    QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint),
    m_image(std::move(image)),
    m_layers(layers),
    m_requests(std::move(requests)),
    m_view(new PinnedImageView(m_image.pixels, this)),
    m_place(*this, layers)
{
    setObjectName(QStringLiteral("pinnedScreenshot"));
    setWindowTitle(tr("Pinned screenshot"));
    setAccessibleName(tr("Pinned screenshot"));
    setAccessibleDescription(tr("Drag it to move it; turn the wheel for its opacity, and with Ctrl to zoom."));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::StrongFocus);
    const bool isSeeThrough = m_image.pixels.hasAlphaChannel();
    m_view->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_view->setBacked(isSeeThrough && !layers.showsTransparency());
    if (isSeeThrough || !windowsHaveOpacity())
        setAttribute(Qt::WA_TranslucentBackground);
    else
        m_view->setAttribute(Qt::WA_OpaquePaintEvent);
}

void PinnedScreenshotWindow::appear(QScreen &screen, const std::optional<QRect> &near, const QList<QPoint> &taken)
{
    const QRect area = screen.availableGeometry();
    m_zoom = PinGeometry::initialZoom(m_image.pointSize, area.size());
    const QSize size = sizeAtZoom(screen.devicePixelRatio());
    const QRect place = PinGeometry::cascaded(PinGeometry::initialPlace(size, near, area), taken, area);
    m_place.prepare(screen, place, WindowLayers::Keyboard::OnClick);
    connect(windowHandle(), &QWindow::screenChanged, this, &PinnedScreenshotWindow::fitToScreenScale);
    show();
    fitToScreenScale();
}

QSize PinnedScreenshotWindow::sizeAtZoom(double pixelsPerPoint) const
{
    return PinGeometry::windowSize(
        PinGeometry::shownPixels(m_image.pointSize * m_zoom, pixelsPerPoint), pixelsPerPoint);
}

/// A screen of another scale shows it with as many points.
void PinnedScreenshotWindow::fitToScreenScale()
{
    const double scale = devicePixelRatioF();
    m_view->setShownSize(m_image.pointSize * m_zoom);
    m_place.move(QRect(m_place.rect().topLeft(), sizeAtZoom(scale)));
}

void PinnedScreenshotWindow::setOpacity(double opacity)
{
    m_opacity = std::clamp(opacity, leastOpacity, 1.0);
    if (windowsHaveOpacity())
        setWindowOpacity(m_opacity);
    else
        m_view->setPaintedOpacity(m_opacity);
}

void PinnedScreenshotWindow::zoomTo(double zoom, QPointF fixed)
{
    m_zoom = PinGeometry::clampedZoom(zoom, m_image.pointSize, screen()->size());
    const double scale = devicePixelRatioF();
    m_view->setShownSize(m_image.pointSize * m_zoom);
    m_place.move(PinGeometry::resizedAbout(m_place.rect(), sizeAtZoom(scale), fixed));
}

void PinnedScreenshotWindow::actualSize() { zoomTo(1, QRectF(rect()).center()); }

void PinnedScreenshotWindow::lock() { setLocked(true); }
void PinnedScreenshotWindow::unlock() { setLocked(false); }

void PinnedScreenshotWindow::setLocked(bool locked)
{
    if (locked == m_isLocked)
        return;
    m_isLocked = locked;
    m_layers.setPassesClicks(*windowHandle(), locked);
    Q_EMIT lockedChanged();
}

void PinnedScreenshotWindow::moveBy(QPoint distance)
{
    m_place.move(PinGeometry::withinReach(m_place.rect().translated(distance), reachOf(m_place.screen())));
}

bool PinnedScreenshotWindow::event(QEvent *event)
{
    if (event->type() == QEvent::NativeGesture) {
        const auto *gesture = static_cast<QNativeGestureEvent *>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            zoomTo(m_zoom * (1 + gesture->value()), gesture->position());
            return true;
        }
    }
    return QWidget::event(event);
}

void PinnedScreenshotWindow::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    Q_EMIT closed();
}

void PinnedScreenshotWindow::keyPressEvent(QKeyEvent *event)
{
    for (const KeyRow &row : standardKeys) {
        if (event->matches(row.key))
            return (this->*row.act)();
    }
    constexpr double zoomStep = 1.1;
    const QPointF middle = QRectF(rect()).center();
    if (event->matches(QKeySequence::ZoomIn))
        zoomTo(m_zoom * zoomStep, middle);
    else if (event->matches(QKeySequence::ZoomOut))
        zoomTo(m_zoom / zoomStep, middle);
    else if (event->key() == Qt::Key_0 && event->modifiers() == Qt::ControlModifier)
        actualSize();
    else
        nudge(*event);
}

/// A point, ten with Shift.
void PinnedScreenshotWindow::nudge(QKeyEvent &event)
{
    const int step = event.modifiers() & Qt::ShiftModifier ? 10 : 1;
    switch (event.key()) {
    case Qt::Key_Left:
        return moveBy({ -step, 0 });
    case Qt::Key_Right:
        return moveBy({ step, 0 });
    case Qt::Key_Up:
        return moveBy({ 0, -step });
    case Qt::Key_Down:
        return moveBy({ 0, step });
    default:
        event.ignore();
    }
}

void PinnedScreenshotWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_dragStart = { event->globalPosition(), m_place.rect().topLeft() };
}

/// The window manager moves it, as it does best with several screens; where there is none that would, it moves itself.
void PinnedScreenshotWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragStart)
        return;
    const auto [pointer, corner] = *m_dragStart;
    const QPoint distance = (event->globalPosition() - pointer).toPoint();
    if (!m_isDragging && distance.manhattanLength() < QApplication::startDragDistance())
        return;
    if (!m_isDragging && windowHandle()->startSystemMove()) {
        m_dragStart.reset();
        return;
    }
    m_isDragging = true;
    moveBy(corner + distance - m_place.rect().topLeft());
}

void PinnedScreenshotWindow::mouseReleaseEvent(QMouseEvent *event)
{
    const auto start = std::exchange(m_dragStart, std::nullopt);
    if (!std::exchange(m_isDragging, false) || !start || windowsHaveOpacity())
        return;
    const QPoint pointer = event->globalPosition().toPoint();
    const QPoint corner = start->second + (event->globalPosition() - start->first).toPoint();
    // Where the window lies is known again when the release has been handled.
    QMetaObject::invokeMethod(
        this, [this, pointer, corner] { droppedAt(pointer, corner); }, Qt::QueuedConnection);
}

/// One of a Wayland layer belongs to its output, and cannot be dragged to another one: it is shown there instead.
void PinnedScreenshotWindow::droppedAt(QPoint pointer, QPoint corner)
{
    QScreen *there = QGuiApplication::screenAt(pointer);
    if (!there || there == &m_place.screen())
        return;
    const QRect place = PinGeometry::withinReach({ corner, m_place.rect().size() }, there->geometry());
    m_place.moveTo(*there, place, WindowLayers::Keyboard::OnClick);
}

void PinnedScreenshotWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        actualSize();
}

void PinnedScreenshotWindow::wheelEvent(QWheelEvent *event)
{
    constexpr double zoomPerOpacity = 2; // a notch is a tenth
    if (event->modifiers() & Qt::ControlModifier)
        zoomTo(m_zoom * std::exp(turned(*event) * zoomPerOpacity), event->position());
    else
        setOpacity(m_opacity + turned(*event));
}

void PinnedScreenshotWindow::contextMenuEvent(QContextMenuEvent *event)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillPinnedMenu(*menu, *this);
    const bool byKeys = event->reason() == QContextMenuEvent::Keyboard;
    menu->popup(byKeys ? mapToGlobal(rect().center()) : event->globalPos());
}

void PinnedScreenshotWindow::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    if (windowsHaveOpacity() && isVisible()) // a Wayland compositor does not tell
        m_place.wasMoved(pos());
}

void PinnedScreenshotWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_view->setGeometry(rect());
}

} // namespace tessaly
