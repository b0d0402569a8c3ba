// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/QuietLibraries.h"

#include <QLoggingCategory>

namespace tessaly {

QuietLibraries::QuietLibraries()
{
    if (qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        return;
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false\n*.warning=false"));
    // The PNG library prints its errors itself, through the stream and not the descriptor.
    if (std::FILE *nowhere = std::fopen("/dev/null", "we")) {
        m_before = stderr;
        stderr = nowhere;
    }
}

QuietLibraries::~QuietLibraries()
{
    if (m_before) {
        std::fclose(stderr);
        stderr = m_before;
    }
}

} // namespace tessaly
