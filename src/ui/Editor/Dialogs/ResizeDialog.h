// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QCheckBox;
class QPushButton;
class QSpinBox;

namespace tessaly {

/// Asks for a new size of the picture in pixels.
class ResizeDialog : public QDialog {
    Q_OBJECT

public:
    /// The most pixels on a side.
    static constexpr int maxSide = 32767;
    static constexpr std::array percentages { 25, 50, 75, 150, 200 };

    explicit ResizeDialog(QSize original, QWidget *parent = nullptr);

    QSize pixelSize() const;

private:
    void follow(const QSpinBox &changed);
    void applyPercentage(int percent);
    void set(QSize size);
    void updateApply();

    QSize m_original;
    bool m_syncing = false; ///< one field is being set by the other
    QSpinBox *m_width;
    QSpinBox *m_height;
    QCheckBox *m_lockRatio;
    QPushButton *m_apply;
};

/// The size that a percentage button sets: whole pixels, cut, at least 1.
QSize resizedByPercentage(QSize original, int percent);

} // namespace tessaly
