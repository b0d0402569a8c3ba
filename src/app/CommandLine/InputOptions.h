// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/ImageReading.h"

#include <QStringList>

namespace tessaly {

class CommandOptions;

/// The options about what goes in; several commands share them.
struct InputOptions {
    std::optional<QString> annotations; ///< path of a document's JSON or of a list of marks
    std::optional<QString> frame; ///< path of a frame's JSON, or "default" or "none"
    std::optional<QString> watermark; ///< path of a watermark's JSON, or "none"
    std::optional<double> scale; ///< pixels per point
    std::optional<qint64> maxPixels;

    void declareAnnotations(CommandOptions &options);
    void declareFrame(CommandOptions &options);
    void declareWatermark(CommandOptions &options);
    void declareScale(CommandOptions &options);
    void declareMaxPixels(CommandOptions &options);

    ImageReadOptions reading() const;

    /// The files that these options name.
    QStringList files() const;
};

} // namespace tessaly
