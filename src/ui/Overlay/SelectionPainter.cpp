// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/SelectionPainter.h"

#include "core/Base/Parallel.h"
#include "ui/Style/Appearance.h"

#include <QFontDatabase>
#include <QFontMetrics>

#include <cstring>

namespace tessaly::SelectionPainter {

namespace {

constexpr uint brightness = 141; ///< of 256, under the dimming
constexpr QRgb seeThroughDim = uint(256 - brightness) << 24; ///< black, premultiplied

int pixels(double points, double scale) { return std::max(1, qRound(points * scale)); }

void dim(const QRgb *from, QRgb *to, int count)
{
    for (int i = 0; i < count; ++i) {
        const QRgb pixel = from[i];
        to[i] = 0xff000000U | (((pixel & 0xff00ffU) * brightness >> 8) & 0xff00ffU)
            | (((pixel & 0xff00U) * brightness >> 8) & 0xff00U);
    }
}

struct Rows {
    uchar *first; ///< of the monitor's row `top`
    qsizetype bytesPerLine;
    int top;
};

void paintRows(const Rows &rows, const QRect &rect, const QImage &picture, bool clear)
{
    const QRect there = rect & picture.rect();
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        auto *to = reinterpret_cast<QRgb *>(rows.first + (y - rows.top) * rows.bytesPerLine);
        if (picture.isNull() || y > there.bottom()) {
            std::fill_n(to + rect.x(), rect.width(), clear && picture.isNull() ? 0U : seeThroughDim);
            continue;
        }
        const auto *from = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        if (clear)
            std::memcpy(to + there.x(), from + there.x(), size_t(there.width()) * sizeof(QRgb));
        else
            dim(from + there.x(), to + there.x(), there.width());
        std::fill_n(to + there.x() + there.width(), rect.right() - there.right(), seeThroughDim);
    }
}

void paintRect(const Rows &rows, const QRect &rect, const QImage &picture, bool clear)
{
    constexpr int manyPixels = 1 << 20; // a thread is not worth less
    const bool large = rect.width() > 0 && rect.height() > manyPixels / rect.width();
    const int threads = large ? Parallel::defaultThreadCount() : 1;
    Parallel::inBands(rect.height(), 4 * threads, threads, [&](int first, int end) {
        paintRows(rows, QRect(rect.x(), rect.y() + first, rect.width(), end - first), picture, clear);
    });
}

QRegion ring(const QRect &rect, int inner, int outer)
{
    return QRegion(rect.adjusted(-outer, -outer, outer, outer)) - rect.adjusted(-inner, -inner, inner, inner);
}

void fill(QPainter &painter, const QRegion &region, const QColor &color)
{
    for (const QRect &rect : region)
        painter.fillRect(rect, color);
}

QString sizeText(const QRect &rect) { return QStringLiteral("%1 × %2").arg(rect.width()).arg(rect.height()); }

/// Above the selection's top left corner, below its bottom left one or inside, where there is room first.
QRect labelRect(const QRect &rect, QSize pixelSize, double scale)
{
    const QFontMetrics metrics(font(scale));
    const QSize size(
        metrics.horizontalAdvance(sizeText(rect)) + pixels(14, scale), metrics.height() + pixels(6, scale));
    const int gap = pixels(rect.height() < SelectionModel::roomyPoints * scale ? 15 : 9, scale); // beyond the grips
    const int x = std::clamp(rect.x(), 0, std::max(0, pixelSize.width() - size.width()));
    for (const int y : { rect.y() - gap - size.height(), rect.y() + rect.height() + gap })
        if (y >= 0 && y + size.height() <= pixelSize.height())
            return { QPoint(x, y), size };
    return { QPoint(std::min(x + gap, pixelSize.width() - size.width()), rect.y() + gap), size };
}

void paintLabel(QPainter &painter, const QRect &rect, const QString &text, double scale, double points = 12)
{
    const double corner = 5 * scale;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(20, 20, 22, 217));
    painter.drawRoundedRect(rect, corner, corner);
    painter.setFont(font(scale, points));
    painter.setPen(Qt::white);
    painter.drawText(rect, Qt::AlignCenter, text);
    painter.restore();
}

QRect gripRect(const QRect &handle, double scale)
{
    const int inset = pixels(1, scale);
    return handle.adjusted(inset, inset, -inset, -inset);
}

/// The model's own arithmetic for the places of the grips.
SelectionModel modelOf(const QRect &rect, QSize pixelSize, double scale)
{
    SelectionModel model(pixelSize, scale);
    model.select(rect);
    return model;
}

} // namespace

QFont font(double scale, double points)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(pixels(points, scale));
    font.setWeight(QFont::Medium);
    return font;
}

void paintGround(QImage &surface, int top, const QRegion &region, const QImage &picture, const QRect &clear)
{
    const Rows rows { surface.bits(), surface.bytesPerLine(), top };
    for (const QRect &rect : region - clear)
        paintRect(rows, rect, picture, false);
    for (const QRect &rect : region &clear)
        paintRect(rows, rect, picture, true);
}

void paintFrame(QPainter &painter, const Frame &frame, QSize pixelSize, double scale)
{
    if (frame.rect.isEmpty())
        return;
    // Outside the selection, so that every pixel of it is seen; light and dark, so that it is seen on anything.
    const int line = pixels(1, scale);
    fill(painter, ring(frame.rect, 0, line), QColor(255, 255, 255, 240));
    fill(painter, ring(frame.rect, line, 2 * line), QColor(0, 0, 0, 110));
    paintLabel(painter, labelRect(frame.rect, pixelSize, scale), sizeText(frame.rect), scale);
    if (!frame.showsHandles)
        return;
    const SelectionModel model = modelOf(frame.rect, pixelSize, scale);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Handle handle : allHandles) {
        const QRect square = model.handleRect(handle);
        if (square.isEmpty())
            continue;
        const QRectF grip = gripRect(square, scale);
        const double edge = 1.5 * scale;
        painter.setPen(QPen(Colors::accent(), edge));
        painter.setBrush(Qt::white);
        painter.drawEllipse(grip.adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2));
    }
    painter.restore();
}

QRegion footprint(const Frame &frame, QSize pixelSize, double scale)
{
    if (frame.rect.isEmpty())
        return {};
    QRegion region = ring(frame.rect, 0, 2 * pixels(1, scale));
    region += labelRect(frame.rect, pixelSize, scale);
    if (frame.showsHandles) {
        const SelectionModel model = modelOf(frame.rect, pixelSize, scale);
        for (const Handle handle : allHandles)
            region += model.handleRect(handle);
    }
    return region;
}

void paintHighlight(QPainter &painter, const Highlight &highlight, double scale)
{
    if (highlight.rect.isEmpty())
        return;
    QColor tint = Colors::accent();
    const int line = pixels(3, scale);
    const auto inset = [&](Qt::Edge edge) { return highlight.open.testFlag(edge) ? 0 : line; };
    const QRect inside = highlight.rect.adjusted(
        inset(Qt::LeftEdge), inset(Qt::TopEdge), -inset(Qt::RightEdge), -inset(Qt::BottomEdge));
    fill(painter, QRegion(highlight.rect) - inside, tint);
    tint.setAlphaF(0.22F);
    fill(painter, inside, tint);
    if (highlight.title.isEmpty())
        return;
    constexpr double points = 14;
    const QFontMetrics metrics(font(scale, points));
    const int room = highlight.rect.width() - pixels(48, scale);
    const QString text = metrics.elidedText(highlight.title, Qt::ElideMiddle, room);
    QRect label(0, 0, metrics.horizontalAdvance(text) + pixels(24, scale), metrics.height() + pixels(12, scale));
    label.moveCenter(highlight.rect.center());
    label.moveTop(highlight.rect.y() + pixels(44, scale)); // below its own title bar, above the magnifier as a rule
    if (room >= pixels(48, scale) && highlight.rect.contains(label))
        paintLabel(painter, label, text, scale, points);
}

} // namespace tessaly::SelectionPainter
