// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QStringList>

namespace tessaly {

/// A round button filled with one or more colours; without any it shows the checkerboard of transparency.
class SwatchButton : public QAbstractButton {
    Q_OBJECT

public:
    /// `colors` are "#RRGGBB"; several are a gradient from the top left to the bottom right.
    SwatchButton(const QStringList &colors, const QString &name, QWidget *parent = nullptr);

    const QStringList &colors() const { return m_colors; }
    void setColors(const QStringList &colors);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QStringList m_colors;
};

/// What a swatch shows that stands for any colour.
QStringList anyColorHues();

/// Swatches of fixed colours and a last one that opens a picker for any other.
class ColorSwatches : public QWidget {
    Q_OBJECT

public:
    /// `keys` makes the tooltips name the keys 1 to 9.
    ColorSwatches(const QString &title, const QStringList &colors, bool keys, QWidget *parent = nullptr);

    /// Marks the swatch of the colour, or shows it in the last one; emits nothing.
    void setColor(const QString &hex);

Q_SIGNALS:
    void picked(const QString &hex);

private:
    void pickOther();

    QString m_title;
    QString m_hex;
    QList<SwatchButton *> m_swatches;
    QStringList m_colors;
    SwatchButton *m_other;
};

} // namespace tessaly
