// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/PictureCaches.h"

#include "core/Imaging/ImageReading.h"

namespace tessaly {

static qint64 pixelsOf(const QImage &image) { return qint64(image.width()) * image.height(); }

void OverlayCache::beginRound()
{
    const std::scoped_lock lock(m_mutex);
    ++m_round;
}

QImage OverlayCache::picture(const QUuid &mark, const QByteArray &bytes)
{
    const std::scoped_lock lock(m_mutex);
    Entry &entry = m_ofMark[mark];
    const bool sameBytes = entry.bytes.constData() == bytes.constData() && entry.bytes.size() == bytes.size();
    entry.round = m_round;
    if (!sameBytes) {
        entry.bytes = bytes;
        entry.picture = decoded(bytes);
    }
    return entry.picture;
}

QImage OverlayCache::decoded(const QByteArray &bytes)
{
    if (const auto known = m_decoded.constFind(bytes); known != m_decoded.constEnd())
        return *known;
    ImageReadOptions options;
    if (!checkImage(bytes, QString(), options))
        return {};
    options.maxPixels = maxPicturePixels - m_pixels;
    if (!checkImage(bytes, QString(), options)) {
        dropUnused();
        options.maxPixels = maxPicturePixels - m_pixels;
    }
    const auto image = readImage(bytes, QString(), options);
    if (!image)
        return {};
    m_decoded.insert(bytes, image->pixels);
    m_pixels += pixelsOf(image->pixels);
    return image->pixels;
}

void OverlayCache::dropUnused()
{
    m_ofMark.removeIf([this](const auto &entry) { return entry.value().round != m_round; });
    m_decoded.clear();
    m_pixels = 0;
    for (const Entry &entry : std::as_const(m_ofMark)) {
        if (entry.picture.isNull() || m_decoded.contains(entry.bytes))
            continue;
        m_decoded.insert(entry.bytes, entry.picture);
        m_pixels += pixelsOf(entry.picture);
    }
}

QImage ObscuredCache::picture(const QByteArray &key, const std::function<QImage()> &compute)
{
    {
        const std::scoped_lock lock(m_mutex);
        if (const auto found = m_pictures.constFind(key); found != m_pictures.constEnd())
            return *found;
    }
    const QImage picture = compute();
    const std::scoped_lock lock(m_mutex);
    if (m_pixels + pixelsOf(picture) > maxPicturePixels / 4) {
        m_pictures.clear();
        m_pixels = 0;
    }
    if (!m_pictures.contains(key)) {
        m_pictures.insert(key, picture);
        m_pixels += pixelsOf(picture);
    }
    return picture;
}

} // namespace tessaly
