// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/QuickAccessPanel.h"

#include "ui/QuickAccess/QuickAccessView.h"
#include "ui/Style/CaptureProperties.h"

#include <QCloseEvent>
#include <QStyle>

namespace tessaly {

QuickAccessPanel::QuickAccessPanel(const RasterImage &image, bool showsTextButton, WindowLayers &layers) :
    FloatingPanel(Qt::Tool | Qt::WindowDoesNotAcceptFocus, 10),
    m_view(new QuickAccessView(image, showsTextButton, cornerRadius(), this)),
    m_place(*this, layers)
{
    setObjectName(QStringLiteral("quickAccess"));
    setWindowTitle(tr("Screenshot"));
    setAccessibleName(tr("Screenshot taken"));
    setProperty(CaptureProperties::hides, true);
    setProperty(CaptureProperties::ends, false); // unlike other panels
    setAttribute(Qt::WA_AlwaysShowToolTips); // its window is never the active one
    constexpr int slideMilliseconds = 220;
    const bool moves = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
    m_slide.setDuration(moves ? slideMilliseconds : 0);
    m_slide.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_slide, &QVariantAnimation::valueChanged, this, [this](const QVariant &corner) {
        m_place.move({ corner.toPoint(), m_restingPlace.size() });
    });
    connect(m_view, &QuickAccessView::dragEnded, this, [this] {
        if (m_closesAfterDrag)
            close();
        else
            setHovered(underMouse());
    });
    resize(m_view->sizeHint());
}

void QuickAccessPanel::appear(QScreen &screen, const QRect &place, QPoint from)
{
    m_restingPlace = place;
    m_place.prepare(screen, QRect(from, place.size()), WindowLayers::Keyboard::Never);
    fadeIn();
    slideTo(place);
}

void QuickAccessPanel::slideTo(const QRect &place)
{
    m_restingPlace = place;
    m_slide.stop();
    if (m_place.rect() == place)
        return;
    m_slide.setStartValue(m_place.rect().topLeft());
    m_slide.setEndValue(place.topLeft());
    m_slide.start();
}

/// A drag leaves the window and is still the user's business with it.
void QuickAccessPanel::setHovered(bool inside)
{
    const bool revealed = inside && !m_view->isDragging();
    m_view->setRevealed(revealed);
    Q_EMIT hovered(inside || m_view->isDragging());
}

void QuickAccessPanel::enterEvent(QEnterEvent *) { setHovered(true); }
void QuickAccessPanel::leaveEvent(QEvent *) { setHovered(false); }

void QuickAccessPanel::showEvent(QShowEvent *event)
{
    FloatingPanel::showEvent(event);
    m_place.moveAgain(); // it may have slid while a capture hid it
    Q_EMIT shownChanged(true);
}

void QuickAccessPanel::hideEvent(QHideEvent *event)
{
    FloatingPanel::hideEvent(event);
    m_view->setRevealed(false);
    Q_EMIT shownChanged(false);
}

/// The drag runs inside the view, which must outlive it.
void QuickAccessPanel::closeEvent(QCloseEvent *event)
{
    if (!m_view->isDragging())
        return FloatingPanel::closeEvent(event);
    event->ignore();
    m_closesAfterDrag = true;
    hide();
}

void QuickAccessPanel::resizeEvent(QResizeEvent *event)
{
    FloatingPanel::resizeEvent(event);
    m_view->setGeometry(rect());
}

} // namespace tessaly
