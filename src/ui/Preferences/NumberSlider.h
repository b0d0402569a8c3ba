// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;
class QSlider;

namespace tessaly {

/// A slider with its number beside it.
class NumberSlider : public QWidget {
    Q_OBJECT

public:
    enum class Unit {
        Percent, ///< of 1, in whole percents
        Points, ///< whole ones
    };
    NumberSlider(double least, double most, Unit unit, QWidget *parent = nullptr);

    /// Shows a value and emits nothing; one that lies beyond the range is shown at its end with its own number.
    void setValue(double value);
    QSlider &slider() { return *m_slider; }

Q_SIGNALS:
    /// By the user; while the slider is dragged only at the end.
    void chosen(double value);

private:
    void showNumber(double value);
    double stepValue() const { return m_unit == Unit::Percent ? 0.01 : 1; }

    Unit m_unit;
    QSlider *m_slider;
    QLabel *m_number;
};

} // namespace tessaly
