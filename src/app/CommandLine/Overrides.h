// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine/InputOptions.h"
#include "core/Annotation/AnnotationDocument.h"

namespace tessaly {

class Console;

/// What the options put in the place of an input's own marks, frame and watermark; read once for all inputs.
struct Overrides {
    /// The highest value of --max-pixels: 16 GiB of pixels.
    static constexpr qint64 mostPixels = qint64(16) * 1024 * 1024 * 1024 / 4;

    std::optional<AnnotationDocument> annotations;

    /// Outer absence keeps what there is; inner absence removes it.
    std::optional<std::optional<FrameStyle>> frame;
    std::optional<std::optional<Watermark>> watermark;

    /// Reads the files. A file that cannot be used is told to the console, and there are no overrides; marks of one
    /// that cannot be used are told and left out.
    static std::optional<Overrides> read(const InputOptions &options, Console &console);

    /// Whether an option's value is one of its words and not a file.
    static bool isWord(QStringView value) { return value == u"default" || value == u"none"; }

    /// Puts what is here over what `document` holds.
    void applyTo(AnnotationDocument &document) const;
};

} // namespace tessaly
