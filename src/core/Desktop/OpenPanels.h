// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <optional>

namespace tessaly {

/// The panels in which the user chooses what is opened, as the rest of the program sees them.
class OpenPanels {
public:
    virtual ~OpenPanels();

    /// Waits for the user to choose one or more picture files; their paths in the order in which they were chosen, or
    /// nothing when the user cancelled.
    virtual std::optional<QStringList> chooseImages() = 0;

    /// Waits for the user to choose one folder that exists; its path, or nothing when the user cancelled. `message`
    /// says what it is for, `prompt` stands on the button; opens in `folder`.
    virtual std::optional<QString> chooseFolder(const QString &message, const QString &prompt, const QString &folder)
        = 0;
};

} // namespace tessaly
