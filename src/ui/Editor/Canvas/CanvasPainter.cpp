// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasPainter.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace tessaly {

namespace {

constexpr double handleDiameter = 9;
constexpr double smallHandleDiameter = 8; ///< of the points that bend a line or turn a tail
constexpr double editingAir = 2; ///< between the letters in hand and the outline
const QColor markColor(0x1A, 0x6A, 0xE0); // the same in both appearances: it lies on the picture
const QColor guideColor(0xFF, 0x2D, 0x95);
const QColor contrast(255, 255, 255, 200);
const QColor shadow(0, 0, 0, 90);

QPen hairline(const QColor &color, double width)
{
    QPen pen(color, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    pen.setCosmetic(true);
    return pen;
}

/// A thin line of this colour between two light ones, so that it shows on any ground.
template <class Draw>
void drawLegibly(QPainter &painter, const QColor &color, double width, Draw draw)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(hairline(contrast, width + 2));
    draw();
    painter.setPen(hairline(color, width));
    draw();
}

QRectF onPixelMiddles(const QRectF &rect)
{
    const QPointF topLeft(std::floor(rect.left()) + 0.5, std::floor(rect.top()) + 0.5);
    const QPointF bottomRight(std::floor(rect.right()) + 0.5, std::floor(rect.bottom()) + 0.5);
    return { topLeft, bottomRight };
}

QPointF handleCenter(const CanvasOverlay &overlay, const Handle &handle)
{
    return overlay.transform.toView(handle.position) + handle.viewOffset;
}

bool isSquare(const CanvasOverlay &overlay, const Handle &handle)
{
    return overlay.adornments.crop && handle.role <= HandleRole::Left;
}

double diameterOf(const CanvasOverlay &overlay, const Handle &handle)
{
    const bool isSmall = handle.role == HandleRole::Bend || handle.role == HandleRole::Tail;
    return (isSmall ? smallHandleDiameter : handleDiameter) * overlay.adornments.handleScale;
}

void paintHandle(QPainter &painter, const CanvasOverlay &overlay, const Handle &handle)
{
    const double radius = diameterOf(overlay, handle) / 2;
    const QRectF box = QRectF(-radius, -radius, 2 * radius, 2 * radius).translated(handleCenter(overlay, handle));
    const auto shape = [&](const QRectF &rect) {
        if (isSquare(overlay, handle))
            painter.drawRoundedRect(rect, 1.5, 1.5);
        else
            painter.drawEllipse(rect);
    };
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadow);
    shape(box.adjusted(-1.5, -1.5, 1.5, 1.5));
    painter.setBrush(handle.role == HandleRole::Bend ? markColor : QColor(Qt::white));
    painter.setPen(QPen(handle.role == HandleRole::Bend ? QColor(Qt::white) : markColor, 1.5));
    shape(box);
}

QString sizeLabel(const CanvasOverlay &overlay, const QRectF &crop)
{
    return QCoreApplication::translate("Canvas", "%1 × %2 px")
        .arg(std::lround(crop.width() * overlay.pixelScale))
        .arg(std::lround(crop.height() * overlay.pixelScale));
}

/// Below the crop frame, or within it where there is no room.
QRectF sizeLabelBox(const CanvasOverlay &overlay, const QRectF &crop, QSizeF view)
{
    const QFontMetricsF metrics { QFont() };
    const QString label = sizeLabel(overlay, *overlay.adornments.crop);
    QRectF box(0, 0, metrics.horizontalAdvance(label) + 16, metrics.height() + 6);
    box.moveCenter({ crop.center().x(), 0 });
    box.moveTop(crop.bottom() + 12);
    if (box.bottom() > view.height())
        box.moveBottom(std::min(crop.bottom(), view.height()) - 12);
    box.moveLeft(std::clamp(box.left(), 4.0, std::max(4.0, view.width() - box.width() - 4)));
    return box;
}

void paintThirds(QPainter &painter, const QRectF &crop)
{
    for (const double part : { 1 / 3.0, 2 / 3.0 }) {
        const double x = std::floor(crop.left() + crop.width() * part) + 0.5;
        const double y = std::floor(crop.top() + crop.height() * part) + 0.5;
        for (const QLineF &line :
            { QLineF(x, crop.top(), x, crop.bottom()), QLineF(crop.left(), y, crop.right(), y) }) {
            painter.setPen(hairline(shadow, 3));
            painter.drawLine(line);
            painter.setPen(hairline(contrast, 1));
            painter.drawLine(line);
        }
    }
}

void paintCrop(QPainter &painter, const CanvasOverlay &overlay, QSizeF view)
{
    const QRectF crop = overlay.transform.toView(*overlay.adornments.crop);
    QPainterPath outside;
    outside.addRect(overlay.transform.toView(QRectF({ 0, 0 }, overlay.imageSize)));
    QPainterPath inside;
    inside.addRect(crop);
    painter.fillPath(outside - inside, QColor(0, 0, 0, 140));
    if (overlay.adornments.dragging)
        paintThirds(painter, crop);
    drawLegibly(painter, markColor, 1, [&] { painter.drawRect(onPixelMiddles(crop)); });

    const QRectF box = sizeLabelBox(overlay, crop, view);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(20, 20, 24, 210));
    painter.drawRoundedRect(box, 5, 5);
    painter.setPen(Qt::white);
    painter.drawText(box, Qt::AlignCenter, sizeLabel(overlay, *overlay.adornments.crop));
}

QRectF caretBox(const CanvasOverlay &overlay)
{
    const QLineF caret = *overlay.text.caret;
    const QPointF top = overlay.transform.toView(caret.p1()), bottom = overlay.transform.toView(caret.p2());
    return { std::round(top.x()) - 1, top.y(), 2, std::max(4.0, bottom.y() - top.y()) };
}

void paintText(QPainter &painter, const CanvasOverlay &overlay)
{
    QColor selection = markColor;
    selection.setAlpha(95);
    for (const QRectF &box : overlay.text.selection)
        painter.fillRect(overlay.transform.toView(box), selection);
    for (const QRectF &box : overlay.text.composed) {
        const QRectF line = overlay.transform.toView(box);
        painter.fillRect(QRectF(line.left(), line.bottom() - 2, line.width(), 2), markColor);
    }
    if (overlay.text.caret) {
        painter.fillRect(caretBox(overlay).adjusted(-1, -1, 1, 1), contrast);
        painter.fillRect(caretBox(overlay), QColor(20, 20, 24));
    }
}

QRectF layerFrame(const CanvasOverlay &overlay)
{
    constexpr double air = 3;
    return overlay.transform.toView(*overlay.layer.framed).adjusted(-air, -air, air, air);
}

void paintLayer(QPainter &painter, const CanvasOverlay &overlay)
{
    QColor selection = overlay.layer.color;
    selection.setAlphaF(0.4F);
    QPainterPath lines; // as one, for they may overlap
    lines.setFillRule(Qt::WindingFill);
    for (const QRectF &box : overlay.layer.selection)
        lines.addRect(overlay.transform.toView(box).adjusted(-1, -1, 1, 1));
    painter.strokePath(lines, QPen(contrast, 2)); // on a ground of the same colour the filling cannot be seen
    painter.fillPath(lines, selection);
    if (overlay.layer.framed)
        drawLegibly(painter, overlay.layer.color, 2, [&] { painter.drawRoundedRect(layerFrame(overlay), 4, 4); });
}

/// Guides are level or upright and may be as long as the view: filled rectangles take a fraction of what lines take.
void paintGuides(QPainter &painter, const CanvasOverlay &overlay, QSizeF view)
{
    const QRect visible = QRectF(QPointF(), view).toAlignedRect().adjusted(-2, -2, 2, 2);
    for (const QLineF &guide : overlay.adornments.guides) {
        const QRectF line
            = onPixelMiddles({ overlay.transform.toView(guide.p1()), overlay.transform.toView(guide.p2()) });
        const QRect pixels = line.toAlignedRect() & visible;
        painter.fillRect(pixels.adjusted(-1, -1, 1, 1), contrast);
        painter.fillRect(pixels, guideColor);
    }
}

QRegion grown(const QRectF &rect, double by) { return rect.normalized().adjusted(-by, -by, by, by).toAlignedRect(); }

/// The four sides of a rectangle without what lies between them.
QRegion frameArea(const QRectF &rect)
{
    const QRectF inner = rect.adjusted(4, 4, -4, -4);
    return grown(rect, 4 + editingAir) - (inner.isValid() ? QRegion(inner.toRect()) : QRegion());
}

} // namespace

QRegion CanvasPainter::area(const CanvasOverlay &overlay, QSizeF view)
{
    const QRect everything(QPoint(), view.toSize());
    const CanvasAdornments &adornments = overlay.adornments;
    if (adornments.crop)
        return everything;
    QRegion region;
    for (const Handle &handle : adornments.handles)
        region += grown({ handleCenter(overlay, handle), QSizeF() }, diameterOf(overlay, handle) / 2 + 4);
    for (const auto &box : { adornments.outline, adornments.hovered })
        if (box)
            region += frameArea(overlay.transform.toView(*box));
    for (const QLineF &guide : adornments.guides)
        region += grown({ overlay.transform.toView(guide.p1()), overlay.transform.toView(guide.p2()) }, 3);
    for (const auto &boxes : { overlay.text.selection, overlay.text.composed })
        for (const QRectF &box : boxes)
            region += grown(overlay.transform.toView(box), 2);
    if (overlay.text.caret)
        region += grown(caretBox(overlay), 2);
    for (const QRectF &box : overlay.layer.selection)
        region += grown(overlay.transform.toView(box), 3);
    if (overlay.layer.framed)
        region += frameArea(layerFrame(overlay));
    return region & everything;
}

void CanvasPainter::paint(QPainter &painter, const CanvasOverlay &overlay, QSizeF view)
{
    const CanvasAdornments &adornments = overlay.adornments;
    painter.setRenderHint(QPainter::Antialiasing);
    paintLayer(painter, overlay);
    if (adornments.crop)
        paintCrop(painter, overlay, view);
    if (adornments.hovered) {
        QColor faint = markColor;
        faint.setAlpha(180);
        drawLegibly(painter, faint, 1,
            [&] { painter.drawRect(onPixelMiddles(overlay.transform.toView(*adornments.hovered))); });
    }
    if (adornments.outline) {
        const double air = overlay.text.isEditing ? editingAir : 0;
        const QRectF box = overlay.transform.toView(*adornments.outline).adjusted(-air, -air, air, air);
        drawLegibly(painter, markColor, 1, [&] { painter.drawRect(onPixelMiddles(box)); });
    }
    paintGuides(painter, overlay, view);
    paintText(painter, overlay);
    for (const Handle &handle : adornments.handles)
        paintHandle(painter, overlay, handle);
}

} // namespace tessaly
