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
    explicit TessalyApp(const DesktopArguments &arguments);
    ~TessalyApp();

    /// Does what the arguments ask for, and runs until nothing of it is left: windows, thumbnails, pinned screenshots,
    /// its icon in the tray, or what others may paste; without anything to open, until it is asked to end. The first
    /// file is as `first` has read it. Where another Tessaly runs that takes the arguments it ends at once. The
    /// process's exit status: 1 when nothing could be opened or captured.
    int run(EarlyReading &first);

private:
    class Program;
    std::unique_ptr<Program> m_program;
};

} // namespace tessaly
