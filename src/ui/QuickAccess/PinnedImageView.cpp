// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/PinnedImageView.h"

#include "core/Base/Parallel.h"
#include "core/Rendering/PictureScaling.h"
#include "ui/QuickAccess/PinGeometry.h"

#include <QPainter>
#include <QPaintEvent>

namespace tessaly {

PinnedImageView::PinnedImageView(QImage image, QWidget *parent) : QWidget(parent), m_image(std::move(image)) { }

void PinnedImageView::setShownSize(QSizeF points)
{
    m_shownSize = points;
    update();
}

void PinnedImageView::setPaintedOpacity(double opacity)
{
    m_opacity = opacity;
    update();
}

void PinnedImageView::paintEvent(QPaintEvent *event)
{
    constexpr QColor edge(0x80, 0x80, 0x80);
    const double scale = devicePixelRatioF();
    const auto toPixels = [scale](const QRect &rect) {
        return QRectF(QPointF(rect.topLeft()) * scale, QSizeF(rect.size()) * scale).toAlignedRect();
    };
    QPainter painter(this);
    painter.scale(1 / scale, 1 / scale);
    painter.setClipRect(toPixels(event->rect()));
    if (window()->testAttribute(Qt::WA_TranslucentBackground)) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(toPixels(rect()), Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    painter.setOpacity(m_opacity);
    const int edgeWidth = PinGeometry::edgePixels(scale);
    const QRect picture(QPoint(edgeWidth, edgeWidth), PinGeometry::shownPixels(m_shownSize, scale));
    const QRegion frame = QRegion(toPixels(rect())) - picture;
    for (const QRect &part : frame)
        painter.fillRect(part, edge);
    if (m_backed)
        painter.fillRect(picture, palette().color(QPalette::Window));
    paintPicture(painter, picture, toPixels(event->rect()) & picture);
}

void PinnedImageView::paintPicture(QPainter &painter, const QRect &place, const QRect &dirtyPixels) const
{
    const QRect part = dirtyPixels.translated(-place.topLeft());
    if (part.isEmpty())
        return;
    if (place.size() == m_image.size())
        return painter.drawImage(dirtyPixels.topLeft(), m_image, part);
    QImage scaled(part.size(), m_image.format());
    if (scaled.isNull())
        return; // without the memory nothing can be shown
    PictureScaling(m_image, place.size()).paint(part, scaled, {}, Parallel::defaultThreadCount());
    painter.drawImage(dirtyPixels.topLeft(), scaled);
}

} // namespace tessaly
