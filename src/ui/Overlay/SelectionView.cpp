// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/SelectionView.h"

#include "ui/Overlay/CaptureModeBar.h"

#include <QMouseEvent>
#include <QScreen>

namespace tessaly {

namespace {

constexpr std::chrono::milliseconds copiedTime { 1000 };
constexpr double barMargin = 28; ///< points, from the monitor's edge

/// In the order of `Handle`.
constexpr Qt::CursorShape handleCursors[] = { Qt::SizeFDiagCursor, Qt::SizeBDiagCursor, Qt::SizeBDiagCursor,
    Qt::SizeFDiagCursor, Qt::SizeVerCursor, Qt::SizeVerCursor, Qt::SizeHorCursor, Qt::SizeHorCursor };

} // namespace

SelectionLeader::~SelectionLeader() = default;

SelectionView::SelectionView(QScreen &screen, bool seeThrough, bool takesParts) :
    OverlayWindow(screen, seeThrough, takesParts)
{
    setCursor(Qt::CrossCursor);
    m_copied.setSingleShot(true);
    m_copied.callOnTimeout(this, [this] {
        m_loupe.setCopied(false);
        updatePixels(m_loupe.rect());
    });
}

void SelectionView::open(SelectionLeader &leader, const Display &display, const QImage &picture, OverlayMode mode)
{
    close();
    m_leader = &leader;
    m_display = display;
    setMonitorPixels(display.pixelSize);
    m_model = SelectionModel(display.pixelSize, display.scale);
    m_loupe = LoupeView(display.scale);
    m_picture = picture;
    m_mode = mode;
    setCursor(mode == OverlayMode::Window ? Qt::PointingHandCursor : Qt::CrossCursor);
}

void SelectionView::close()
{
    discardPainting();
    m_leader = nullptr;
    m_picture = m_snapshot = m_barPicture = {};
    m_pointer = {};
    m_constraint = {};
    m_highlight = {};
    m_bar = nullptr;
    m_copied.stop();
    m_loupe = LoupeView(m_display.scale);
    m_painted = {};
    m_paintedClear = {};
}

void SelectionView::setMode(OverlayMode mode)
{
    m_mode = mode;
    m_model.clear();
    m_highlight = {};
    updateCursor();
    refresh();
}

void SelectionView::setPickedWindow(const std::optional<ScreenWindow> &window)
{
    m_highlight = {};
    if (window) {
        const QRectF monitor = m_display.layoutRect, place = window->layoutRect;
        Qt::Edges open;
        open.setFlag(Qt::LeftEdge, place.left() < monitor.left());
        open.setFlag(Qt::TopEdge, place.top() < monitor.top());
        open.setFlag(Qt::RightEdge, place.right() > monitor.right());
        open.setFlag(Qt::BottomEdge, place.bottom() > monitor.bottom());
        m_highlight
            = { m_display.pixelsOf(place), open, window->title.isEmpty() ? window->applicationName : window->title };
    }
    refresh();
}

void SelectionView::setModeBar(CaptureModeBar *bar)
{
    m_bar = bar;
    m_barPicture = bar ? bar->picture(m_display.scale) : QImage();
    if (bar)
        bar->move(screen()->geometry().topLeft() + (QPointF(barRect().topLeft()) / m_display.scale).toPoint());
    updatePixels(m_painted.bar);
    refresh();
    updatePixels(m_painted.bar);
}

std::optional<QString> SelectionView::copyColor()
{
    const auto hex = m_loupe.hex();
    if (hex) {
        m_loupe.setCopied(true);
        m_copied.start(copiedTime);
        updatePixels(m_loupe.rect());
    }
    return hex;
}

QRect SelectionView::clearRect() const
{
    return m_mode == OverlayMode::Window ? m_highlight.rect : m_model.pixelRect();
}

/// At the bottom, at the top where the selection needs that place, nowhere while it is being dragged.
QRect SelectionView::barRect() const
{
    if (m_barPicture.isNull() || m_model.isDragging())
        return {};
    const int margin = qRound(barMargin * m_display.scale);
    QRect rect(QPoint((m_display.pixelSize.width() - m_barPicture.width()) / 2, 0), m_barPicture.size());
    rect.moveTop(m_display.pixelSize.height() - margin - rect.height());
    if (m_mode == OverlayMode::Region && m_model.isValid() && rect.intersects(m_model.pixelRect())) {
        const QRect above(QPoint(rect.x(), margin), rect.size());
        if (!above.intersects(m_model.pixelRect()))
            return above;
    }
    return rect;
}

SelectionView::Scene SelectionView::scene() const
{
    const bool handles = m_model.isAdjusting() && !m_model.isDragging();
    const bool isRegion = m_mode == OverlayMode::Region;
    return { { isRegion ? m_model.pixelRect() : QRect(), handles },
        isRegion ? SelectionPainter::Highlight() : m_highlight, m_loupe.rect(), barRect() };
}

QRegion SelectionView::footprint(const Scene &scene) const
{
    return SelectionPainter::footprint(scene.frame, m_display.pixelSize, m_display.scale) + scene.loupe + scene.bar;
}

void SelectionView::lookAt()
{
    const bool overBar = m_pointer && barRect().contains(*m_pointer);
    if (m_snapshot.isNull() || !m_pointer || overBar)
        return m_loupe.hide();
    QPoint pixel = *m_pointer;
    if (m_model.isDragging()) // a drag goes on beyond the monitor
        pixel = { std::clamp(pixel.x(), 0, m_snapshot.width() - 1), std::clamp(pixel.y(), 0, m_snapshot.height() - 1) };
    m_loupe.look(m_snapshot, pixel,
        m_model.isDragging() || m_model.isAdjusting() ? std::optional(m_model.pixelRect().size()) : std::nullopt);
}

void SelectionView::refresh()
{
    if (!m_leader)
        return;
    lookAt();
    const Scene next = scene();
    const QRect clear = clearRect();
    QRegion dirty = QRegion(m_paintedClear) ^ QRegion(clear);
    if (next.frame != m_painted.frame) {
        dirty += SelectionPainter::footprint(next.frame, m_display.pixelSize, m_display.scale);
        dirty += SelectionPainter::footprint(m_painted.frame, m_display.pixelSize, m_display.scale);
    }
    if (next.highlight != m_painted.highlight)
        dirty += QRegion(next.highlight.rect) + m_painted.highlight.rect;
    if (next.bar != m_painted.bar)
        dirty += QRegion(next.bar) + m_painted.bar;
    dirty += QRegion(next.loupe) + m_painted.loupe;
    m_painted = next;
    m_paintedClear = clear;
    updatePixels(dirty);
}

void SelectionView::paint(QImage &surface, int top, const QRegion &pixels)
{
    SelectionPainter::paintGround(surface, top, pixels, m_picture, m_paintedClear);
    if (!footprint(m_painted).intersects(pixels) && !pixels.intersects(m_painted.highlight.rect))
        return;
    QPainter painter(&surface);
    painter.translate(0, -top);
    painter.setClipRegion(pixels);
    SelectionPainter::paintHighlight(painter, m_painted.highlight, m_display.scale);
    SelectionPainter::paintFrame(painter, m_painted.frame, m_display.pixelSize, m_display.scale);
    if (!m_painted.bar.isEmpty())
        painter.drawImage(m_painted.bar.topLeft(), m_barPicture);
    m_loupe.paint(painter);
}

void SelectionView::firstShown()
{
    if (m_leader)
        m_leader->shown(*this);
}

bool SelectionView::event(QEvent *event)
{
    if (!m_leader)
        return OverlayWindow::event(event);
    if (event->type() == QEvent::Enter) {
        pointTo(static_cast<QEnterEvent *>(event)->position());
        m_leader->pointerMoved(*this);
    } else if (event->type() == QEvent::Leave && !m_model.isDragging()) {
        losePointer();
    }
    return OverlayWindow::event(event);
}

void SelectionView::losePointer()
{
    if (!m_pointer)
        return;
    m_pointer = {};
    if (m_bar)
        m_bar->mouseLeft();
    refresh();
}

void SelectionView::pointTo(QPointF position)
{
    m_pointer = pixelAt(position);
    updateCursor();
    refresh();
}

void SelectionView::updateCursor()
{
    Qt::CursorShape shape = m_mode == OverlayMode::Window ? Qt::PointingHandCursor : Qt::CrossCursor;
    if (m_pointer && barRect().contains(*m_pointer))
        shape = Qt::ArrowCursor;
    else if (m_pointer && m_mode == OverlayMode::Region && !m_model.isDragging()) {
        if (const auto handle = m_model.handleAt(*m_pointer))
            shape = handleCursors[static_cast<int>(*handle)];
        else if (m_model.isValid() && m_model.pixelRect().contains(*m_pointer))
            shape = Qt::SizeAllCursor;
    }
    if (!m_model.isDragging() && shape != cursor().shape())
        setCursor(shape);
}

/// Whether the bar takes it: what is over it, and all until the release of a button that went down there.
bool SelectionView::toBar(QMouseEvent &event)
{
    const QRect bar = barRect();
    if (!m_bar || bar.isEmpty())
        return false;
    if (!m_bar->isPressed() && !bar.contains(pixelAt(event.position()))) {
        m_bar->mouseLeft();
        return false;
    }
    const auto type = event.type() == QEvent::MouseButtonDblClick ? QEvent::MouseButtonPress : event.type();
    m_bar->mouse(type, event.position() - QPointF(bar.topLeft()) / m_display.scale, event.button(), event.buttons());
    return true;
}

void SelectionView::mousePressEvent(QMouseEvent *event)
{
    if (!m_leader)
        return;
    if (event->button() == Qt::RightButton)
        return m_leader->cancelled();
    pointTo(event->position());
    if (event->button() != Qt::LeftButton || toBar(*event))
        return;
    m_leader->pressed(*this);
    if (!m_leader || m_mode != OverlayMode::Region)
        return;
    m_constraint = {};
    m_model.press(*m_pointer);
    refresh();
}

void SelectionView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_leader)
        return;
    m_pointer = pixelAt(event->position());
    if (m_model.isDragging()) {
        constrain(event->modifiers(), std::nullopt);
    } else {
        updateCursor();
        refresh();
        toBar(*event);
    }
    if (m_leader)
        m_leader->pointerMoved(*this);
}

void SelectionView::constrain(Qt::KeyboardModifiers modifiers, std::optional<bool> space)
{
    if (!m_model.isDragging() || !m_pointer)
        return;
    m_constraint = { modifiers.testFlag(Qt::ShiftModifier), modifiers.testFlag(Qt::AltModifier),
        space.value_or(m_constraint.moves) };
    m_model.drag(*m_pointer, m_constraint);
    refresh();
}

void SelectionView::mouseReleaseEvent(QMouseEvent *event)
{
    if (!m_leader || event->button() != Qt::LeftButton)
        return;
    m_pointer = pixelAt(event->position());
    if (!m_model.isDragging()) {
        toBar(*event);
        return;
    }
    constrain(event->modifiers(), std::nullopt);
    m_model.release();
    if (m_model.isValid())
        m_leader->selected(*this);
    if (!m_leader)
        return;
    updateCursor();
    refresh();
}

void SelectionView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (!m_leader)
        return;
    const bool overBar = barRect().contains(pixelAt(event->position()));
    if (event->button() == Qt::LeftButton && !overBar && m_model.isValid())
        m_leader->confirmed(*this);
    else
        mousePressEvent(event);
}

void SelectionView::keyPressEvent(QKeyEvent *event)
{
    if (m_leader)
        m_leader->keyPressed(*this, *event);
}

void SelectionView::keyReleaseEvent(QKeyEvent *event)
{
    if (m_leader && !event->isAutoRepeat() && event->key() == Qt::Key_Space)
        constrain(event->modifiers(), false);
}

} // namespace tessaly
