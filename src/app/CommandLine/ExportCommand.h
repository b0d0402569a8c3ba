// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine/Command.h"
#include "app/CommandLine/InputOptions.h"

namespace tessaly {

/// What `export` is asked for.
struct ExportOptions {
    QStringList inputs;
    QString output;
    std::optional<QString> format;
    std::optional<double> quality;
    InputOptions input;

    /// All but the inputs, and what only pictures need.
    void declare(CommandOptions &options);
};

/// Writes the inputs with their marks, frame and watermark, and tells what could not be.
ExitStatus runExport(const ExportOptions &options, CommandContext &context);

} // namespace tessaly
