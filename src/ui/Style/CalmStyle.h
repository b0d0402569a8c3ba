// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

class QStyleOptionButton;
class QStyleOptionComboBox;
class QStyleOptionMenuItem;
class QStyleOptionSlider;
class QStyleOptionSpinBox;

namespace tessaly {

/// Fusion with flat, rounded controls whose states are told apart at a glance: under the pointer, held down, on, and
/// with the keyboard's focus. It takes every colour from the palette of the moment.
class CalmStyle : public QProxyStyle {
    Q_OBJECT

public:
    CalmStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
        const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
        const QWidget *widget = nullptr) const override;
    int pixelMetric(
        PixelMetric metric, const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
        QStyleHintReturn *returnData = nullptr) const override;
    /// The icons of file dialogs and alerts, in the family of all others.
    QIcon standardIcon(
        StandardPixmap standard, const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const override;
    QPixmap standardPixmap(
        StandardPixmap standard, const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const override;

private:
    void drawMenuEntry(
        ControlElement element, const QStyleOptionMenuItem &option, QPainter &painter, const QWidget *widget) const;
    void drawPushButtonLabel(const QStyleOptionButton &option, QPainter &painter, const QWidget *widget) const;
    void drawComboBox(const QStyleOptionComboBox &option, QPainter &painter, const QWidget *widget) const;
    void drawSpinBox(const QStyleOptionSpinBox &option, QPainter &painter, const QWidget *widget) const;
    void drawSlider(const QStyleOptionSlider &option, QPainter &painter, const QWidget *widget) const;
    void drawScrollBar(const QStyleOptionSlider &option, QPainter &painter, const QWidget *widget) const;
};

} // namespace tessaly
