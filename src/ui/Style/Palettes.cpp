// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/Palettes.h"

namespace tessaly::Palettes {

namespace {

/// One role in both appearances.
struct RoleColors {
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

constexpr RoleColors roles[] = {
    { QPalette::Window, 0xf5f5f7, 0x28282c },
    { QPalette::WindowText, 0x1d1d22, 0xededf0 },
    { QPalette::Base, 0xffffff, 0x1d1d20 },
    { QPalette::AlternateBase, 0xf1f1f4, 0x232327 },
    { QPalette::Text, 0x1d1d22, 0xededf0 },
    { QPalette::PlaceholderText, 0x6a6a75, 0x9d9da8 },
    { QPalette::Button, 0xffffff, 0x3a3a40 },
    { QPalette::ButtonText, 0x1d1d22, 0xededf0 },
    { QPalette::BrightText, 0xffffff, 0xffffff },
    { QPalette::Light, 0xffffff, 0x4a4a51 },
    { QPalette::Midlight, 0xeaeaee, 0x404046 },
    { QPalette::Mid, 0xc9c9d0, 0x55555d },
    { QPalette::Dark, 0x9a9aa4, 0x7a7a84 },
    { QPalette::Shadow, 0x55555e, 0x000000 },
    { QPalette::Highlight, 0x1a6ae0, 0x2a6fdb },
    { QPalette::HighlightedText, 0xffffff, 0xffffff },
    { QPalette::Link, 0x1660cf, 0x7fb2ff },
    { QPalette::LinkVisited, 0x7a3fc0, 0xc79bff },
    { QPalette::ToolTipBase, 0x2b2b30, 0x46464d },
    { QPalette::ToolTipText, 0xf5f5f7, 0xf5f5f7 },
};

/// What cannot be used now looks fainter, on the same ground.
constexpr RoleColors disabledRoles[] = {
    { QPalette::WindowText, 0x9898a2, 0x77777f },
    { QPalette::Text, 0x9898a2, 0x77777f },
    { QPalette::ButtonText, 0x9898a2, 0x77777f },
    { QPalette::PlaceholderText, 0xa8a8b0, 0x6b6b73 },
    { QPalette::Base, 0xf7f7f9, 0x242428 },
    { QPalette::Button, 0xf7f7f9, 0x303035 },
    { QPalette::Highlight, 0xc4c4cc, 0x4a4a51 },
    { QPalette::HighlightedText, 0xf5f5f7, 0x9d9da8 },
    { QPalette::Link, 0x9898a2, 0x77777f },
    { QPalette::LinkVisited, 0x9898a2, 0x77777f },
};

QPalette made(QRgb RoleColors::*appearance)
{
    QPalette palette;
    for (const RoleColors &row : roles)
        palette.setColor(QPalette::All, row.role, QColor(row.*appearance));
    for (const RoleColors &row : disabledRoles)
        palette.setColor(QPalette::Disabled, row.role, QColor(row.*appearance));
    return palette;
}

} // namespace

QPalette light() { return made(&RoleColors::light); }
QPalette dark() { return made(&RoleColors::dark); }

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
}

} // namespace tessaly::Palettes
