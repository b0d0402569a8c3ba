// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Imaging/RasterImage.h"

#include <QDialog>
#include <QTimer>

class QLabel;
class QSlider;

namespace tessaly {

class Settings;

/// Asks how strongly to sharpen the picture, and shows a detail of it before and after.
class SharpenDialog : public QDialog {
    Q_OBJECT

public:
    /// The range of the slider in percent.
    static constexpr int maxPercent = 200;

    /// Keeps the reference; starts with the amount that was remembered.
    SharpenDialog(const RasterImage &image, Settings &settings, QWidget *parent = nullptr);

    /// The chosen amount as ImageEdit takes it: whole percents, 1 is 100 %.
    double amount() const;
    /// Stores the amount for the next time.
    Outcome remember() const;

private:
    void showAmount();
    void showAfter();

    Settings &m_settings;
    RasterImage m_detail;
    QSlider *m_slider;
    QLabel *m_percent;
    QLabel *m_before;
    QLabel *m_after;
    QTimer m_preview; ///< the detail is sharpened once a turn of the event loop
};

/// The part of a picture that has the most edges among a few of `pixelSize`, at most the picture.
QRect detailOf(const QImage &pixels, QSize pixelSize);

} // namespace tessaly
