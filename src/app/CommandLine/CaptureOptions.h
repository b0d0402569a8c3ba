// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureRequest.h"

#include <QVariantMap>

namespace tessaly {

class CommandOptions;

/// What `tessaly capture` was told, for one of its subjects.
struct CaptureOptions {
    CaptureSubject subject = CaptureSubject::Region;
    std::optional<QString> to;
    std::optional<QString> output;
    std::optional<QString> rectText;
    std::optional<qint64> delay;
    std::optional<qint64> display; ///< counted from 1, the primary one
    std::optional<qint64> window;

    /// Declares what makes sense for the subject.
    void declare(CommandOptions &options);

    /// What is wrong with options that are each well formed; empty when they fit together.
    std::optional<QString> usageProblem() const;

    // Of options without a problem.
    CaptureSink sink() const;
    /// "X,Y,W,H" in points.
    std::optional<QRectF> rect() const;
    /// Whether it is known what to capture without asking the user.
    bool isSettled() const;
    /// Whether the picture ends here: in a file, on standard output or as text. What is shown or offered needs the
    /// program with the windows.
    bool staysHere() const;

    /// The request for the program with the windows, as the bus and its command line take it.
    QVariantMap forProgram() const;
};

} // namespace tessaly
