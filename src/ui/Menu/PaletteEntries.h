// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace tessaly {

class CommandActions;

/// One thing that the command palette finds.
struct PaletteEntry {
    QString id; ///< by which it is remembered as recently used; the same in every window
    QString title;
    QString place; ///< where it is found without the palette, as the user reads it: a menu, the settings
    QString keywords = {}; ///< words that find it too, not shown
    QStringList keys = {}; ///< names of the keys of its combination
    QIcon icon = {};
    bool enabled = true;
    std::function<void()> run;
};

/// What the palettes of all windows share. One for the program, which outlives the windows; main thread only.
class PaletteSupply {
public:
    static constexpr int maxRecent = 8;

    /// A row beyond commands and tools, such as a setting.
    struct Choice {
        QString title;
        std::function<void()> choose;
    };

    /// The settings, by title; choosing one shows it in the settings window. Asked each time that a palette opens.
    std::function<QList<Choice>()> settings = {};

    void noteUse(const QString &id);
    /// The ids of what was chosen last, newest first.
    const QStringList &recent() const { return m_recent; }

private:
    QStringList m_recent;
};

/// Everything that a window offers, as its actions stand now: commands in the order of the menus, the rows of those
/// that are submenus, tools, settings. `supply` may be null.
QList<PaletteEntry> paletteEntries(CommandActions &actions, const PaletteSupply *supply);

/// Those that answer the query, the best first; of equals the recently used and the enabled first. With an empty
/// query the recently used come first and the others follow in their order.
QList<PaletteEntry> paletteRanked(const QList<PaletteEntry> &entries, const QString &query, const QStringList &recent);

} // namespace tessaly
