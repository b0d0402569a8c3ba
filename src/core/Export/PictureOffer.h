// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Clipboard.h"
#include "core/Imaging/RasterImage.h"

#include <QHash>

namespace tessaly {

/// A picture to paste, as PNG or as TIFF. Each is encoded when it is first asked for, and kept.
class PictureOffer final : public ClipboardOffer {
public:
    /// At full size the picture claims one point a pixel, so that it is not pasted at half its size.
    PictureOffer(RasterImage image, bool atFullSize);

    QStringList types() const override;
    QByteArray data(const QString &type) override;

private:
    RasterImage m_image;
    QHash<QString, QByteArray> m_encoded; ///< by type
};

} // namespace tessaly
