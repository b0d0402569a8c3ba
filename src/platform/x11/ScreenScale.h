// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

/// The scale that Qt's windows have on each monitor of an X server, found out without Qt's own windows: a capture made
/// by a command must measure in the same points as one made in the program.
namespace tessaly::ScreenScale {

/// What the person has set in the environment, by the variables that Qt reads.
struct Settings {
    bool enabled = true; ///< QT_ENABLE_HIGHDPI_SCALING: whether the server's resolution counts
    double factor = 1; ///< QT_SCALE_FACTOR, on top of everything
    QString screenFactors; ///< QT_SCREEN_SCALE_FACTORS: "1;1.5" or "DP-1=1;DP-2=1.5"
    double dpi = 0; ///< QT_FONT_DPI, in place of the server's; 0 when it is not set

    static Settings fromEnvironment();
};

/// Device pixels per point of each monitor, in the order of `names`: the primary one first, then as the server lists
/// them. `serverDpi` is the server's Xft.dpi, 0 without one.
QList<double> ofMonitors(const QStringList &names, double serverDpi, const Settings &settings);

} // namespace tessaly::ScreenScale
