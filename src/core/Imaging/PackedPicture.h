// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"

#include <QImage>

#include <optional>
#include <vector>

namespace tessaly {

/// A picture in less memory, every byte of it kept. Made to be quick to get back, in bands of rows that any number of
/// threads share; for keeping in memory only.
class PackedPicture {
public:
    /// Packs a picture of one of RasterImage's formats on the calling thread; any thread. Empty without the memory, for
    /// another format, or when it is no longer wanted.
    static std::optional<PackedPicture> pack(const QImage &image, const Cancellation &cancellation = {});

    /// Null without the memory.
    QImage unpacked(int threads = 0) const;

    qint64 byteCount() const;

private:
    PackedPicture() = default;

    QSize m_size;
    QImage::Format m_format = QImage::Format_Invalid;
    int m_channels = 4; ///< 3 where every alpha is 255
    std::vector<QByteArray> m_bands;
};

} // namespace tessaly
