// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/CommandTarget.h"

#include <QMap>

#include <optional>

namespace tessaly::test {

/// Can do what the test lets it, and remembers what it was told.
class RecordingTarget : public CommandTarget {
public:
    std::optional<QList<CommandId>> known; ///< everything without
    std::optional<QList<CommandId>> possible; ///< the same
    QList<CommandId> performed;
    QMap<CommandId, QList<MenuChoice>> rows;
    QStringList chosen;
    bool clears = false;

    bool knows(CommandId command) const override { return !known || known->contains(command); }
    bool canPerform(CommandId command) const override { return !possible || possible->contains(command); }
    void perform(CommandId command) override { performed += command; }
    QList<MenuChoice> choices(CommandId command) const override { return rows.value(command); }
    void choose(CommandId, const QString &value) override { chosen += value; }
    bool canClear(CommandId command) const override { return clears && command == CommandId::OpenRecent; }
    void clear(CommandId command) override { rows.remove(command); }
};

} // namespace tessaly::test
