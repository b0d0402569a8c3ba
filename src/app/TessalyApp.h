// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace tessaly {

struct DesktopArguments;
class EarlyReading;

/// The desktop program: makes exactly one of every service and hands them out.
class TessalyApp {
public:
    /// There must be a QApplication.
    TessalyApp();
    ~TessalyApp();

    /// Does what the arguments ask for, and runs until nothing of it is left: windows, thumbnails, pinned screenshots,
    /// or what others may paste. The first file is as `first` has read it. Without anything to open it shows the start
    /// window. The process's exit status: 1 when nothing could be opened or captured.
    int run(const DesktopArguments &arguments, EarlyReading &first);

private:
    class Services;
    std::unique_ptr<Services> m_services;
};

} // namespace tessaly
