// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tray/CaptureMenu.h"

#include "core/Preferences/CaptureDelays.h"
#include "core/Preferences/Settings.h"

#include <QActionGroup>
#include <QCoreApplication>

#include <algorithm>

namespace tessaly {

namespace {

QString translated(const char *text) { return QCoreApplication::translate("CaptureMenu", text); }

constexpr const char *quickCapture = QT_TRANSLATE_NOOP("CaptureMenu", "Quick Capture");
constexpr const char *newCollage = QT_TRANSLATE_NOOP("CaptureMenu", "New Collage…");

enum class Key { Hidden, Shown };
/// What becomes of an item that cannot be chosen now.
enum class Otherwise { Disabled, Absent };

} // namespace

struct CaptureMenuItem {
    CommandId command;
    int group; ///< a separator stands between groups
    Key key = Key::Hidden;
    const char *title = ""; ///< English; empty for the command's own
    const char *submenu = "";
    Otherwise otherwise = Otherwise::Disabled;
};

static constexpr CaptureMenuItem items[] = {
    { CommandId::OpenTessaly, 0 },
    { CommandId::StartWindow, 0 },
    { CommandId::CaptureRegion, 1, Key::Shown },
    { CommandId::CaptureWindow, 1, Key::Shown },
    { CommandId::CaptureFrontWindow, 1 },
    { CommandId::CaptureFullScreen, 1, Key::Shown, QT_TRANSLATE_NOOP("CaptureMenu", "Full Screen") },
    { CommandId::FullScreenOn, 1 },
    { CommandId::RecaptureLastRegion, 1, Key::Shown },
    { CommandId::CopyTextFromRegion, 1, Key::Shown },
    { CommandId::RegionToClipboard, 1, Key::Hidden, "", quickCapture },
    { CommandId::RegionToFile, 1, Key::Hidden, "", quickCapture },
    { CommandId::FullScreenToClipboard, 1, Key::Hidden, "", quickCapture },
    { CommandId::FullScreenToFile, 1, Key::Hidden, "", quickCapture },
    { CommandId::CaptureTimer, 1 },
    { CommandId::Open, 1, Key::Hidden, QT_TRANSLATE_NOOP("CaptureMenu", "Open Image…") },
    { CommandId::OpenLastCapture, 1 },
    { CommandId::NewCollageSideBySide, 1, Key::Hidden, QT_TRANSLATE_NOOP("CaptureMenu", "Side by side"), newCollage },
    { CommandId::NewCollageStacked, 1, Key::Hidden, QT_TRANSLATE_NOOP("CaptureMenu", "Stacked"), newCollage },
    { CommandId::UnlockPinnedScreenshots, 2, Key::Hidden, "", "", Otherwise::Absent },
    { CommandId::ClosePinnedScreenshots, 2, Key::Hidden, "", "", Otherwise::Absent },
    { CommandId::Settings, 3, Key::Shown },
    { CommandId::About, 3 },
    { CommandId::WhatsNew, 4 },
    { CommandId::Quit, 5, Key::Shown },
};

CaptureMenu::CaptureMenu(Settings &settings, CommandTarget &program) : m_settings(settings), m_program(program)
{
    setTitle(tr("Tessaly"));
    int group = 0;
    for (const CaptureMenuItem &item : items) {
        if (item.group != group) {
            QAction *separator = addSeparator();
            if (item.otherwise == Otherwise::Absent)
                m_pinSeparator = separator;
        }
        group = item.group;
        if (item.command == CommandId::CaptureTimer)
            addTimer();
        else if (item.command == CommandId::FullScreenOn)
            addDisplays();
        else
            add(item);
    }
    connect(this, &QMenu::aboutToShow, this, [this] {
        refresh();
        refreshDisplays(); // not every panel says that a submenu opens
    });
    connect(&settings, &Settings::changed, this, [this](const QString &key) {
        if (key == QLatin1StringView(SettingKeys::captureDelay.name))
            refreshTimer();
    });
    refresh();
}

QMenu *CaptureMenu::submenu(const char *title)
{
    const QString name = QString::fromUtf8(title);
    if (auto *existing = findChild<QMenu *>(name, Qt::FindDirectChildrenOnly))
        return existing;
    QMenu *created = addMenu(translated(title));
    created->setObjectName(name);
    return created;
}

void CaptureMenu::add(const CaptureMenuItem &item)
{
    const CommandRow &row = command(item.command);
    QMenu *menu = *item.submenu ? submenu(item.submenu) : this;
    QAction *action = menu->addAction(*item.title ? translated(item.title) : commandTitle(row));
    action->setObjectName(QLatin1StringView(row.title));
    action->setMenuRole(QAction::NoRole);
    if (item.key == Key::Shown) {
        // In no window, so it is not taken.
        action->setShortcut(commandKeys(row).value(0));
        action->setShortcutVisibleInContextMenu(true);
    }
    connect(action, &QAction::triggered, this, [this, id = item.command] {
        if (m_program.canPerform(id)) // the panel may show what was so a while ago
            m_program.perform(id);
        refresh();
    });
    m_actions.emplace_back(action, &item);
}

void CaptureMenu::addTimer()
{
    QMenu *menu = addMenu(commandTitle(command(CommandId::CaptureTimer)));
    m_delays = new QActionGroup(menu);
    for (const CaptureDelay &delay : captureDelays) {
        QAction *action = m_delays->addAction(QCoreApplication::translate("CaptureDelays", delay.title));
        action->setCheckable(true);
        action->setData(delay.seconds);
        menu->addAction(action);
    }
    connect(m_delays, &QActionGroup::triggered, this, [this](const QAction *action) {
        // Where it cannot be written it holds for this run.
        static_cast<void>(m_settings.set(SettingKeys::captureDelay, action->data().toInt()));
        refreshTimer();
    });
}

void CaptureMenu::addDisplays()
{
    m_displays = addMenu(commandTitle(command(CommandId::FullScreenOn)));
    connect(m_displays, &QMenu::aboutToShow, this, &CaptureMenu::refreshDisplays);
}

void CaptureMenu::refresh()
{
    for (const auto &[action, item] : m_actions) {
        const bool known = m_program.knows(item->command);
        const bool possible = known && m_program.canPerform(item->command);
        action->setVisible(item->otherwise == Otherwise::Absent ? possible : known);
        action->setEnabled(possible);
    }
    const auto isShownPin
        = [](const auto &each) { return each.second->otherwise == Otherwise::Absent && each.first->isVisible(); };
    m_pinSeparator->setVisible(std::ranges::any_of(m_actions, isShownPin));
    m_displays->menuAction()->setVisible(m_program.knows(CommandId::FullScreenOn));
    refreshTimer();
}

void CaptureMenu::refreshTimer()
{
    const int chosen = std::max(0, int(m_settings.value(SettingKeys::captureDelay)));
    for (QAction *action : m_delays->actions())
        action->setChecked(action->data().toInt() == chosen);
}

/// Rows that stay the same are left alone: a panel may already know them by their numbers.
void CaptureMenu::refreshDisplays()
{
    const QList<MenuChoice> displays = m_program.choices(CommandId::FullScreenOn);
    const auto same = [](const MenuChoice &a, const MenuChoice &b) { return a.title == b.title && a.value == b.value; };
    if (!m_displays->isEmpty() && std::ranges::equal(displays, m_shownDisplays, same))
        return;
    m_shownDisplays = displays;
    m_displays->clear();
    for (const MenuChoice &display : displays) {
        QAction *action = m_displays->addAction(QString(display.title).replace(u'&', QStringLiteral("&&")));
        connect(action, &QAction::triggered, this,
            [this, value = display.value] { m_program.choose(CommandId::FullScreenOn, value); });
    }
}

} // namespace tessaly
