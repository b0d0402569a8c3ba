// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QSlider;

namespace tessaly {

/// How numbers are read: image points, hundredths of a fraction, or a factor.
enum class ValueUnit { Points, Percent, Factor };

/// What a slider offers. `title` and `help` are translated by the caller.
struct SliderRange {
    double minimum = 0;
    double maximum = 1;
    double step = 0.05;
    ValueUnit unit = ValueUnit::Points;
};

/// A titled slider with its value as text. It tells where an adjustment by mouse, key or wheel begins and ends.
class ValueSlider : public QWidget {
    Q_OBJECT

public:
    ValueSlider(const QString &title, const QString &help, const SliderRange &range, QWidget *parent = nullptr);

    /// Shows a value, also one beyond the range, and emits nothing.
    void setValue(double value);
    double value() const { return m_value; }
    QSlider &slider() { return *m_slider; }
    /// The title, which a form may take into its own column.
    QLabel &label() { return *m_label; }

Q_SIGNALS:
    void begun();
    void changed(double value);
    void ended();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showText();
    void beginAdjustment();
    void endAdjustment();

    SliderRange m_range;
    double m_value = 0;
    bool m_adjusting = false;
    QLabel *m_label;
    QSlider *m_slider;
    QLabel *m_text;
    QTimer m_wheelPause; ///< the notches of one turn of the wheel are one adjustment
};

/// The value as the slider writes it: "12 pt", "45 %", "2×".
QString valueText(double value, ValueUnit unit);

} // namespace tessaly
