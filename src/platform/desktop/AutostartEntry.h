// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/LoginItem.h"

#include <QString>

namespace tessaly {

/// The desktop entry in the user's autostart folder. A file of that name that starts another program is left alone.
class AutostartEntry final : public LoginItem {
public:
    /// "autostart" in the user's configuration folder.
    static QString defaultFolder();
    /// `program` is the path of what is started; empty is this program.
    explicit AutostartEntry(QString folder = defaultFolder(), QString program = {});

    /// Not with an entry that is hidden, as desktops leave it when it is switched off in their own settings.
    bool isOn() const override;
    Outcome setOn(bool on) override;

private:
    QString path() const;

    QString m_folder;
    QString m_program;
};

} // namespace tessaly
