// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QByteArray>

namespace tessaly {

/// Where the commands talk: results to standard output, messages and progress to standard error.
class Console {
public:
    Console();
    ~Console();
    Console(const Console &) = delete;
    Console &operator=(const Console &) = delete;

    /// One line "tessaly: subject: sentence"; a sentence that already names its subject stands alone.
    void message(const QString &subject, const QString &sentence);
    void message(const QString &sentence) { message({}, sentence); }

    /// Draws the bar at `done` of `total` steps, on a terminal only. A message or the end of the run wipes it.
    void progress(int done, int total, const QString &what);
    void endProgress();

    /// Writes bytes to standard output, whole or with a failure.
    Outcome print(const QByteArray &bytes);

    /// Asks on standard error for "y" or "yes"; anything else is no.
    bool confirms(const QString &question);

    /// Whether there is someone at a terminal to ask.
    static bool canAsk();

    /// The text without line breaks and terminal commands, as file names and titles may hold them.
    static QString printable(QString text);

    /// Whether standard output is a terminal, where no picture belongs.
    static bool printsToTerminal();

private:
    bool m_showsProgress = false;
    bool m_barIsDrawn = false;
};

} // namespace tessaly
