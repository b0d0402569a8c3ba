// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

#include <QWidget>

namespace tessaly {

class QuickAccessButton;

/// What can be done with a thumbnail, in the order of its buttons.
enum class QuickAccessAction { Copy, Save, Annotate, Pin, CopyText, Close };

/// The picture of a thumbnail with its buttons, which are seen under the pointer. It is dragged out as a file.
class QuickAccessView final : public QWidget {
    Q_OBJECT

public:
    QuickAccessView(RasterImage image, bool showsTextButton, double cornerRadius, QWidget *parent);

    void setRevealed(bool revealed);
    bool isDragging() const { return m_dragging; }
    QuickAccessButton *button(QuickAccessAction action) const;
    /// As high as the picture needs at the usual width, within limits, and never too small for the buttons.
    QSize sizeHint() const override;

Q_SIGNALS:
    void chosen(tessaly::QuickAccessAction action);
    /// The picture has been dropped, here or elsewhere, or the drag given up.
    void dragEnded();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void addButtons(bool showsTextButton);
    const QPixmap &thumbnail();
    void drag();

    RasterImage m_image;
    double m_cornerRadius;
    QPixmap m_thumbnail; ///< in the size of the view; null until it is painted
    QList<std::pair<QuickAccessAction, QuickAccessButton *>> m_buttons;
    QPoint m_pressed;
    bool m_revealed = false;
    bool m_dragging = false;
};

} // namespace tessaly
