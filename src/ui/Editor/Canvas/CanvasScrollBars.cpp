// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasScrollBars.h"

#include "ui/Editor/Canvas/CanvasNavigation.h"
#include "ui/Editor/Canvas/CanvasViewport.h"
#include "ui/Editor/Canvas/OverlayScrollBar.h"

#include <QSignalBlocker>

namespace tessaly {

CanvasScrollBars::CanvasScrollBars(QWidget &widget, const CanvasViewport &viewport, CanvasNavigation &navigation) :
    m_viewport(viewport),
    m_navigation(navigation),
    m_bars { new OverlayScrollBar(Qt::Horizontal, &widget), new OverlayScrollBar(Qt::Vertical, &widget) }
{
    for (const OverlayScrollBar *bar : m_bars)
        connect(bar, &QAbstractSlider::valueChanged, &m_navigation,
            [this, bar](int value) { m_navigation.scrollTo(bar->orientation(), value); });
    connect(&m_navigation, &CanvasNavigation::moved, this, &CanvasScrollBars::follow);
    follow();
}

void CanvasScrollBars::layOut()
{
    for (OverlayScrollBar *bar : m_bars)
        bar->layOut();
}

void CanvasScrollBars::follow()
{
    for (OverlayScrollBar *bar : m_bars) {
        const CanvasViewport::Range range = m_viewport.range(bar->orientation());
        const QSignalBlocker blocker(bar);
        bar->setRange(0, range.maximum);
        bar->setPageStep(range.page);
        bar->setValue(range.value);
        bar->setVisible(range.isNeeded());
        bar->update();
    }
}

} // namespace tessaly
