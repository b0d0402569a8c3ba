// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

namespace tessaly {

/// Draws a picture, pixel for pixel where its size and the screen's scale allow, in a thin line that tells it from what
/// lies below. It keeps no scaled copy: what it paints is kept by the window.
class PinnedImageView final : public QWidget {
    Q_OBJECT

public:
    PinnedImageView(QImage image, QWidget *parent);

    /// In how many points it is drawn; on this screen whole pixels.
    void setShownSize(QSizeF points);
    /// How faint it paints itself; for windows that cannot be faint as a whole.
    void setPaintedOpacity(double opacity);
    /// Something behind the see-through parts of the picture, where windows are never see-through.
    void setBacked(bool backed) { m_backed = backed; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintPicture(QPainter &painter, const QRect &place, const QRect &dirtyPixels) const;

    QImage m_image;
    QSizeF m_shownSize;
    double m_opacity = 1;
    bool m_backed = false;
};

} // namespace tessaly
