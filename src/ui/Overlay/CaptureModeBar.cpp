// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/CaptureModeBar.h"

#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QToolTip>

#include <cmath>

namespace tessaly {

static constexpr int corner = 12;
static constexpr int buttonHeight = 30;

CaptureModeBar::CaptureModeBar(bool canPickWindows) :
    QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus)
{
    setAttribute(Qt::WA_DontShowOnScreen);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(tr("Select what to capture"));
    setAccessibleName(windowTitle());
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(8, 8, 8, 8);
    row->setSpacing(4);
    m_segments = new QButtonGroup(this);
    m_region = addSegment(tr("Region"), tr("Select an area (1)"));
    if (canPickWindows)
        m_window = addSegment(tr("Window"), tr("Pick a window (2)"));
    auto *whole = addSegment(tr("Full Screen"), tr("Capture the whole screen (3)"));
    constexpr int gap = 17; // with a line in its middle
    row->addSpacing(gap);
    auto *cancelling = addButton(tr("Cancel"), tr("Close without a capture (Esc)"));
    m_capture = addButton(tr("Capture"), tr("Capture what is selected (Return)"));
    static_cast<QPushButton *>(m_capture)->setDefault(true);
    m_capture->hide();
    m_announcement = new QWidget(this);
    m_announcement->setObjectName(QStringLiteral("announcement"));
    m_announcement->setFixedSize(0, 0);
    m_toolTip.setSingleShot(true);
    m_toolTip.setInterval(style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay));
    m_toolTip.callOnTimeout(this, &CaptureModeBar::showToolTip);
    connect(m_region, &QAbstractButton::clicked, this, [this] { Q_EMIT modeSelected(OverlayMode::Region); });
    if (m_window)
        connect(m_window, &QAbstractButton::clicked, this, [this] { Q_EMIT modeSelected(OverlayMode::Window); });
    connect(whole, &QAbstractButton::clicked, this, &CaptureModeBar::fullScreen);
    connect(cancelling, &QAbstractButton::clicked, this, &CaptureModeBar::cancel);
    connect(m_capture, &QAbstractButton::clicked, this, &CaptureModeBar::capture);
    adjustSize();
}

CaptureModeBar::~CaptureModeBar() { QToolTip::hideText(); }

QAbstractButton *CaptureModeBar::addSegment(const QString &title, const QString &toolTip)
{
    auto *segment = new QToolButton(this);
    segment->setText(title);
    segment->setToolTip(toolTip);
    segment->setAccessibleDescription(toolTip);
    segment->setCheckable(true);
    segment->setAutoRaise(true);
    segment->setMinimumHeight(buttonHeight);
    m_segments->addButton(segment);
    layout()->addWidget(segment);
    return segment;
}

QAbstractButton *CaptureModeBar::addButton(const QString &title, const QString &toolTip)
{
    auto *button = new QPushButton(title, this);
    button->setToolTip(toolTip);
    button->setAccessibleDescription(toolTip);
    button->setAutoDefault(false);
    constexpr int air = 32; // less than usual: the bar fits small monitors
    button->setFixedWidth(button->fontMetrics().horizontalAdvance(title) + air);
    button->setMinimumHeight(buttonHeight);
    layout()->addWidget(button);
    return button;
}

QList<QAbstractButton *> CaptureModeBar::buttons() const
{
    QList<QAbstractButton *> found = findChildren<QAbstractButton *>(Qt::FindDirectChildrenOnly);
    found.removeIf([](const QAbstractButton *button) { return button->isHidden(); });
    return found;
}

void CaptureModeBar::setMode(OverlayMode mode)
{
    QAbstractButton *segment = mode == OverlayMode::Window && m_window ? m_window : m_region;
    segment->setChecked(true);
    Q_EMIT changed();
}

void CaptureModeBar::setCanCapture(bool can)
{
    if (can == !m_capture->isHidden())
        return;
    if (m_focused == m_capture)
        dropFocus();
    m_capture->setVisible(can);
    adjustSize();
    Q_EMIT changed();
}

/// With a gap, for one of the buttons has the ring's own colour.
static void paintFocus(QPainter &painter, const QRectF &button)
{
    constexpr int reach = 4; // half of the bar's margin
    ControlShapes::focusRing(painter, button.adjusted(-reach, -reach, reach, reach), ControlShapes::radius + reach);
}

QImage CaptureModeBar::picture(double scale)
{
    const QSize pixels(int(std::ceil(width() * scale)), int(std::ceil(height() * scale)));
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    render(&painter, QPoint(), QRegion(), DrawChildren);
    if (m_focused)
        paintFocus(painter, m_focused->geometry());
    painter.end();
    image.setDevicePixelRatio(1);
    return image;
}

void CaptureModeBar::hover(QWidget *button)
{
    if (button == m_hovered)
        return;
    if (m_hovered) {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(m_hovered, &leave);
    }
    m_hovered = button;
    QToolTip::hideText();
    m_toolTip.stop();
    if (button) {
        m_toolTip.start();
        QEnterEvent enter({}, {}, {});
        QCoreApplication::sendEvent(button, &enter);
    }
    Q_EMIT changed();
}

/// Only where such a window needs no parent of its own kind.
void CaptureModeBar::showToolTip() const
{
    if (m_hovered && QGuiApplication::platformName() == u"xcb")
        QToolTip::showText(m_hovered->mapToGlobal(QPoint(0, -height() - 4)), m_hovered->toolTip());
}

void CaptureModeBar::mouse(QEvent::Type type, QPointF position, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QWidget *under = qobject_cast<QAbstractButton *>(childAt(position.toPoint()));
    if (!m_pressed)
        hover(under);
    if (type == QEvent::MouseButtonPress && button == Qt::LeftButton)
        m_pressed = under;
    const QPointer<QWidget> target = m_pressed;
    if (type == QEvent::MouseButtonRelease)
        m_pressed = nullptr;
    if (!target)
        return;
    const QPointer<CaptureModeBar> alive(this);
    const QPointF local = target->mapFrom(this, position);
    QMouseEvent event(type, local, target->mapToGlobal(local), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event); // a click may end everything
    if (alive)
        Q_EMIT changed();
}

void CaptureModeBar::mouseLeft()
{
    if (!m_pressed)
        hover(nullptr);
}

void CaptureModeBar::moveFocus(int step)
{
    const QList<QAbstractButton *> all = buttons();
    const qsizetype none = all.size(); // the place after the last one
    const qsizetype now = m_focused ? all.indexOf(m_focused) : none;
    const qsizetype next = (now + step + none + 1) % (none + 1);
    m_focused = next == none ? nullptr : all[next];
    if (m_focused && QAccessible::isActive()) {
        QAccessibleEvent event(m_focused, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
    Q_EMIT changed();
}

bool CaptureModeBar::pressFocused()
{
    if (!m_focused)
        return false;
    m_focused->click();
    return true;
}

void CaptureModeBar::dropFocus()
{
    if (!m_focused)
        return;
    m_focused = nullptr;
    Q_EMIT changed();
}

void CaptureModeBar::announce(const QString &text)
{
    m_announcement->setAccessibleName(text);
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(m_announcement, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void CaptureModeBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    ControlShapes::box(painter, QRectF(rect()), palette().color(QPalette::Window), Colors::outline(), corner);
    const QAbstractButton *last = m_segments->buttons().constLast();
    const QAbstractButton *next = buttons().at(m_segments->buttons().size());
    const int middle = (last->geometry().right() + next->geometry().left()) / 2;
    painter.fillRect(QRect(middle, last->y() + 4, 1, last->height() - 8), Colors::separator());
}

} // namespace tessaly
