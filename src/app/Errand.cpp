// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Errand.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace tessaly::Errand {

int tell(const Failure &failure)
{
    std::fprintf(stderr, "tessaly: %s\n", qUtf8Printable(failure.message));
    return 1;
}

int tell(const CaptureOutcome &outcome, bool namesFile)
{
    if (const auto *failure = std::get_if<Failure>(&outcome))
        return tell(*failure);
    const auto *captured = std::get_if<Captured>(&outcome);
    if (!captured)
        return tell(Failure { QCoreApplication::translate("Errand", "The capture was cancelled.") });
    if (namesFile || captured->path.isEmpty())
        return 0;
    const bool printed = std::puts(QFile::encodeName(captured->path).constData()) >= 0 && std::fflush(stdout) == 0;
    return printed ? 0 : tell(Failure { QCoreApplication::translate("Errand", "The path could not be printed.") });
}

} // namespace tessaly::Errand
