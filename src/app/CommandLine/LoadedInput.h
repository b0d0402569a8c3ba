// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine/Overrides.h"
#include "core/Annotation/AnnotationStore.h"

namespace tessaly {

class CommandContext;

/// One input as the commands work on it: an open capture with its marks, frame and watermark.
struct LoadedInput {
    /// What a document says of itself.
    struct Origin {
        int version = 1;
        std::optional<QString> generator;
        int skippedAnnotations = 0;
    };

    std::unique_ptr<AnnotationStore> store;
    std::optional<Origin> document; ///< for an input that is a document

    /// Reads an image, a document, or an image from standard input ("-"), and puts the overrides over it. What cannot
    /// be used but does not stop the work is told to the context's console.
    static Result<LoadedInput> read(
        const QString &path, const InputOptions &options, const Overrides &overrides, CommandContext &context);

    /// The finished picture with marks, frame and watermark; fails when it has more than `maxPixels`.
    Result<RasterImage> flattened(CommandContext &context, qint64 maxPixels) const;

    /// Fails when the finished picture would have more than `maxPixels`.
    Outcome checkFinishedSize(qint64 maxPixels) const;
};

} // namespace tessaly
