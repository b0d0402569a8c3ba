// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractSlider>

#include <optional>

namespace tessaly {

/// A slim scroll bar that lies over what it scrolls and shows only its thumb; wider under the pointer.
class OverlayScrollBar : public QAbstractSlider {
    Q_OBJECT

public:
    static constexpr int thickness = 14; ///< logical pixels, with the air around the thumb

    OverlayScrollBar(Qt::Orientation orientation, QWidget *parent);

    /// Along the right or the bottom edge of the parent, whose other bar takes the corner.
    void layOut();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    int along(const QPointF &position) const;
    int length() const;
    int thumbLength() const;
    int thumbStart() const;
    int valueAt(int thumbStart) const;

    std::optional<int> m_grab; ///< where the thumb was taken, from its start
};

} // namespace tessaly
