// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/HistoryTile.h"

#include "core/Base/Clock.h"
#include "core/History/HistoryThumbnails.h"
#include "ui/Start/EntryTexts.h"
#include "ui/Start/HistoryListModel.h"
#include "ui/Style/Appearance.h"
#include "ui/Style/ControlShapes.h"
#include "ui/Style/Icons.h"

#include <QPainter>

#include <algorithm>

namespace tessaly {

namespace {

// Points.
constexpr int gap = 2; ///< between the tile's ground and its cell
constexpr int padding = 8;
constexpr int mat = 6; ///< around the picture
constexpr int lineGap = 2;
constexpr int pictureStep = 16;

QFont quietFont(QFont font)
{
    font.setPointSizeF(std::max(font.pointSizeF() * 0.9, 7.5));
    return font;
}

/// One line in its own direction, on the side on which the interface starts, with an ellipsis where it is too long.
void drawLine(QPainter &painter, const QRect &rect, const QString &text, Qt::LayoutDirection direction)
{
    const QString shown = painter.fontMetrics().elidedText(text, Qt::ElideRight, rect.width());
    const Qt::Alignment side = direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.drawText(rect, int(side | Qt::AlignAbsolute | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

/// The first of the texts that fits, or the last.
QString fitting(const QStringList &texts, const QFontMetrics &metrics, int width)
{
    const auto fits = [&](const QString &text) { return metrics.horizontalAdvance(text) <= width; };
    const auto found = std::ranges::find_if(texts, fits);
    return found == texts.end() ? texts.last() : *found;
}

/// Where there is no picture.
void drawMissing(QPainter &painter, const QRect &area)
{
    constexpr int side = 28;
    QRect place(0, 0, side, side);
    place.moveCenter(area.center());
    painter.setOpacity(0.35);
    Icons::icon(QLatin1StringView("image")).paint(&painter, place);
    painter.setOpacity(1);
}

void drawGround(QPainter &painter, const QRect &tile, const QStyleOptionViewItem &option)
{
    constexpr qreal corner = 8;
    const bool active = option.state & QStyle::State_HasFocus;
    if (option.state & QStyle::State_Selected) {
        QColor fill = active ? Colors::accent() : option.palette.color(QPalette::WindowText);
        fill.setAlphaF(active ? 0.16F : 0.08F);
        ControlShapes::box(painter, tile, fill, Qt::transparent, corner);
        ControlShapes::box(painter, tile, Qt::transparent,
            active ? Colors::accent() : option.palette.color(QPalette::Dark), corner, active ? 2 : 1);
    } else if (active) {
        ControlShapes::focusRing(painter, tile, corner);
    }
    if (option.state & QStyle::State_MouseOver)
        ControlShapes::box(painter, tile, Colors::hovered(), Qt::transparent, corner);
}

} // namespace

HistoryTile::HistoryTile(
    const HistoryListModel &model, HistoryThumbnails &thumbnails, const Clock &clock, QObject *parent) :
    QStyledItemDelegate(parent),
    m_model(model),
    m_thumbnails(thumbnails),
    m_clock(clock)
{
}

int HistoryTile::minWidth(const QFont &font) { return std::max(180, QFontMetrics(font).averageCharWidth() * 24); }

QSize HistoryTile::pictureSize() const
{
    const int room = m_width - 2 * (gap + padding + mat);
    const int width = std::max(room / pictureStep, 1) * pictureStep;
    return { width, width * 5 / 8 };
}

QSize HistoryTile::pixelSize(qreal scale) const { return (QSizeF(pictureSize()) * scale).toSize(); }

QSize HistoryTile::tileSize(const QFont &font) const
{
    const int texts = QFontMetrics(font).height() + lineGap + QFontMetrics(quietFont(font)).height();
    return { m_width, 2 * (gap + padding + mat) + pictureSize().height() + padding + texts };
}

QSize HistoryTile::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return tileSize(option.font);
}

void HistoryTile::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    const QRect tile = option.rect.adjusted(gap, gap, -gap, -gap);
    drawGround(*painter, tile, option);
    const QRect inner = tile.adjusted(padding, padding, -padding, -padding);
    const QRect frame(inner.topLeft(), QSize(inner.width(), pictureSize().height() + 2 * mat));
    ControlShapes::box(*painter, frame, Colors::canvasSurround(), Qt::transparent);
    paintPicture(*painter, frame.adjusted(mat, mat, -mat, -mat), index);
    paintTexts(*painter, inner.adjusted(2, frame.height() + padding, -2, 0), option, index);
    painter->restore();
}

void HistoryTile::prefetch(const HistoryEntry &entry, qreal scale) const
{
    m_thumbnails.thumbnail(entry.id, entry.modified, pixelSize(scale));
}

void HistoryTile::paintPicture(QPainter &painter, const QRect &area, const QModelIndex &index) const
{
    const HistoryEntry &entry = m_model.entry(index);
    const qreal scale = painter.device()->devicePixelRatioF();
    const QImage image = m_thumbnails.thumbnail(entry.id, entry.modified, pixelSize(scale));
    if (image.isNull()) {
        // What will come in a moment shows nothing before, so that nothing flickers.
        if (m_thumbnails.isUnreadable(entry.id, entry.modified, pixelSize(scale)))
            drawMissing(painter, area);
        return;
    }
    QSizeF size = QSizeF(image.size()) / scale;
    if (size.width() > area.width() || size.height() > area.height()) // read for another size
        size.scale(area.size(), Qt::KeepAspectRatio);
    // On whole pixels, so that nothing is blurred.
    const auto onPixel = [scale](qreal position) { return std::round(position * scale) / scale; };
    const QRectF place(QPointF(onPixel(area.x() + (area.width() - size.width()) / 2),
                           onPixel(area.y() + (area.height() - size.height()) / 2)),
        size);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, image);
    ControlShapes::box(painter, place.adjusted(-1, -1, 1, 1), Qt::transparent, Colors::outline(), 1);
}

void HistoryTile::paintTexts(
    QPainter &painter, const QRect &area, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const HistoryEntry &entry = m_model.entry(index);
    const QFont quiet = quietFont(option.font);
    const int titleHeight = QFontMetrics(option.font).height();
    painter.setFont(option.font);
    painter.setPen(option.palette.color(QPalette::WindowText));
    drawLine(painter, { area.topLeft(), QSize(area.width(), titleHeight) }, EntryTexts::title(entry), option.direction);
    painter.setFont(quiet);
    painter.setPen(Colors::quietText());
    const QRect line(area.left(), area.top() + titleHeight + lineGap, area.width(), QFontMetrics(quiet).height());
    const QString subtitle = fitting(EntryTexts::subtitles(entry, m_clock.now()), painter.fontMetrics(), line.width());
    drawLine(painter, line, subtitle, option.direction);
}

} // namespace tessaly
