// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/CalmStyle.h"
#include "ui/Style/Icons.h"

#include <QComboBox>

namespace tessaly {

namespace {

struct StandardIcon {
    QStyle::StandardPixmap standard;
    const char *icon;
};

constexpr StandardIcon standardIcons[] {
    { QStyle::SP_ArrowBack, "chevron-left" },
    { QStyle::SP_ArrowForward, "chevron-right" },
    { QStyle::SP_ArrowLeft, "chevron-left" },
    { QStyle::SP_ArrowRight, "chevron-right" },
    { QStyle::SP_ComputerIcon, "computer" },
    { QStyle::SP_DesktopIcon, "computer" },
    { QStyle::SP_DirClosedIcon, "open" },
    { QStyle::SP_DirHomeIcon, "home" },
    { QStyle::SP_DirIcon, "open" },
    { QStyle::SP_DirLinkIcon, "open" },
    { QStyle::SP_DirOpenIcon, "open" },
    { QStyle::SP_DriveHDIcon, "computer" },
    { QStyle::SP_FileDialogBack, "chevron-left" },
    { QStyle::SP_FileDialogDetailedView, "view-details" },
    { QStyle::SP_FileDialogListView, "view-list" },
    { QStyle::SP_FileDialogNewFolder, "folder-new" },
    { QStyle::SP_FileDialogToParent, "chevron-up" },
    { QStyle::SP_FileIcon, "file" },
    { QStyle::SP_FileLinkIcon, "file" },
    { QStyle::SP_LineEditClearButton, "close" },
    { QStyle::SP_MessageBoxCritical, "alert-warning" },
    { QStyle::SP_MessageBoxInformation, "alert-information" },
    { QStyle::SP_MessageBoxQuestion, "alert-question" },
    { QStyle::SP_MessageBoxWarning, "alert-warning" },
    // Every tool bar asks for these when it is made; Qt's own are files, for which it loads all image plug-ins.
    { QStyle::SP_ToolBarHorizontalExtensionButton, "chevron-right" },
    { QStyle::SP_ToolBarVerticalExtensionButton, "chevron-down" },
};

/// Null for what the program has no icon of its own for.
QIcon ownIcon(QStyle::StandardPixmap standard)
{
    for (const StandardIcon &row : standardIcons) {
        if (row.standard == standard)
            return Icons::icon(QLatin1StringView(row.icon));
    }
    return {};
}

} // namespace

QIcon CalmStyle::standardIcon(StandardPixmap standard, const QStyleOption *option, const QWidget *widget) const
{
    const QIcon icon = ownIcon(standard);
    return icon.isNull() ? QProxyStyle::standardIcon(standard, option, widget) : icon;
}

QPixmap CalmStyle::standardPixmap(StandardPixmap standard, const QStyleOption *option, const QWidget *widget) const
{
    // Not standardIcon(): the base class makes icons of pixmaps, and would come back here for ever.
    const QIcon icon = ownIcon(standard);
    const int side = pixelMetric(PM_SmallIconSize, option, widget);
    return icon.isNull() ? QProxyStyle::standardPixmap(standard, option, widget) : icon.pixmap(side, side);
}

int CalmStyle::styleHint(
    StyleHint hint, const QStyleOption *option, const QWidget *widget, QStyleHintReturn *returnData) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons || hint == SH_EtchDisabledText)
        return 0;
    // A list longer than the box wants to show scrolls below it instead of covering the screen as a menu.
    const auto *box = qobject_cast<const QComboBox *>(widget);
    if (hint == SH_ComboBox_Popup && box && box->count() > box->maxVisibleItems())
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

} // namespace tessaly
