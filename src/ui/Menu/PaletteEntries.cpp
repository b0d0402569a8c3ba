// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/PaletteEntries.h"

#include "ui/Menu/CommandActions.h"
#include "ui/Menu/KeyCaps.h"
#include "ui/Menu/MenuBar.h"
#include "ui/Menu/PaletteMatch.h"
#include "ui/Style/Icons.h"

#include <QAction>
#include <QCoreApplication>

#include <algorithm>
#include <tuple>
#include <vector>

namespace tessaly {

namespace {

// In the measure of matchPalette(): letters beside each other make up for either.
constexpr int recentWorth = 12 * paletteScoreStep;
constexpr int disabledCost = 5 * paletteScoreStep;

QString translated(const char *text) { return QCoreApplication::translate("CommandPalette", text); }

QString withoutDots(QString title) { return title.remove(u'…'); }

PaletteEntry entryOf(const CommandRow &row, QAction &action)
{
    return { .id = QLatin1StringView(row.title),
        .title = withoutDots(action.text().section(u'\t', 0, 0)),
        .place = menuTitle(row.menu),
        .keywords = QString::fromUtf8(row.title) + u' ' + QString::fromUtf8(row.submenu),
        .keys = keyNames(commandKeys(row).value(0)),
        .icon = *row.icon ? Icons::icon(QLatin1StringView(row.icon)) : QIcon(),
        .enabled = action.isEnabled(),
        .run = [&action] { action.trigger(); } };
}

/// One for each row of a submenu; none where it has no rows now.
QList<PaletteEntry> choiceEntries(const PaletteEntry &command, const ChoiceMenu &menu)
{
    QList<PaletteEntry> entries;
    const QList<MenuChoice> choices = menu.choices();
    for (const MenuChoice &choice : choices) {
        PaletteEntry entry = command;
        entry.id += u' ' + choice.value;
        //: a command and one of the rows of its menu: "Export As: PNG"
        entry.title = translated(QT_TRANSLATE_NOOP("CommandPalette", "%1: %2")).arg(command.title, choice.title);
        entry.run = [&menu, value = choice.value] { menu.choose(value); };
        entries += entry;
    }
    return entries;
}

PaletteEntry entryOf(const ToolRow &row, QAction &action)
{
    return { .id = QStringLiteral("tool %1").arg(rawValue(row.tool)),
        .title = toolLabel(row),
        .place = translated(QT_TRANSLATE_NOOP("CommandPalette", "Tool")),
        .keywords = QString::fromUtf8(row.label),
        .keys = { QString(QChar::fromLatin1(row.letter)) },
        .icon = Icons::icon(QLatin1StringView(row.icon)),
        .enabled = action.isEnabled(),
        .run = [&action] { action.trigger(); } };
}

} // namespace

void PaletteSupply::noteUse(const QString &id)
{
    m_recent.removeAll(id);
    m_recent.prepend(id);
    m_recent.resize(std::min<qsizetype>(m_recent.size(), maxRecent));
}

QList<PaletteEntry> paletteEntries(CommandActions &actions, const PaletteSupply *supply)
{
    actions.refresh();
    QList<PaletteEntry> entries;
    for (const CommandRow &row : commandTable()) {
        QAction *action = actions.action(row.id);
        if (row.id == CommandId::CommandPalette || !action->isVisible())
            continue;
        if (row.menu == CommandMenu::Tray && !action->isEnabled()) // nothing that this window could ever do
            continue;
        const PaletteEntry entry = entryOf(row, *action);
        const ChoiceMenu *menu = actions.choiceMenu(row.id);
        if (menu && entry.enabled)
            entries += choiceEntries(entry, *menu);
        else
            entries += entry;
    }
    if (actions.hooks().currentTool) {
        for (const ToolRow &row : toolTable())
            entries += entryOf(row, *actions.toolAction(row.tool));
    }
    if (!supply || !supply->settings)
        return entries;
    const QList<PaletteSupply::Choice> settings = supply->settings();
    for (const PaletteSupply::Choice &setting : settings) {
        entries += { .id = QStringLiteral("setting %1").arg(setting.title),
            .title = withoutDots(setting.title),
            .place = translated(QT_TRANSLATE_NOOP("CommandPalette", "Settings")),
            .run = setting.choose };
    }
    return entries;
}

QList<PaletteEntry> paletteRanked(const QList<PaletteEntry> &entries, const QString &query, const QStringList &recent)
{
    struct Ranked {
        int score;
        qsizetype use; ///< how long ago it was used, the last first
        qsizetype place;
    };
    const bool everything = query.trimmed().isEmpty();
    std::vector<Ranked> found;
    for (qsizetype place = 0; place < entries.size(); ++place) {
        const PaletteEntry &entry = entries[place];
        const auto match = matchPalette(query, { entry.title, entry.place + u' ' + entry.keywords });
        const qsizetype use = recent.indexOf(entry.id);
        if (!match)
            continue;
        int score = match->score;
        if (!everything) // in the list of everything they keep their places
            score += (use < 0 ? 0 : recentWorth) - (entry.enabled ? 0 : disabledCost);
        found.push_back({ score, use < 0 ? recent.size() : use, place });
    }
    std::ranges::sort(found, {}, [](const Ranked &each) { return std::tuple(-each.score, each.use, each.place); });
    QList<PaletteEntry> ranked;
    for (const Ranked &each : found)
        ranked += entries[each.place];
    return ranked;
}

} // namespace tessaly
