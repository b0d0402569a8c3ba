// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/Appearance.h"

#include "core/Preferences/Settings.h"
#include "ui/Style/CalmStyle.h"
#include "ui/Style/DesktopAppearance.h"
#include "ui/Style/Palettes.h"

#include <QApplication>
#include <QToolTip>

namespace tessaly {

Appearance::Appearance(const Settings &settings, QObject *parent) :
    QObject(parent),
    m_settings(settings),
    m_paletteWasDark(Palettes::isDark(QGuiApplication::palette()))
{
    QApplication::setStyle(new CalmStyle);
    m_dark = !m_paletteWasDark; // so that the first dress counts as a change
    refresh();
    auto *desktop = new DesktopAppearance(this);
    connect(desktop, &DesktopAppearance::answered, this, &Appearance::followDesktop);
}

Appearance::~Appearance() = default;

void Appearance::refresh()
{
    const QString wanted = m_settings.value(SettingKeys::appearance);
    if (wanted == u"light" || wanted == u"dark")
        apply(wanted == u"dark");
    else
        apply(m_desktopIsDark.value_or(m_paletteWasDark));
}

void Appearance::followDesktop(bool dark)
{
    m_desktopIsDark = dark;
    refresh();
}

void Appearance::apply(bool dark)
{
    const QPalette palette = dark ? Palettes::dark() : Palettes::light();
    if (m_dark == dark && QApplication::palette() == palette)
        return;
    m_dark = dark;
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette); // which does not follow by itself
    Q_EMIT changed();
}

namespace {

QColor chosen(QRgb light, QRgb dark)
{
    return QColor::fromRgba(Palettes::isDark(QGuiApplication::palette()) ? dark : light);
}

} // namespace

QColor Colors::canvasSurround() { return chosen(0xffe6e6ea, 0xff18181a); }
QColor Colors::checkerLight() { return chosen(0xffffffff, 0xff3c3c41); }
QColor Colors::checkerDark() { return chosen(0xffdcdce0, 0xff2c2c30); }
QColor Colors::separator() { return chosen(0xffd8d8de, 0xff3d3d43); }
QColor Colors::accent() { return chosen(0xff1a6ae0, 0xff6ea8ff); }
QColor Colors::quietText() { return chosen(0xff62626c, 0xffa6a6b0); }
QColor Colors::hovered() { return chosen(0x12000010, 0x16ffffff); }
QColor Colors::pressed() { return chosen(0x22000010, 0x28ffffff); }
QColor Colors::outline() { return chosen(0xffc2c2ca, 0xff57575f); }

} // namespace tessaly
