// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/PictureOffer.h"

#include "core/Export/ExportFormat.h"
#include "core/Export/ImageEncoder.h"

namespace tessaly {

static constexpr ExportFormat offered[] = { ExportFormat::Png, ExportFormat::Tiff };

PictureOffer::PictureOffer(RasterImage image, bool atFullSize) : m_image(std::move(image))
{
    if (atFullSize)
        m_image.pointSize = m_image.pixelSize();
}

QStringList PictureOffer::types() const
{
    QStringList types;
    for (const ExportFormat format : offered)
        types += mimeType(format);
    return types;
}

QByteArray PictureOffer::data(const QString &type)
{
    const auto known = m_encoded.constFind(type);
    if (known != m_encoded.constEnd())
        return *known;
    const auto *format = std::ranges::find(offered, type, [](ExportFormat each) { return QString(mimeType(each)); });
    if (format == std::end(offered))
        return {};
    const auto bytes = encodeImage(m_image, *format, {});
    return bytes ? *m_encoded.insert(type, *bytes) : QByteArray();
}

} // namespace tessaly
