// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/WatermarkPainter.h"

#include "core/Imaging/ColorHex.h"
#include "core/Imaging/ImageReading.h"
#include "core/Rendering/PictureCaches.h"
#include "core/Rendering/ScaledPicture.h"
#include "core/Rendering/TextShaper.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

constexpr double smallestText = 6; // points
constexpr double textShareOfSize = 0.2; // a text's font size, of what a logo's longer side would be
constexpr double insetShare = 0.04;
constexpr double tileSpacingShare = 0.08;
constexpr double tileDegrees = -30;

/// The mark by itself, its top-left corner at the origin.
struct Stamp {
    QSizeF size;
    QPainterPath outline = {};
    std::vector<PictureStep> pictures = {};
};

double shorterSide(QSizeF size) { return std::min(size.width(), size.height()); }
double longerSide(QSizeF size) { return std::max(size.width(), size.height()); }

Stamp textStamp(const Watermark &watermark, QSizeF canvas, double pixelsPerPoint)
{
    TextShaper shaper;
    const TextShape &shape = shaper.shape(watermark.text.trimmed(), { .weight = QFont::DemiBold });
    const double room = canvas.width() - 2 * insetShare * shorterSide(canvas);
    const double wanted = watermark.size * shorterSide(canvas) * textShareOfSize;
    const double fitting
        = watermark.position == WatermarkPosition::Tile || shape.ink.isEmpty() ? wanted : room / shape.ink.width();
    const double fontSize = std::max(std::min(wanted, fitting), smallestText);
    // By the ink, so that a mark in a corner is as far from both edges.
    const QTransform placed
        = QTransform::fromTranslate(-shape.ink.x(), -shape.ink.y()) * QTransform::fromScale(fontSize, fontSize);
    Stamp stamp { shape.ink.size() * fontSize, placed.map(shape.outline) };
    PixelBudget budget { maxPicturePixels };
    for (const TextShape::Picture &glyph : shape.pictures) {
        const QRectF target = placed.mapRect(glyph.target);
        stamp.pictures.push_back(pictureFor(glyph.picture, target, pixelsPerPoint, target, budget));
    }
    return stamp;
}

Stamp logoStamp(const Watermark &watermark, QSizeF canvas, double pixelsPerPoint)
{
    const auto image = readImage(*watermark.imageData, QString());
    if (!image)
        return {};
    const QSizeF pixels = image->pixels.size();
    const QSizeF size = pixels * (watermark.size * shorterSide(canvas) / longerSide(pixels));
    PixelBudget budget { maxPicturePixels };
    Stamp stamp { size };
    stamp.pictures.push_back(
        pictureFor(image->pixels, QRectF(QPointF(), size), pixelsPerPoint, QRectF(QPointF(), size), budget));
    return stamp;
}

/// Where the mark's top-left corner goes, with the rotation about the canvas's middle for tiles.
std::vector<QTransform> placements(const Watermark &watermark, QSizeF mark, QSizeF canvas)
{
    if (watermark.position != WatermarkPosition::Tile) {
        const double inset = insetShare * shorterSide(canvas);
        const QPointF unit = anchor(watermark.position);
        const auto along = [inset](double share, double markLength, double length) {
            return inset + share * (length - 2 * inset) - share * markLength;
        };
        return { QTransform::fromTranslate(
            along(unit.x(), mark.width(), canvas.width()), along(unit.y(), mark.height(), canvas.height())) };
    }
    const double least = tileSpacingShare * longerSide(canvas);
    const QSizeF spacing(std::max(2 * mark.width(), least), std::max(2 * mark.height(), least));
    const double reach = (std::hypot(canvas.width(), canvas.height()) + 3.2 * longerSide(mark)) / 2;
    const int columns = int(reach / spacing.width()) + 1, rows = int(reach / spacing.height()) + 1;
    const QTransform turned = QTransform().translate(canvas.width() / 2, canvas.height() / 2).rotate(tileDegrees);
    std::vector<QTransform> tiles;
    for (int row = -rows; row <= rows; ++row) {
        for (int column = -columns; column <= columns; ++column) {
            const QPointF corner(
                column * spacing.width() - mark.width() / 2, row * spacing.height() - mark.height() / 2);
            const QTransform tile = QTransform::fromTranslate(corner.x(), corner.y()) * turned;
            if (tile.mapRect(QRectF(QPointF(), mark)).intersects(QRectF(QPointF(), canvas)))
                tiles.push_back(tile);
        }
    }
    return tiles;
}

} // namespace

PreparedMark prepareWatermark(const Watermark &watermark, QSizeF canvasSize, double pixelsPerPoint)
{
    PreparedMark prepared;
    if (!watermark.isVisible() || canvasSize.isEmpty() || watermark.opacity <= 0)
        return prepared;
    const Stamp stamp = watermark.kind == WatermarkKind::Text ? textStamp(watermark, canvasSize, pixelsPerPoint)
                                                              : logoStamp(watermark, canvasSize, pixelsPerPoint);
    if (stamp.size.isEmpty())
        return prepared;
    QColor color = ColorHex::toColor(watermark.colorHex);
    color.setAlphaF(float(color.alphaF() * watermark.opacity));
    for (const QTransform &placement : placements(watermark, stamp.size, canvasSize)) {
        prepared.fill(placement.map(stamp.outline), color);
        for (PictureStep picture : stamp.pictures) {
            picture.placement = placement;
            picture.opacity = watermark.opacity;
            prepared.add(std::move(picture));
        }
    }
    return prepared;
}

} // namespace tessaly
