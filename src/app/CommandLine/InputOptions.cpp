// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/InputOptions.h"

#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/Overrides.h"

namespace tessaly {

void InputOptions::declareAnnotations(CommandOptions &options)
{
    options.optional(annotations, "--annotations", "FILE",
        "Marks to draw instead of the input's own: a document's JSON, whose frame and watermark count too, or a list "
        "of "
        "marks");
}

void InputOptions::declareFrame(CommandOptions &options)
{
    options.optional(
        frame, "--frame", "FILE|default|none", "Frame to put the picture on: a frame's JSON, the default one, or none");
}

void InputOptions::declareWatermark(CommandOptions &options)
{
    options.optional(watermark, "--watermark", "FILE|none", "Watermark to draw: a watermark's JSON, or none");
}

void InputOptions::declareScale(CommandOptions &options)
{
    options.number(scale, "--scale", { 0.1, 100 },
        "Pixels per point of an image; by default a resolution of 72, 90, 108, 126, 144, 180, 216, 252 or 288 dpi says "
        "it, and any other means 1");
}

void InputOptions::declareMaxPixels(CommandOptions &options)
{
    options.wholeNumber(maxPixels, "--max-pixels", { 1, Overrides::mostPixels },
        "The most pixels that a picture may have, read or written; by default 134217728, which take 512 MiB");
}

ImageReadOptions InputOptions::reading() const
{
    ImageReadOptions options;
    options.pixelsPerPoint = scale;
    options.maxPixels = maxPixels.value_or(options.maxPixels);
    return options;
}

QStringList InputOptions::files() const
{
    QStringList files;
    if (annotations)
        files += *annotations;
    for (const auto &file : { frame, watermark }) {
        if (file && !Overrides::isWord(*file))
            files += *file;
    }
    return files;
}

} // namespace tessaly
