// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/PinnedMenu.h"

#include "ui/QuickAccess/PinnedScreenshotWindow.h"
#include "ui/Style/Icons.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

namespace tessaly {

namespace {

QString translated(const char *text) { return QCoreApplication::translate("PinnedScreenshot", text); }

struct Row {
    const char *words;
    const char *icon;
    const char *key; ///< shown; the window itself listens to it
    void (PinnedScreenshotWindow::*act)();
};

constexpr Row copyRow { QT_TRANSLATE_NOOP("PinnedScreenshot", "Copy"), "copy-image", "Ctrl+C",
    &PinnedScreenshotWindow::copyImage };
constexpr Row saveRow { QT_TRANSLATE_NOOP("PinnedScreenshot", "Save…"), "save", "Ctrl+S",
    &PinnedScreenshotWindow::saveImage };
constexpr Row editRow { QT_TRANSLATE_NOOP("PinnedScreenshot", "Open in Editor"), "pen", "Return",
    &PinnedScreenshotWindow::openInEditor };
constexpr Row sizeRow { QT_TRANSLATE_NOOP("PinnedScreenshot", "Actual Size"), "actual-size", "Ctrl+0",
    &PinnedScreenshotWindow::actualSize };
constexpr Row lockRow { QT_TRANSLATE_NOOP("PinnedScreenshot", "Let Clicks Pass Through"), "lock", "",
    &PinnedScreenshotWindow::lock };
constexpr Row closeRow { QT_TRANSLATE_NOOP("PinnedScreenshot", "Close"), "xmark", "Esc",
    &PinnedScreenshotWindow::closePin };

void add(QMenu &menu, const Row &row, PinnedScreenshotWindow &window)
{
    QAction *action = menu.addAction(Icons::icon(QLatin1StringView(row.icon)), translated(row.words));
    action->setShortcut(QKeySequence(QLatin1StringView(row.key)));
    action->setShortcutVisibleInContextMenu(true);
    QObject::connect(action, &QAction::triggered, &window, row.act);
}

void addOpacities(QMenu &menu, PinnedScreenshotWindow &window)
{
    auto *opacities = menu.addMenu(
        Icons::icon(QLatin1StringView("opacity")), QCoreApplication::translate("PinnedScreenshot", "Opacity"));
    auto *group = new QActionGroup(opacities);
    constexpr int most = 100, least = 20, step = 20;
    for (int percent = most; percent >= least; percent -= step) {
        QAction *action = group->addAction(QCoreApplication::translate("PinnedScreenshot", "%1 %").arg(percent));
        action->setCheckable(true);
        action->setChecked(qRound(window.opacity() * 100) == percent);
        QObject::connect(
            action, &QAction::triggered, &window, [&window, percent] { window.setOpacity(percent / 100.0); });
    }
    opacities->addActions(group->actions());
}

} // namespace

void fillPinnedMenu(QMenu &menu, PinnedScreenshotWindow &window)
{
    for (const Row &row : { copyRow, saveRow, editRow })
        add(menu, row, window);
    menu.addSeparator();
    addOpacities(menu, window);
    add(menu, sizeRow, window);
    add(menu, lockRow, window);
    if (!window.staysAbove())
        menu.addAction(QCoreApplication::translate("PinnedScreenshot", "On this desktop other windows can cover it"))
            ->setEnabled(false);
    menu.addSeparator();
    add(menu, closeRow, window);
}

} // namespace tessaly
