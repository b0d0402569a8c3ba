// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

namespace tessaly {

/// The seconds that are left, large, on a dark rounded square.
class CountdownPanel final : public QWidget {
    Q_OBJECT

public:
    static constexpr int windowSide = 150; ///< logical pixels
    static constexpr int squareSide = 116;

    explicit CountdownPanel(std::function<void()> onClick);

    void setNumber(int number);
    /// Whether Escape is heard; a click always is.
    void setHearsEscape(bool hears) { m_hearsEscape = hears; }

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect square() const;
    QString hint() const;

    std::function<void()> m_onClick;
    int m_number = 0;
    bool m_hearsEscape = true;
};

} // namespace tessaly
