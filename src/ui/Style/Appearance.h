// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QObject>

#include <optional>

namespace tessaly {

class Settings;

/// Light or dark, as the setting "appearance" says or else as the desktop does: the palette, the style and the few
/// colours that no palette has. One for the application; main thread only.
class Appearance : public QObject {
    Q_OBJECT

public:
    /// Keeps the reference and dresses the QApplication at once, and again on every change. What the desktop prefers is
    /// asked without waiting; its answer changes the dress when it comes.
    explicit Appearance(const Settings &settings, QObject *parent = nullptr);
    ~Appearance() override;

    bool isDark() const { return m_dark; }
    /// Reads the setting again.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    void followDesktop(bool dark);
    void apply(bool dark);

    const Settings &m_settings;
    bool m_paletteWasDark; ///< of the platform's own palette, before ours
    std::optional<bool> m_desktopIsDark; ///< as the desktop said; empty until and unless it does
    bool m_dark = false;
};

/// Colours beyond the palette; they follow the application's present palette.
namespace Colors {
QColor canvasSurround(); ///< around the capture
QColor checkerLight();
QColor checkerDark();
QColor separator();
QColor accent(); ///< focus and the active tool
QColor quietText(); ///< secondary texts; still legible
QColor hovered(); ///< laid over a control under the pointer; translucent
QColor pressed(); ///< laid over a control that is held down; translucent
QColor outline(); ///< the edge of fields, buttons and empty boxes
} // namespace Colors

} // namespace tessaly
