// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Imaging/RasterImage.h"

#include <QByteArray>

#include <future>

namespace tessaly {

/// Records a capture in the history. What needs no disk is done on another thread from the beginning, while the file
/// that the user asked for is written.
class CaptureRecording {
public:
    /// `png` is the picture as a PNG file when there is one already; it is kept as it is.
    CaptureRecording(RasterImage picture, std::optional<QByteArray> png);

    /// Puts the capture into the history, or, where that would hold the user up, leaves it there for whoever reads the
    /// history next. When this has succeeded it is on the disk;
    /// a failure is a whole sentence.
    Outcome finish(int retentionDays);

private:
    struct Parts {
        Result<QByteArray> png;
        std::optional<QByteArray> thumbnailPng;
    };

    RasterImage m_picture;
    bool m_isLeft; ///< in haste, for another to take in; without a thumbnail, which is then made from the picture
    std::future<Parts> m_parts;
};

} // namespace tessaly
