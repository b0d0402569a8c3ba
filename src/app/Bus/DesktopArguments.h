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
    /// One of the operations that other programs can ask for, by its name on the bus.
    struct Action {
        QString name;
        QString destination; ///< empty where none is said
    };

    QStringList files;
    QList<QUuid> historyEntries;
    std::optional<Capture> capture;
    std::optional<Action> action;
    bool resident = false;
    bool besideOther = false; ///< a Tessaly that runs does not answer; none is asked any more

    /// A start to use the program, and not for one thing.
    bool isPlain() const { return files.isEmpty() && historyEntries.isEmpty() && !capture && !action && !resident; }

    /// Of arguments without the program's name: "--resident", "--capture SUBJECT [NAME=VALUE...]",
    /// "--action NAME [DESTINATION]" or any number of "--history-entry ID", then, after an optional "--", files.
    static DesktopArguments from(QStringList arguments);
};

} // namespace tessaly
