// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkOffer.h"

#include "core/Annotation/AnnotationDocument.h"
#include "core/Editing/MarkClipboard.h"
#include "core/Editing/MarkShape.h"
#include "core/Export/PngEncoder.h"
#include "core/Rendering/AnnotationsCanvas.h"

#include <QPainter>

#include <algorithm>

namespace tessaly {

namespace {

QString jsonType() { return QLatin1StringView(MarkClipboard::mimeType); }

constexpr QLatin1StringView pngType("image/png"), textType("text/plain"), utf8TextType("text/plain;charset=utf-8");

bool isClear(const QImage &picture, int row)
{
    const auto *pixels = reinterpret_cast<const QRgb *>(picture.constScanLine(row));
    return std::all_of(pixels, pixels + picture.width(), [](QRgb pixel) { return pixel == 0; });
}

/// The smallest rectangle outside of which all pixels are transparent.
QRect inkBox(const QImage &picture)
{
    int top = 0, bottom = picture.height() - 1;
    while (top <= bottom && isClear(picture, top))
        ++top;
    while (bottom > top && isClear(picture, bottom))
        --bottom;
    int left = picture.width(), right = -1;
    for (int row = top; row <= bottom; ++row) {
        const auto *pixels = reinterpret_cast<const QRgb *>(picture.constScanLine(row));
        const auto *end = pixels + picture.width();
        const auto *first = std::find_if(pixels, end, [](QRgb pixel) { return pixel != 0; });
        if (first == end)
            continue;
        left = std::min(left, static_cast<int>(first - pixels));
        while (end[-1] == 0)
            --end;
        right = std::max(right, static_cast<int>(end - pixels) - 1);
    }
    return { QPoint(left, top), QPoint(right, bottom) };
}

} // namespace

MarkOffer::MarkOffer(const Annotation &mark, const AnnotationStore &store) :
    m_mark(mark),
    m_image(store.image()),
    m_nextStampNumber(store.nextStampNumber())
{
}

QStringList MarkOffer::types() const
{
    if (m_mark.kind == AnnotationKind::Text)
        return { jsonType(), pngType, utf8TextType, textType };
    return { jsonType(), pngType };
}

QByteArray MarkOffer::data(const QString &type)
{
    if (!types().contains(type))
        return {};
    if (type == jsonType())
        return json();
    if (type != pngType)
        return m_mark.text.toUtf8();
    const QImage drawn = picture();
    if (drawn.isNull())
        return {};
    const auto encoded = PngEncoder::encode(RasterImage::fromPixels(drawn, m_image.pixelScale()), {});
    return encoded ? *encoded : QByteArray();
}

QByteArray MarkOffer::json() const
{
    const AnnotationDocument document {
        .canvasSize = m_image.pointSize, .annotations = { m_mark }, .nextStampNumber = m_nextStampNumber
    };
    const auto encoded = document.encoded();
    return encoded ? *encoded : QByteArray();
}

QImage MarkOffer::picture() const
{
    constexpr double room = 16; // points around the box, for edges that are drawn softly
    constexpr double mostPixels = 1 << 27;
    TextGeometry text;
    const QRectF box = MarkShape::visibleBox(m_mark, text).adjusted(-room, -room, room, room);
    const double scale = m_image.pixelScale();
    const QSizeF size = box.size() * scale;
    if (!(size.width() * size.height() < mostPixels))
        return {};
    QImage picture(size.toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    AnnotationsCanvas canvas;
    canvas.annotations = { m_mark };
    canvas.imageSize = m_image.pointSize;
    canvas.source = m_image;
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.translate(-box.topLeft());
    canvas.draw(painter);
    painter.end();
    const QRect ink = inkBox(picture);
    return ink.isValid() ? picture.copy(ink) : QImage();
}

} // namespace tessaly
