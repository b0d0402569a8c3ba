// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace tessaly {

class CanvasNavigation;
class CanvasViewport;
class OverlayScrollBar;

/// The two bars of a canvas widget, which show which part of a large capture is seen.
class CanvasScrollBars : public QObject {
    Q_OBJECT

public:
    /// Keeps the references; the bars belong to the widget.
    CanvasScrollBars(QWidget &widget, const CanvasViewport &viewport, CanvasNavigation &navigation);

    void layOut();

private:
    void follow();

    const CanvasViewport &m_viewport;
    CanvasNavigation &m_navigation;
    OverlayScrollBar *m_bars[2];
};

} // namespace tessaly
