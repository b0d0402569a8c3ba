// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/SelectionOverlay.h"

#include <QPointer>
#include <QTimer>
#include <QWidget>

class QAbstractButton;
class QButtonGroup;

namespace tessaly {

/// What is selected: an area, a window or the whole screen, and the buttons that end it. The selection paints it as a
/// picture and hands it the mouse and the keys, so that it is a part of the selection's window on every desktop; for
/// screen readers it is a usual window of widgets at its place on the screen.
class CaptureModeBar final : public QWidget {
    Q_OBJECT

public:
    explicit CaptureModeBar(bool canPickWindows);
    ~CaptureModeBar() override;

    void setMode(OverlayMode mode);
    /// Whether there is something that "Capture" would capture; without it the button is not there.
    void setCanCapture(bool can);

    /// At that scale, see-through around its corners.
    QImage picture(double scale);

    /// The mouse at a place of the bar, in points; `button` of presses and releases.
    void mouse(QEvent::Type type, QPointF position, Qt::MouseButton button, Qt::MouseButtons buttons);
    /// The pointer went elsewhere; nothing is held down any more.
    void mouseLeft();
    bool isPressed() const { return !m_pressed.isNull(); }
    /// The button under the pointer.
    const QWidget *hovered() const { return m_hovered; }

    /// Moves the keyboard's focus among the buttons; beyond the last and before the first, to none of them.
    void moveFocus(int step);
    /// Presses the button with the keyboard's focus; false when none has it.
    bool pressFocused();
    void dropFocus();

    /// Has screen readers say a text.
    void announce(const QString &text);

Q_SIGNALS:
    void modeSelected(OverlayMode mode);
    void fullScreen();
    void cancel();
    void capture();
    /// It looks different now.
    void changed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QAbstractButton *addSegment(const QString &title, const QString &toolTip);
    QAbstractButton *addButton(const QString &title, const QString &toolTip);
    QList<QAbstractButton *> buttons() const;
    void hover(QWidget *button);
    void showToolTip() const;

    QButtonGroup *m_segments;
    QAbstractButton *m_region, *m_window = nullptr, *m_capture;
    QWidget *m_announcement;
    QTimer m_toolTip;
    QPointer<QWidget> m_hovered, m_pressed;
    QPointer<QAbstractButton> m_focused;
};

} // namespace tessaly
