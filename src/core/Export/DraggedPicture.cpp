// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/DraggedPicture.h"

#include "core/Export/DragFile.h"
#include "core/Export/ImageEncoder.h"

#include <QUrl>

namespace tessaly {

namespace {
constexpr auto pngType = "image/png";
constexpr auto uriListType = "text/uri-list";
} // namespace

DraggedPicture::DraggedPicture(
    std::function<std::optional<RasterImage>()> picture, QString fileName, QString temporaryFolder) :
    m_picture(std::move(picture)),
    m_fileName(std::move(fileName)),
    m_temporaryFolder(std::move(temporaryFolder))
{
}

QStringList DraggedPicture::formats() const { return { QLatin1StringView(uriListType), QLatin1StringView(pngType) }; }
bool DraggedPicture::hasFormat(const QString &type) const { return formats().contains(type); }

const QByteArray &DraggedPicture::png() const
{
    if (!m_png) {
        m_png.emplace();
        const auto picture = m_picture();
        const auto bytes = picture ? encodeImage(*picture, ExportFormat::Png, {}) : Failure {};
        if (bytes)
            m_png = *bytes;
    }
    return *m_png;
}

QString DraggedPicture::file() const
{
    if (!m_file) {
        const auto path = png().isEmpty()
            ? Result<QString>(Failure {})
            : writeDragFile(png(), m_fileName + QStringLiteral(".png"), m_temporaryFolder);
        m_file = path ? *path : QString();
    }
    return *m_file;
}

QVariant DraggedPicture::retrieveData(const QString &type, QMetaType wanted) const
{
    if (type == QLatin1StringView(pngType))
        return png();
    if (type != QLatin1StringView(uriListType) || file().isEmpty())
        return {};
    const QUrl url = QUrl::fromLocalFile(file());
    if (wanted.id() == QMetaType::QVariantList)
        return QVariantList { url };
    return url.toEncoded() + "\r\n";
}

} // namespace tessaly
