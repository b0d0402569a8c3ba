// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Hotkey/HotkeyBackend.h"

#include <QHash>
#include <QList>
#include <QString>

namespace tessaly::test {

/// Grants what no other program holds, and presses what it is told to.
class FakeHotkeyBackend final : public HotkeyBackend {
public:
    struct Added {
        quint32 identifier;
        CaptureAction action;
        quint32 keyCode;
        quint32 modifiers;
    };
    Ability offered = Ability::Grabs;
    QList<std::pair<quint32, quint32>> heldElsewhere; ///< key code and modifiers
    QHash<CaptureAction, QString> granted; ///< where it asks
    bool hasAnswered = false;
    QList<Added> active;
    QList<quint32> tried; ///< all numbers so far

    Ability ability() const override { return offered; }
    bool add(quint32 identifier, CaptureAction action, quint32 keyCode, quint32 modifiers) override
    {
        tried += identifier;
        if (heldElsewhere.contains(std::pair(keyCode, modifiers)))
            return false;
        active += { identifier, action, keyCode, modifiers };
        return true;
    }
    void remove(quint32 identifier) override
    {
        active.removeIf([=](const Added &each) { return each.identifier == identifier; });
    }
    std::optional<QString> given(CaptureAction action) const override
    {
        return hasAnswered ? std::optional(granted.value(action)) : std::nullopt;
    }

    QList<CaptureAction> actions() const
    {
        QList<CaptureAction> list;
        for (const Added &each : active)
            list += each.action;
        return list;
    }
};

} // namespace tessaly::test
