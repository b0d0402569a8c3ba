// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QUuid>

#include <memory>

namespace tessaly {

class EarlyReading;

/// The desktop program: makes exactly one of every service and hands them out.
class TessalyApp {
public:
    /// There must be a QApplication.
    TessalyApp();
    ~TessalyApp();

    /// Opens what the arguments name, the first of them as `first` has read it, and runs until the last window is
    /// closed. Without arguments it shows the start window. The process's exit status: 1 when none could be opened.
    int run(const QStringList &paths, const QList<QUuid> &historyEntries, EarlyReading &first);

private:
    class Services;
    std::unique_ptr<Services> m_services;
};

} // namespace tessaly
