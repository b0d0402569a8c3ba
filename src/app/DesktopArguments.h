// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>
#include <QUuid>
#include <QVariantMap>

#include <optional>

namespace tessaly {

/// What the program with the windows is asked for when it is started.
struct DesktopArguments {
    /// One capture, with names and options as on the bus.
    struct Capture {
        QString subject;
        QVariantMap options;
    };

    QStringList files;
    QList<QUuid> historyEntries;
    std::optional<Capture> capture;
    bool resident = false;

    bool opensNothing() const { return files.isEmpty() && historyEntries.isEmpty() && !capture && !resident; }

    /// Of arguments without the program's name: "--resident", "--capture SUBJECT [NAME=VALUE...]" or any number of
    /// "--history-entry ID", then, after an optional "--", files.
    static DesktopArguments from(QStringList arguments);
};

} // namespace tessaly
