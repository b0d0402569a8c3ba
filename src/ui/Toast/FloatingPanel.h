// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace tessaly {

/// Whether the window system makes whole windows translucent. A Wayland compositor has no request for it: there a
/// window comes and goes at once, and paints what shall be faint.
bool windowsHaveOpacity();

/// A small window with rounded corners over everything else. It comes and goes softly, never takes the focus by
/// itself, and deletes itself when it is closed. A capture ends it.
class FloatingPanel : public QWidget {
    Q_OBJECT

public:
    /// `flags` beyond those of any such window; corners in logical pixels.
    FloatingPanel(Qt::WindowFlags flags, double cornerRadius);

    void fadeIn();
    /// Closes it at the end.
    void fadeOut();
    /// A screen reader says the panel's accessible name without going there.
    void announce();

protected:
    double cornerRadius() const { return m_cornerRadius; }
    void resizeEvent(QResizeEvent *event) override;

private:
    void fadeTo(double opacity);

    double m_cornerRadius;
    QVariantAnimation m_fade;
};

} // namespace tessaly
