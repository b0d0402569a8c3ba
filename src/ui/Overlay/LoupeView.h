// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QString>

#include <optional>

class QPainter;

namespace tessaly {

/// The magnifier beside the pointer: the pixels around the one it is on, that one's colour and place. Everything is in
/// the device pixels of one monitor.
class LoupeView {
public:
    static constexpr int samplePixels = 15; ///< shown each way, the pointer's in the middle
    static constexpr double pointerDistance = 22; ///< points
    static constexpr double edgeDistance = 4; ///< points

    explicit LoupeView(double scale) : m_scale(scale) { }

    /// Looks at a pixel of the monitor's picture; `selection` is shown while it is being dragged. Pixels outside the
    /// picture are shown black.
    void look(const QImage &picture, QPoint pixel, std::optional<QSize> selection);
    void hide();
    bool isVisible() const { return !m_sample.isNull(); }

    /// "#" and six upper-case hexadecimal digits; absent while nothing is looked at.
    std::optional<QString> hex() const;
    /// Whether it says that the colour was copied.
    void setCopied(bool copied) { m_copied = copied; }

    /// Its place on the monitor; empty while it is hidden.
    QRect rect() const { return m_rect; }
    void paint(QPainter &painter) const;

private:
    QSize layoutSize() const;
    void place(QSize monitor);
    void paintSample(QPainter &painter) const;
    void paintTexts(QPainter &painter) const;
    int pixels(double points) const { return std::max(1, qRound(points * m_scale)); }
    int gridSide() const { return samplePixels * pixels(8); }

    double m_scale;
    QImage m_sample;
    QPoint m_pointer;
    QColor m_swatch;
    QString m_position, m_size;
    bool m_copied = false;
    QRect m_rect;
};

} // namespace tessaly
