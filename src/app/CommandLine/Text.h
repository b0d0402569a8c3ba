// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

namespace tessaly {

/// The sentences of the command line, for translators: `Text::tr("…")`.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

} // namespace tessaly
