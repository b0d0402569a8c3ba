// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"
#include "ui/QuickAccess/FloatPlace.h"
#include "ui/Toast/FloatingPanel.h"

namespace tessaly {

class QuickAccessView;

/// The window of a thumbnail. It never takes the focus, and a capture hides it. Deletes itself when it is closed.
class QuickAccessPanel final : public FloatingPanel {
    Q_OBJECT

public:
    /// Keeps the layers.
    QuickAccessPanel(const RasterImage &image, bool showsTextButton, WindowLayers &layers);

    QuickAccessView &view() { return *m_view; }
    /// Slides from one point to the place and fades in.
    void appear(QScreen &screen, const QRect &place, QPoint from);
    void slideTo(const QRect &place);
    /// Where it is, or is on its way to; points of the whole desktop.
    const QRect &restingPlace() const { return m_restingPlace; }

Q_SIGNALS:
    /// The pointer has come, or gone.
    void hovered(bool inside);
    /// It has been shown, or hidden as for a capture.
    void shownChanged(bool shown);

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setHovered(bool inside);

    QuickAccessView *m_view;
    FloatPlace m_place;
    QRect m_restingPlace;
    QVariantAnimation m_slide;
    bool m_closesAfterDrag = false;
};

} // namespace tessaly
