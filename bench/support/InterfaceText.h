// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

#include <QFont>
#include <QList>

/// Screenshots of which it is known what they say; the same on every run with the same fonts.
namespace tessaly::bench {

/// What one of them looks like.
struct InterfaceLook {
    enum class Theme { Light, Dark, LightWithDarkPanels };

    int pixelHeight = 13; ///< of the type at one pixel a point
    Theme theme = Theme::Light;
    QString family;
    QFont::HintingPreference hinting = QFont::PreferDefaultHinting;
    double scale = 1; ///< pixels a point
    unsigned seed = 1;
};

/// A text that was painted, with the pixels that it may cover.
struct PaintedText {
    QString text;
    QRectF pixelBox;
};

struct InterfaceScreenshot {
    RasterImage image;
    QList<PaintedText> texts;
};

/// A window with a menu bar, a side panel with a selected row, paragraphs, a table and a status bar.
InterfaceScreenshot interfaceScreenshot(const InterfaceLook &look, QSize pointSize);

/// The forty looks of the accuracy bench: 10 to 16 pixels, six families, three themes, at one and two pixels a point.
QList<InterfaceLook> interfaceLooks();

} // namespace tessaly::bench
